#include "demo/books/StockLedger.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace kavelin::demo {

namespace {

constexpr std::string_view kOpening = "34";
constexpr std::string_view kOpenEstimate = "33";

}  // namespace

StockLedger::StockLedger(const Companions& companions, RowSink& sink)
    : objWith(companions), objTable(sink), arrTurns(companions.keys.All().size())
{
    for (const CostKey& key : objWith.keys.All())
        arrValuations.push_back(MakeValuation(key.method, key.item->price));
}

std::int32_t StockLedger::AddRow(StockRow row, const Document& document)
{
    if (arrHeads.empty() || document.id == 0 || arrHeads.back().id != document.id)
        arrHeads.push_back(document);
    row.head = static_cast<std::int32_t>(arrHeads.size()) - 1;
    arrRows.push_back(row);
    ++lngPosted;
    return static_cast<std::int32_t>(arrRows.size()) - 1;
}

std::int32_t StockLedger::Post(const StockEntry& entry)
{
    const Document& document = entry.document;
    StockRow row;
    row.voucherType = entry.voucherType;
    row.sourceType = entry.sourceType;
    row.businessType =
        entry.businessType.empty() && document.type ? document.type->businessType : entry.businessType;
    row.place = entry.place;
    row.item = entry.place ? entry.place->item : entry.item;
    row.day = entry.day;
    row.line = entry.line;
    row.settlement = entry.settlement;
    row.key = entry.place ? objWith.keys.Of(*entry.place) : objWith.keys.OfDirect(*entry.item);
    row.planned = IsPlanned(objWith.keys.All()[static_cast<std::size_t>(row.key)].method);
    row.quantity = entry.quantity.value_or(0);
    row.materialFee = entry.materialFee;
    row.processFee = entry.processFee;
    row.flag = static_cast<std::int8_t>(entry.flag);
    row.receipt = entry.receipt;
    row.balanced = !entry.revaluesOnly;

    row.costOf = entry.costOf;
    if (row.costOf != kNoRow) {
        StockRow& source = arrRows.at(static_cast<std::size_t>(row.costOf));
        const std::int64_t weight =
            std::max<std::int64_t>(std::llabs(AmountOf(row.quantity, row.item->price)), 1);
        row.part.before = source.sharers;
        row.part.after = source.sharers += weight;
    } else if (entry.cost || entry.receipt || row.quantity == 0 || !row.balanced) {
        row.known = true;
        row.cost = entry.cost ? *entry.cost : AmountOf(row.quantity, row.item->price);
    }

    row.postsLine = document.type && entry.line != 0 && entry.voucherType == document.type->ledgerType;
    if (row.postsLine)
        objWith.documents.Post(entry.line, row.balanced ? entry.day : document.day);
    return AddRow(row, document);
}

// A counting sort, which keeps the order of posting within a key.
void StockLedger::SortByKey()
{
    arrBegin.assign(arrValuations.size() + 1, 0);
    for (const StockRow& row : arrRows)
        ++arrBegin[static_cast<std::size_t>(row.key) + 1];
    for (std::size_t i = 1; i < arrBegin.size(); ++i)
        arrBegin[i] += arrBegin[i - 1];

    arrByKey.resize(arrRows.size());
    arrPlaceInKey.resize(arrRows.size());
    std::vector<std::int32_t> next(arrValuations.size());
    for (std::size_t i = 0; i < arrRows.size(); ++i) {
        const auto key = static_cast<std::size_t>(arrRows[i].key);
        arrPlaceInKey[i] = next[key]++;
        arrByKey[static_cast<std::size_t>(arrBegin[key] + arrPlaceInKey[i])] = static_cast<std::int32_t>(i);
    }
}

void StockLedger::CostRows()
{
    SortByKey();
    arrTurns.assign(arrTurns.size(), Turn::Waiting);
    for (std::size_t key = 0; key < arrTurns.size(); ++key)
        CostKeyRows(static_cast<std::int32_t>(key));
}

