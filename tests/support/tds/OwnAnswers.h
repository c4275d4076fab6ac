// The batches that a server answers out of itself, since they are about the server and the session, not
// about an account's tables: what drivers send on their own, and what programs ask to know where they are.
#pragma once

#include "support/tds/Columns.h"
#include "support/tds/ServerOptions.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test::tds {

struct OwnResult {
    std::vector<Column> columns;
    std::vector<std::vector<Value>> rows;
};

// Every run of blanks and line ends as one blank; none, and no semicolon, at the ends.
std::string InOneLine(std::string_view text);

// The result of a select that the server knows by its text: letter case and the number of blanks don't count.
std::optional<OwnResult> OwnAnswer(std::string_view batch, const ServerOptions& options,
                                   const std::string& database);

// What a session is set to by SET and USE.
struct SessionSettings {
    std::string database;
    bool countsRows = true;  // SET NOCOUNT OFF
};

// Takes the SET and USE statements from the front of a batch; the rest, which may be empty, is left in
// `batch`. Throws Refusal for a database that the server does not have.
void TakeSettings(std::string_view& batch, SessionSettings& settings, const ServerOptions& options);

bool HasDatabase(const ServerOptions& options, std::string_view name);

}  // namespace kavelin::test::tds
