#include "reports/PriceBook.h"

#include "frame/Statement.h"
#include "frame/Text.h"

#include <cmath>
#include <set>

namespace kavelin::test {

namespace {

// Methods that value each batch by itself.
const std::set<std::string> kBatchMethods = {"全月平均法", "移动平均法", "先进先出法", "后进先出法"};

using Cells = std::vector<std::string>;

std::optional<double> NumberOrNull(const std::string& text)
{
    return text == "NULL" ? std::nullopt : std::optional(std::stod(text));
}

double NumberOf(const std::string& text)
{
    return NumberOrNull(text).value_or(0);
}

// The five cells of PlaceColumns().
Place PlaceOf(const Cells& row, std::size_t first)
{
    return {row[first], row[first + 1], row[first + 2], row[first + 3], row[first + 4]};
}

}  // namespace

Micro MicroOf(double price)
{
    return std::llround(price * 1e6);
}

std::string TextOf(const Place& place)
{
    return place.item + "|" + place.warehouse + "|" + place.department + "|" + place.batch + "|" +
           place.freeItems;
}

std::string PlaceColumns()
{
    return "cInvCode, isnull(cWhCode,''), isnull(cDepCode,''), isnull(cBatchIA,''), ''" +
           Numbered(1, 10, "+isnull(cFree{},'')+'/'");
}

PriceBook::PriceBook(AccountReport& report)
{
    const std::string style =
        report.Table("select cValue from AccInformation where cSysID = 'IA' and cName = 'cValueStyle'")[0][0];
    blnByInventory = style == "按存货核算";
    blnByDepartment = style == "按部门核算";

    for (const Cells& row : report.Table(
             "select cInvCode, isnull(cValueType,''), bCheckBatch, isnull(iInvSPrice,0) from Inventory"))
        dicItems[row[0]] = {row[1], row[2] == "True", MicroOf(std::stod(row[3]))};
    for (const Cells& row : report.Table("select cWhCode, isnull(cWhValueStyle,'') from Warehouse"))
        dicWarehouseMethods[row[0]] = row[1];

    ReadLines(report);
    ReadSummary(report);
    CloseMonths();
}

void PriceBook::ReadLines(AccountReport& report)
{
    for (const Cells& row :
         report.Table("select " + PlaceColumns() +
                      ", AutoID, iMonth, cVouType, isnull(cBusType,''),"
                      " iAInQuantity, iAInPrice, iAOutQuantity, iAOutPrice, iInCost, iOutCost"
                      " from IA_Subsidiary where iYear = 2008 order by AutoID")) {
        BookLine& line = arrLines.emplace_back();
        line.place = PlaceOf(row, 0);
        line.number = std::stoi(row[5]);
        line.month = std::stoi(row[6]);
        line.vouType = row[7];
        line.busType = row[8];
        line.moved.inQuantity = NumberOf(row[9]);
        line.moved.inAmount = NumberOf(row[10]);
        line.moved.outQuantity = NumberOf(row[11]);
        line.moved.outAmount = NumberOf(row[12]);
        line.inCost = NumberOrNull(row[13]);
        line.outCost = NumberOrNull(row[14]);
    }
}

void PriceBook::ReadSummary(AccountReport& report)
{
    for (const Cells& row :
         report.Table("select " + PlaceColumns() +
                      ", iMonth, iDirect, iPeriod, iINum, iIMoney, iONum, iOMoney, iNum, iMoney"
                      " from IA_Summary where iYear = 2008")) {
        SummaryLine& line = dicSummary[PlaceOf(row, 0)].emplace_back();
        line.month = std::stoi(row[5]);
        line.direct = NumberOf(row[6]) != 0;
        line.period = NumberOf(row[7]) != 0;
        line.totals = {NumberOf(row[8]),  NumberOf(row[9]),  NumberOf(row[10]),
                       NumberOf(row[11]), NumberOf(row[12]), NumberOf(row[13])};
    }
}

void PriceBook::CloseMonths()
{
    for (const BookLine& line : arrLines) {
        if (!Counts(line))
            continue;
        Totals& month = dicYears[SummaryPlaceOf(line.place)][static_cast<std::size_t>(line.month)];
        month.inQuantity += line.moved.inQuantity;
        month.inAmount += line.moved.inAmount;
        month.outQuantity += line.moved.outQuantity;
        month.outAmount += line.moved.outAmount;
    }
    for (auto& [place, year] : dicYears) {
        double quantity = 0, amount = 0;
        for (Totals& month : year) {
            month.quantity = quantity += month.inQuantity - month.outQuantity;
            month.amount = amount += month.inAmount - month.outAmount;
        }
        year[0].inQuantity = year[0].inAmount = 0;  // an opening is a balance and no movement
        year[0].outQuantity = year[0].outAmount = 0;
    }
}

bool PriceBook::Counts(const BookLine& line)
{
    return line.vouType != "33" && Left(line.busType, 2) != "直运";
}

Micro PriceBook::ReferenceCost(const std::string& item) const
{
    return dicItems.at(item).referenceCost;
}

Place PriceBook::KeyOf(const Place& place) const
{
    Place key = {place.item, "", "", place.batch, place.freeItems};
    if (!blnByInventory)
        key.warehouse = place.warehouse;
    if (blnByDepartment)
        key.department = place.department;
    return key;
}

Place PriceBook::SummaryPlaceOf(const Place& place) const
{
    Place summary = KeyOf(place);
    if (blnByDepartment)
        summary.warehouse = "";
    if (!BatchCounts(place))
        summary.batch = "";
    return summary;
}

bool PriceBook::BatchCounts(const Place& place) const
{
    const auto item = dicItems.find(place.item);
    if (item == dicItems.end() || !item->second.keepsBatches)
        return false;
    if (blnByInventory)
        return kBatchMethods.contains(item->second.method);
    const auto method = dicWarehouseMethods.find(place.warehouse);
    return method != dicWarehouseMethods.end() && kBatchMethods.contains(method->second);
}

bool PriceBook::Meets(const Place& place, const Place& source) const
{
    const auto same = [](const std::string& a, const std::string& b) { return !a.empty() && a == b; };
    if (place.item != source.item || place.freeItems != source.freeItems)
        return false;
    if (BatchCounts(place) && place.batch != source.batch)
        return false;
    if (blnByInventory)
        return true;
    return blnByDepartment ? same(place.department, source.department)
                           : same(place.warehouse, source.warehouse);
}

}  // namespace kavelin::test
