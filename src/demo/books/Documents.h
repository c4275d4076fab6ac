// The documents of the open month: heads and lines, kept until the month is closed, since their lines are
// posted and get their cost until then.
#pragma once

#include "demo/RowSink.h"
#include "demo/books/Document.h"
#include "demo/profiles/Profile.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace kavelin::demo {

// Who posts documents.
inline constexpr std::string_view kPoster = "李秀英";

class Documents {
  public:
    // `company`, `profile` and the sink outlive the documents.
    Documents(const Profile& profile, const Company& company, RowSink& sink);
    ~Documents();

    Document Add(const Document& head);
    std::int32_t NewOrder() { return ++lngOrders; }
    std::int32_t AddLine(const Document& document, const LineEntry& entry);
    // An identifier for what has a line without a document.
    std::int32_t NewLineNumber();

    // The line is posted on `day`. Throws std::logic_error for a line that is posted already, or whose
    // document is of a month that is closed.
    void Post(std::int32_t line, std::chrono::sys_days day);
    // What the ledger says that a posted line cost, differences included.
    void SetCost(std::int32_t line, std::int64_t cost);

    // Writes Demo_Document and Demo_DocumentLine and forgets the rows.
    void Write();

  private:
    struct Line;
    class Tables;

    Line& Find(std::int32_t line);

    const Profile& objProfile;
    const Company& objCompany;
    std::unique_ptr<Tables> objTables;
    std::vector<Document> arrHeads;
    std::vector<Line> arrLines;
    std::int32_t lngDocuments;  // the last identifier
    std::int32_t lngLines;      // likewise
    std::int32_t lngOrders = 0;
    std::int32_t lngFirstDocument;                                        // that of the first head kept
    std::map<std::pair<int, std::string_view>, std::int32_t> dicNumbers;  // by month and prefix
};

}  // namespace kavelin::demo
