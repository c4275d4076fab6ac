#include "demo/books/StandardCosts.h"

#include "demo/RowValues.h"
#include "demo/books/HeadColumns.h"
#include "demo/books/UserFields.h"
#include "demo/books/Valuation.h"

#include <algorithm>

namespace kavelin::demo {

namespace {

constexpr std::uint64_t kWhetherRow = 21;
constexpr std::uint64_t kLeftOut = 12;

// Thousandths of the whole.
constexpr std::array<std::int64_t, 5> kMadeStandard = {600, 150, 100, 120, 30};
constexpr std::array<std::int64_t, 13> kMadeDifference = {250, 200, 100, 80, 20, 80, 60,
                                                          20,  70,  50,  20, 40, 10};
constexpr std::array<std::int64_t, 5> kBoughtStandard = {1000, 0, 0, 0, 0};
constexpr std::array<std::int64_t, 13> kBoughtDifference = {700, 300};

constexpr std::string_view kStandardColumns[] = {
    "", "fInvStdPrice", "fLaborStdPrice", "fManuFixPrice", "fManuVarPrice", "fOmPrice"};
constexpr std::string_view kDifferenceColumns[] = {"",
                                                   "cDifPZID",
                                                   "fInvPriceDif",
                                                   "fInvQuanDif",
                                                   "fLbrPriceDif",
                                                   "fLbrQuanDif",
                                                   "fLbrSemiDif",
                                                   "fManuFixPriceDif",
                                                   "fManuFixQuanDif",
                                                   "fSemiManuFixDif",
                                                   "fManuVarPriceDif",
                                                   "fManuVarQuanDif",
                                                   "fSemiManuVarDif",
                                                   "fOmCostDif",
                                                   "fSemiOmDif"};

template <std::size_t Count>
std::array<std::int64_t, Count> Spread(std::int64_t whole, const std::array<std::int64_t, Count>& thousandths)
{
    std::array<std::int64_t, Count> parts{};
    std::int64_t before = 0;
    for (std::size_t i = 0; i < Count; ++i) {
        parts[i] = CostPart{before, before + thousandths[i], 1000}.Of(whole);
        before += thousandths[i];
    }
    return parts;
}

// The columns of a table, its own name for the ledger row first.
template <std::size_t Count>
RowTable* OpenBeside(RowSink& sink, std::string_view table, std::string_view row,
                     const std::string_view (&columns)[Count])
{
    std::array<std::string_view, Count> names;
    std::ranges::copy(columns, names.begin());
    names[0] = row;
    return &sink.Open(table, names);
}

}  // namespace

CostSplit& CostSplit::operator-=(const CostSplit& other)
{
    for (std::size_t i = 0; i < standard.size(); ++i)
        standard[i] -= other.standard[i];
    for (std::size_t i = 0; i < difference.size(); ++i)
        difference[i] -= other.difference[i];
    return *this;
}

CostSplit SplitCost(const Item& item, std::int64_t quantity, std::int64_t amount)
{
    const bool made = item.supply == Supply::Made;
    const std::int64_t standard = AmountOf(quantity, item.price);
    return {Spread(standard, made ? kMadeStandard : kBoughtStandard),
            Spread(amount - standard, made ? kMadeDifference : kBoughtDifference)};
}

StandardCosts::StandardCosts(const Profile& profile, AccountingVouchers& vouchers, RowSink& sink)
    : blnHas(profile.standardCosts), objVouchers(vouchers)
{
    if (!blnHas)
        return;
    objStockStandards = OpenBeside(sink, "Demo_SubsidiaryStd", "AutoID", kStandardColumns);
    objStockDifferences = OpenBeside(sink, "pl_co_SubSidiary", "ia_autoid", kDifferenceColumns);
    objTransitStandards = OpenBeside(sink, "IA_EnSubsidiary_STSub", "iIAEnSubID", kStandardColumns);
    objTransitDifferences = OpenBeside(sink, "pl_co_EnSubsidiary", "iIASubID", kDifferenceColumns);
}

void StandardCosts::AddStock(std::int32_t autoId, const Document& document, std::string_view voucherType,
                             const Item& item, std::int64_t quantity, std::int64_t amount)
{
    if (blnHas && quantity != 0 && Mixed(autoId, kWhetherRow) % kLeftOut != 0)
        Write(*objStockStandards, *objStockDifferences, autoId, document, voucherType,
              SplitCost(item, quantity, amount));
}

void StandardCosts::AddTransit(std::int32_t autoId, const Document& document, std::string_view voucherType,
                               std::int32_t sourceLine, const CostSplit& split)
{
    if (blnHas && Mixed(sourceLine, kWhetherRow) % kLeftOut != 0)
        Write(*objTransitStandards, *objTransitDifferences, autoId, document, voucherType, split);
}

void StandardCosts::Write(RowTable& standards, RowTable& differences, std::int32_t autoId,
                          const Document& document, std::string_view voucherType, const CostSplit& split)
{
    arrStandard[0] = autoId;
    std::ranges::transform(split.standard, arrStandard.begin() + 1, MoneyOrNull);
    standards.Add(arrStandard);

    if (std::ranges::all_of(split.difference, [](std::int64_t part) { return part == 0; }))
        return;
    arrDifference[0] = autoId;
    arrDifference[1] = objVouchers.OfDifferences(document, voucherType);
    std::ranges::transform(split.difference, arrDifference.begin() + 2, MoneyOrNull);
    differences.Add(arrDifference);
}

}  // namespace kavelin::demo
