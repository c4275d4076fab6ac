#include "demo/books/ClosingAdjustments.h"

#include "demo/company/RdStyles.h"

namespace kavelin::demo {

namespace {

constexpr int kLines = 8;

}  // namespace

void PostClosingAdjustments(const CostKeys& keys, Documents& documents, StockLedger& ledger,
                            std::chrono::sys_days day, std::int64_t rows)
{
    static constexpr DocumentType kType{
        DocumentKind::Adjustment, "21", "21", "", kRdAdjustmentOut, "CT", "", "", "调整", false};

    Document document;
    int lines = 0;
    for (std::size_t i = 0; i < keys.All().size() && rows > 0; ++i) {
        const auto key = static_cast<std::int32_t>(i);
        const Place* place = keys.All()[i].place;
        const Balance excess = ledger.Excess(key);
        if (place == nullptr || (excess.amount == 0 && excess.difference == 0))
            continue;

        if (lines == 0 || lines == kLines || document.warehouse != place->warehouse->code) {
            Document head;
            head.type = &kType;
            head.day = day;
            head.warehouse = place->warehouse->code;
            head.department = head.accountingDepartment = place->warehouse->department;
            document = documents.Add(head);
            lines = 0;
        }
        LineEntry entry;
        entry.place = place;
        ledger.PostTakeOff(key, excess, document, documents.AddLine(document, entry), day);
        ++lines;
        --rows;
    }
}

}  // namespace kavelin::demo
