#include "reports/ReferencePrices.h"

#include <algorithm>
#include <cmath>

namespace kavelin::test {

namespace {

// The entries that the report joins to `place`. Those of an item lie together, since places begin with it.
template <typename Entry, typename Use>
void ForEachMet(const PriceBook& book, const Place& place, const std::map<Place, Entry>& entries, Use use)
{
    for (auto entry = entries.lower_bound({place.item, "", "", "", ""});
         entry != entries.end() && entry->first.item == place.item; ++entry)
        if (book.Meets(place, entry->first))
            use(entry->second);
}

// A sum of decimals that should be 0 is not quite, as a double.
PriceOrNull UnitPrice(double amount, double quantity)
{
    return std::fabs(quantity) < 5e-5 ? std::nullopt : PriceOrNull(MicroOf(amount / quantity));
}

}  // namespace

ReferencePrices::ReferencePrices(const PriceBook& book, const std::vector<Place>& shown,
                                 const PricesAsked& asked)
    : objBook(book), objAsked(asked)
{
    TakeNewest();
    for (const Place& place : shown)
        dicKeys[book.KeyOf(place)] = {};
    for (auto& [place, key] : dicKeys) {
        key.receipts = CostsOf(dicReceipts, place);
        key.issues = CostsOf(dicIssues, place);
        key.ownAverage = AverageIn(place);
        key.balance = BalanceIn(place);
    }
    for (auto& [place, key] : dicKeys) {
        ForEachMet(book, place, dicKeys, [&averages = key.averages](const Key& met) {
            if (met.ownAverage)
                averages.insert(*met.ownAverage);
        });
        if (key.averages.empty())
            key.averages.insert(0);
    }
}

// By line number; the batch stands empty where it doesn't count.
void ReferencePrices::TakeNewest()
{
    for (const BookLine& line : objBook.Lines()) {
        Place place = objBook.KeyOf(line.place);
        if (!objBook.BatchCounts(line.place))
            place.batch = "";
        const auto take = [&](NewestCosts& costs, double cost) {
            if (cost == 0)
                return;
            Newest& newest = costs[place];
            if (line.number > newest.number)
                newest = {line.number, MicroOf(cost)};
        };
        take(dicReceipts, line.inCost.value_or(0));
        take(dicIssues, line.outCost.value_or(0));
    }
}

std::set<Micro> ReferencePrices::CostsOf(const NewestCosts& costs, const Place& key) const
{
    std::set<Micro> found;
    ForEachMet(objBook, key, costs, [&](const Newest& newest) { found.insert(newest.cost); });
    if (found.empty())
        found.insert(0);
    return found;
}

// Totals of quarters count beside their months.
PriceOrNull ReferencePrices::AverageIn(const Place& key) const
{
    double quantity = 0, amount = 0;
    ForEachMet(objBook, key, objBook.Summary(), [&](const std::vector<SummaryLine>& lines) {
        for (const SummaryLine& line : lines) {
            if (line.direct || line.month < objAsked.firstMonth || line.month > objAsked.lastMonth)
                continue;
            const Totals& totals = line.totals;
            switch (objAsked.average) {
                case AverageOf::Receipts: quantity += totals.inQuantity, amount += totals.inAmount; break;
                case AverageOf::Issues: quantity += totals.outQuantity, amount += totals.outAmount; break;
                case AverageOf::Balances: quantity += totals.quantity, amount += totals.amount; break;
            }
        }
    });
    return UnitPrice(amount, quantity);
}

// Of several balances the report takes the largest quantity and the largest amount.
PriceOrNull ReferencePrices::BalanceIn(const Place& key) const
{
    std::vector<double> quantities, amounts;
    ForEachMet(objBook, key, objBook.Summary(), [&](const std::vector<SummaryLine>& lines) {
        for (const SummaryLine& line : lines)
            if (!line.direct && !line.period && line.month == objAsked.balanceMonth) {
                quantities.push_back(line.totals.quantity);
                amounts.push_back(line.totals.amount);
            }
    });
    return quantities.empty() ? std::nullopt
                              : UnitPrice(std::ranges::max(amounts), std::ranges::max(quantities));
}

std::vector<RowPrices> ReferencePrices::Of(const Place& row) const
{
    std::vector<RowPrices> prices;
    ForEachMet(objBook, row, dicKeys, [&](const Key& key) {
        for (const Micro receipt : key.receipts)
            for (const Micro issue : key.issues)
                for (const Micro average : key.averages)
                    prices.push_back({receipt, issue, average});
    });
    return prices;
}

std::set<PriceOrNull> ReferencePrices::BalancesOf(const Place& row) const
{
    std::set<PriceOrNull> balances;
    ForEachMet(objBook, row, dicKeys, [&](const Key& key) {
        if (key.balance)
            balances.insert(key.balance);
    });
    if (balances.empty())
        balances.insert(std::nullopt);
    return balances;
}

}  // namespace kavelin::test
