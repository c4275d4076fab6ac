// Books of a company with two items and a warehouse for each valuation method, whose figures can be worked
// out by hand: item A costs 10.00 by its price, item B keeps batches and costs 2.00.
#pragma once

#include "demo/MemorySink.h"
#include "demo/books/Books.h"
#include "demo/company/Stockroom.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kavelin::demo {

inline constexpr std::string_view kMonthly = "01";
inline constexpr std::string_view kMoving = "02";
inline constexpr std::string_view kPlanned = "03";
inline constexpr std::string_view kFifo = "05";
inline constexpr std::string_view kLifo = "07";

inline constexpr DocumentType kReceiptType{
    DocumentKind::Stock, "01", "01", "普通采购", "101", "CG", "PO", "", "手工", true};
inline constexpr DocumentType kIssueType{
    DocumentKind::Stock, "11", "11", "领料", "201", "LL", "MO", "", "自动", false};
inline constexpr DocumentType kDispatchType{
    DocumentKind::Dispatch, "05", "05", "委托代销", "206", "FH", "SO", "", "", false};
inline constexpr DocumentType kInvoiceType{
    DocumentKind::SaleInvoice, "26", "26", "委托代销", "206", "FP", "SO", "", "", false};

// A profile that values by warehouse.
Profile PlainProfile();

class SmallBooks {
  public:
    explicit SmallBooks(const Profile& profile = PlainProfile(), std::int64_t lines = 1000);

    const Place& At(std::string_view warehouse, std::string_view item = "A",
                    std::string_view batch = {}) const;
    std::chrono::sys_days Day(int day) const;  // of the month that is open

    // Months 1 and further; the month before is closed.
    void Open(int month);
    // Closes the open month and ends the year.
    void End(bool final = true);

    // Each posts a row without a document line and gives its number. Quantities in hundredths, amounts in
    // cents.
    std::int32_t Receive(const Place& place, std::int64_t quantity, std::int64_t cost);
    std::int32_t ReceiveFrom(const Place& place, std::int64_t quantity, std::int32_t costOf);
    std::int32_t Issue(const Place& place, std::int64_t quantity, std::optional<std::int64_t> cost = {});
    std::int32_t Amount(const Place& place, bool receipt, std::int64_t cost);

    Document Head(const DocumentType& type, const Place& place, int day = 10);
    std::int32_t Line(const Document& document, const Place& place, std::int64_t quantity,
                      std::int64_t amount = 0);

    // Of IA_Subsidiary, rows from 1 as AutoID.
    std::int64_t Cost(std::size_t autoId) const;  // differences included
    const MemoryTable& Ledger() const { return sink.Table("IA_Subsidiary"); }

    Profile profile;
    Company company;
    Stockroom stock;
    MemorySink sink;
    Books books;
    int month = 0;

  private:
    StockEntry Entry(const Place& place, bool receipt, std::optional<std::int64_t> quantity) const;
};

}  // namespace kavelin::demo
