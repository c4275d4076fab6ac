// What the tests of the syntax stage share.
#pragma once

#include "embedded/Plan.h"
#include "embedded/SqlError.h"
#include "embedded/syntax/TreeText.h"

#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::embedded::testing {

// The statements of a batch in the engine's spelling, one blank between them.
inline std::string Respelled(std::string_view text, TextForm form = TextForm::AsWritten)
{
    std::string written;
    for (const StatementPtr& statement : ParseBatch(text))
        written += (written.empty() ? "" : " ") + WriteText(*statement, form);
    return written;
}

// "102 at <b>: Incorrect syntax near 'b'.": number, the text that the error points at, message; or "parsed".
inline std::string Refusal(std::string_view text)
{
    try {
        ParseBatch(text);
        return "parsed";
    } catch (const SqlError& error) {
        const Place where = error.Where();
        return std::to_string(error.Number()) + " at <" +
               std::string(text.substr(where.offset, where.length)) + ">: " + error.what();
    }
}

// The lines of identity.sql that hold statements.
inline std::vector<std::string> IdentityLines()
{
    std::ifstream file(KAVELIN_TESTS_DIR "/embedded/sql/identity.sql");
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        if (!line.empty() && !line.starts_with("--"))
            lines.push_back(line);
    return lines;
}

}  // namespace kavelin::embedded::testing
