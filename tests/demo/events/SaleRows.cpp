#include "demo/events/SaleRows.h"

#include <stdexcept>

namespace kavelin::demo {

namespace {

SaleYear Read(const Profile& profile, const MemorySink& sink)
{
    SaleYear year;
    year.profile = &profile;

    std::map<std::int64_t, WrittenLine> heads;
    const MemoryTable& documents = sink.Table("Demo_Document");
    for (std::size_t i = 0; i < documents.rows.size(); ++i) {
        WrittenLine head;
        head.kind = documents.Text(i, "Kind");
        head.type = documents.Text(i, "cVouType");
        head.business = documents.Text(i, "cBusType");
        head.source = documents.Text(i, "cSource");
        head.warehouse = documents.Text(i, "cWhCode");
        head.saleType = documents.Text(i, "cSTCode");
        const std::string day = FormatDate(ToDate(documents.At(i, "dVouDate")));
        head.month = day.starts_with("2008") ? std::stoi(day.substr(5, 2)) : 0;
        heads[documents.Number(i, "DocID")] = head;
    }

    const MemoryTable& lines = sink.Table("Demo_DocumentLine");
    for (std::size_t i = 0; i < lines.rows.size(); ++i) {
        WrittenLine line = heads.at(lines.Number(i, "DocID"));
        line.id = lines.Number(i, "LineID");
        line.quantity = lines.Hundredths(i, "iQuantity");
        line.dispatchLine = lines.Number(i, "iDLsID");
        line.invoiceLine = lines.Number(i, "iSBsID");
        line.consignmentLine = lines.Number(i, "iConsignmentAutoID");
        line.guid = lines.Text(i, "cGuid");
        line.guidSource = lines.Text(i, "cGuidSource");
        line.posted = !lines.Text(i, "cAccounter").empty();
        year.lines[line.id] = line;
    }

    const MemoryTable& stock = sink.Table("IA_Subsidiary");
    for (std::size_t i = 0; i < stock.rows.size(); ++i) {
        PostedRow row;
        row.line = stock.Number(i, "ID");
        row.type = stock.Text(i, "cVouType");
        row.business = stock.Text(i, "cBusType");
        row.receipt = stock.Number(i, "bRdFlag") == 1;
        row.quantity = stock.Hundredths(i, row.receipt ? "iAInQuantity" : "iAOutQuantity");
        row.cost = stock.Hundredths(i, row.receipt ? "iAInPrice" : "iAOutPrice");
        // A difference is part of the cost where goods are kept at planned prices.
        row.cost += (row.receipt ? 1 : -1) *
                    (stock.Hundredths(i, "iDebitDifCost") - stock.Hundredths(i, "iCreditDifCost"));
        year.stock.push_back(row);
    }

    const MemoryTable& transit = sink.Table("IA_EnSubsidiary");
    for (std::size_t i = 0; i < transit.rows.size(); ++i) {
        InTransitRow row;
        row.line = transit.Number(i, "inid");
        row.type = transit.Text(i, "cVouType");
        row.sourceLine = transit.Number(i, "iSrcID");
        row.sourceType = transit.Text(i, "cSrcVouType");
        row.outLine = transit.Number(i, "OutID");
        row.dispatchLine = transit.Number(i, "iDLsID");
        row.business = transit.Text(i, "cBusType");
        row.month = static_cast<int>(transit.Number(i, "iMonth"));
        row.in = transit.Number(i, "bRdFlag") == 1;
        row.quantity = transit.Hundredths(i, row.in ? "iAInQuantity" : "iAOutQuantity");
        row.amount = transit.Hundredths(i, row.in ? "iAInPrice" : "iAOutPrice");
        year.transit.push_back(row);
    }
    return year;
}

}  // namespace

const WrittenLine* SaleYear::Line(std::int64_t id) const
{
    const auto found = lines.find(id);
    return found == lines.end() ? nullptr : &found->second;
}

const SaleYear& SaleYearOf(std::string_view name, std::int64_t lines)
{
    static std::map<std::pair<std::string, std::int64_t>, SaleYear> years;
    const std::pair key(std::string(name), lines);
    if (!years.contains(key)) {
        const Profile* profile = FindProfile(name);
        if (profile == nullptr)
            throw std::invalid_argument("no profile " + std::string(name));
        years[key] = Read(*profile, Generate(*profile, lines, 2008));
    }
    return years[key];
}

std::vector<std::string_view> ProfileNames()
{
    std::vector<std::string_view> names;
    for (const Profile& profile : Profiles())
        names.push_back(profile.name);
    return names;
}

bool IsPostingDocument(const Profile& profile, const WrittenLine& line)
{
    if (line.business.starts_with("直运"))
        return true;
    SaleDocument posting = profile.ordinary;
    if (line.business.starts_with("委托"))
        posting = profile.entrusted;
    else if (line.business == "分期收款")
        posting = SaleDocument::Dispatch;
    else if (line.source.starts_with("出口") || line.business == "出口发票")
        posting = profile.exported == SaleDocument::Dispatch ? SaleDocument::Issue : profile.exported;

    switch (posting) {
        case SaleDocument::Dispatch: return line.kind == "DISP";
        case SaleDocument::Issue: return line.kind == "RD";
        case SaleDocument::Invoice: break;
    }
    return line.kind == "SALE" || line.kind == "EXINV";
}

}  // namespace kavelin::demo
