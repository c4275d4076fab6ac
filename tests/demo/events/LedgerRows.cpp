#include "demo/events/LedgerRows.h"

#include <stdexcept>

namespace kavelin::demo {

namespace {

PlayedYear Play(std::string_view name, std::int64_t lines)
{
    const Profile* profile = FindProfile(name);
    if (profile == nullptr)
        throw std::invalid_argument("no profile " + std::string(name));
    const MemorySink sink = Generate(*profile, lines, 2008);

    PlayedYear year;
    const MemoryTable& ledger = sink.Table("IA_Subsidiary");
    for (std::size_t i = 0; i < ledger.rows.size(); ++i) {
        LedgerRow row;
        row.type = ledger.Text(i, "cVouType");
        row.source = ledger.Text(i, "cSrcVouType");
        row.business = ledger.Text(i, "cBusType");
        row.item = ledger.Text(i, "cInvCode");
        row.warehouse = ledger.Text(i, "cWhCode");
        row.line = ledger.Number(i, "ID");
        row.month = static_cast<int>(ledger.Number(i, "iMonth"));
        row.flag = static_cast<int>(ledger.Number(i, "bFlag"));
        row.receipt = ledger.Number(i, "bRdFlag") == 1;
        row.quantity = ledger.Hundredths(i, row.receipt ? "iAInQuantity" : "iAOutQuantity");
        const std::int64_t difference =
            ledger.Hundredths(i, "iDebitDifCost") - ledger.Hundredths(i, "iCreditDifCost");
        row.cost = row.receipt ? ledger.Hundredths(i, "iAInPrice") + difference
                               : ledger.Hundredths(i, "iAOutPrice") - difference;
        row.materialFee = ledger.Hundredths(i, "iMaterialFee");
        row.settlement = ledger.Number(i, "psvsid");
        row.documentDay = ToDate(ledger.At(i, "dVouDate"));
        row.postingDay = ToDate(ledger.At(i, "dKeepDate"));
        year.rows.push_back(std::move(row));
    }

    const MemoryTable& settlements = sink.Table("Pursettlevouchs");
    for (std::size_t i = 0; i < settlements.rows.size(); ++i)
        year.settlements[settlements.Number(i, "ID")] = {settlements.Hundredths(i, "iSVQuantity"),
                                                         settlements.Hundredths(i, "iSVPrice"),
                                                         settlements.Hundredths(i, "MaterialFee")};
    return year;
}

}  // namespace

const PlayedYear& YearOf(std::string_view profile, std::int64_t lines)
{
    static std::map<std::pair<std::string, std::int64_t>, PlayedYear> years;
    const std::pair key(std::string(profile), lines);
    if (!years.contains(key))
        years[key] = Play(profile, lines);
    return years[key];
}

Estimated Estimated::operator+(const Estimated& other) const
{
    return {quantity + other.quantity, money + other.money};
}

Estimated Estimated::operator-(const Estimated& other) const
{
    return {quantity - other.quantity, money - other.money};
}

Estimated EstimateOf(const LedgerRow& row)
{
    return {row.quantity, row.cost - (row.business == "委外加工" ? row.materialFee : 0)};
}

}  // namespace kavelin::demo