// Goods that come from another key cost what they did there, so that key has its turn before. Keys that give
// goods to each other can't both; then those that come back cost the price.
void StockLedger::CostKeyRows(std::int32_t key)
{
    const auto at = static_cast<std::size_t>(key);
    if (arrTurns[at] != Turn::Waiting)
        return;
    arrTurns[at] = Turn::Begun;
    const std::span mine(arrByKey.begin() + arrBegin[at], arrByKey.begin() + arrBegin[at + 1]);
    for (const std::int32_t number : mine)
        if (const std::int32_t source = arrRows[static_cast<std::size_t>(number)].costOf; source != kNoRow)
            CostKeyRows(arrRows[static_cast<std::size_t>(source)].key);

    std::vector<Movement> movements(mine.size());
    for (std::size_t i = 0; i < mine.size(); ++i) {
        const StockRow& row = arrRows[static_cast<std::size_t>(mine[i])];
        Movement& movement = movements[i];
        movement.receipt = row.receipt;
        movement.known = row.known;
        movement.quantity = row.quantity;
        movement.cost = row.cost;
        if (!row.balanced) {  // has its place here, but moves nothing
            movement = {};
            movement.known = true;
        } else if (row.costOf != kNoRow) {
            const StockRow& source = arrRows[static_cast<std::size_t>(row.costOf)];
            movement.part = row.part;
            movement.part.total = source.sharers;
            if (source.key == key && source.balanced) {
                movement.source = arrPlaceInKey[static_cast<std::size_t>(row.costOf)];
                movements[static_cast<std::size_t>(movement.source)].shared = true;
            } else {
                movement.known = true;
                movement.cost = CostFromElsewhere(row);
            }
        }
    }
    arrValuations[at]->Cost(movements);

    for (std::size_t i = 0; i < mine.size(); ++i) {
        StockRow& row = arrRows[static_cast<std::size_t>(mine[i])];
        row.costed = true;
        if (row.balanced) {
            row.cost = movements[i].cost;
            row.difference = movements[i].difference;
        } else if (row.planned) {
            row.difference = row.cost - AmountOf(row.quantity, row.item->price);
        }
        if (row.postsLine)
            objWith.documents.SetCost(row.line, row.cost);
    }
    arrTurns[at] = Turn::Done;
}

std::int64_t StockLedger::CostFromElsewhere(const StockRow& row) const
{
    const StockRow& source = arrRows[static_cast<std::size_t>(row.costOf)];
    if (!source.costed)
        return AmountOf(row.quantity, row.item->price);
    CostPart part = row.part;
    part.total = source.sharers;
    return part.Of(source.cost);
}

std::int64_t StockLedger::CostOf(std::int32_t row) const
{
    const StockRow& costed = arrRows.at(static_cast<std::size_t>(row));
    if (!costed.costed)
        throw std::logic_error("A cost is asked for before the month is costed.");
    return costed.cost;
}

Balance StockLedger::Excess(std::int32_t key) const
{
    return arrValuations[static_cast<std::size_t>(key)]->Excess();
}

void StockLedger::PostTakeOff(std::int32_t key, const Balance& excess, const Document& document,
                              std::int32_t line, std::chrono::sys_days day)
{
    const CostKey& goods = objWith.keys.All()[static_cast<std::size_t>(key)];
    StockRow row;
    row.voucherType = document.type->ledgerType;
    row.businessType = document.type->businessType;
    row.place = goods.place;
    row.item = goods.item;
    row.day = day;
    row.line = line;
    row.key = key;
    row.costOf = kNoRow;
    row.receipt = false;
    row.known = row.costed = row.postsLine = true;
    row.planned = IsPlanned(goods.method);
    row.difference = excess.difference;
    row.cost = excess.amount + excess.difference;
    arrValuations[static_cast<std::size_t>(key)]->TakeOff(excess);
    objWith.documents.Post(line, day);
    objWith.documents.SetCost(line, row.cost);
    AddRow(row, document);
}

void StockLedger::Write(int month)
{
    auto autoId = static_cast<std::int32_t>(lngPosted - static_cast<std::int64_t>(arrRows.size()));
    for (const StockRow& row : arrRows) {
        ++autoId;
        const Document& head = arrHeads[static_cast<std::size_t>(row.head)];
        objTable.Write({autoId, month, row, head, objWith.vouchers.OfCost(head, row.voucherType)});
        objWith.sample.Look(autoId, row);
        if (row.balanced)
            objWith.summary.Add(row.key, month, row.receipt, row.quantity, row.Amount(), row.difference);
        if (!row.planned && row.voucherType != kOpening && row.voucherType != kOpenEstimate)
            objWith.standards.AddStock(autoId, head, row.voucherType, *row.item, row.quantity, row.cost);
    }
    arrRows.clear();
    arrHeads.clear();
}

}  // namespace kavelin::demo
