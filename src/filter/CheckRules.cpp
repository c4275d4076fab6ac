#include "filter/CheckRules.h"

#include "frame/Decimal.h"
#include "frame/FilterWalk.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/TempTables.h"
#include "frame/Text.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string_view>

namespace kavelin {

namespace {

std::string TrimmedText(const Value& value)
{
    return std::string(Trim(FilterText(value)));
}

std::string From(FilterItem& item)
{
    return TrimmedText(item.varValue());
}

std::string To(FilterItem& item)
{
    return TrimmedText(item.varValue2());
}

std::int32_t YearOf(const Value& month)
{
    return ToInt32(Value(Split(TrimmedText(month), ".").front()));
}

bool IsInClass(const CheckRun& run, const std::string& code)
{
    return code.empty() || IsInvInClass(code, run.inventoryClass);
}

bool ExistsIfAny(const char* table, const char* field, const std::string& value)
{
    return value.empty() || RecordExists(table, field, value);
}

// A number without its decimals, half a unit rounded away from zero; any other text as it is.
std::string FormatWhole(const std::string& text)
{
    const auto number = Decimal::FromText(text);
    if (!number)
        return text;
    char whole[64];
    std::snprintf(whole, sizeof whole, "%.0f", std::round(number->ToDouble()));
    return whole;
}

}  // namespace

// --- price analysis ---

bool StaysInOneYear(CheckRun& /*run*/, FilterItem& item)
{
    return YearOf(item.varValue()) == YearOf(item.varValue2());
}

// --- estimate balance ---

bool HasValue(CheckRun& /*run*/, FilterItem& item)
{
    return !From(item).empty();
}

bool TakesTheDialogsYear(CheckRun& run, FilterItem& item)
{
    if (From(item).empty())
        item.SetvarValue(run.state.strCurYear);
    return true;
}

// --- receipt-issue-balance summary ---

bool RemembersClass(CheckRun& run, FilterItem& item)
{
    run.inventoryClass = From(item);
    return true;
}

bool BothAreInClass(CheckRun& run, FilterItem& item)
{
    return IsInClass(run, From(item)) && IsInClass(run, To(item));
}

bool HasAtMostFourCharacters(CheckRun& /*run*/, FilterItem& item)
{
    return Length(From(item)) <= 4;
}

bool AsksForMoreThanDirectBusiness(CheckRun& /*run*/, FilterItem& item)
{
    const std::string states = From(item);
    const auto has = [&](const char* state) { return states.find(state) != states.npos; };
    return !has("直运单据") || has("已记账单据") || has("未记账单据");
}

bool ReadsViewSelector(CheckRun& run, FilterItem& /*item*/)
{
    const auto arguments = run.filter.ContextArgs();
    if (arguments->Count() > 0)
        arguments->Item(1);
    return true;
}

// --- goods-in-transit summary ---

bool IsSaleType(CheckRun& /*run*/, FilterItem& item)
{
    constexpr std::string_view kSaleTypes[] = {"分期收款", "委托代销", "普通销售", "全部"};
    return std::ranges::find(kSaleTypes, From(item)) != std::end(kSaleTypes);
}

bool FromModelExists(CheckRun& /*run*/, FilterItem& item)
{
    return ExistsIfAny("Inventory", "cInvStd", From(item));
}

bool ToModelExists(CheckRun& /*run*/, FilterItem& item)
{
    return ExistsIfAny("Inventory", "cInvStd", To(item));
}

bool UnitExists(CheckRun& /*run*/, FilterItem& item)
{
    return ExistsIfAny("ComputationUnit", "cComunitCode", From(item));
}

bool IsUnitNumber(CheckRun& /*run*/, FilterItem& item)
{
    const std::string value = From(item);
    return value.empty() || (Length(FormatWhole(value)) <= 4 && value != "-");
}

std::string SelectClassOfItem(const std::string& code)
{
    return "select cinvccode from inventory where cinvcode=N'" + code + "'";
}

bool IsInvInClass(const std::string& code, const std::string& inventoryClass)
{
    const auto rows = Existing(ModPub().gcnnAccount)
                          .OpenRecordset(SelectClassOfItem(code), CursorLocation::Client,
                                         CursorType::ForwardOnly, LockType::ReadOnly);
    const bool belongs =
        inventoryClass.empty() || rows->Eof() || FilterText(rows->Field("cinvccode")) == inventoryClass;
    rows->Close();
    return belongs;
}

}  // namespace kavelin
