#include "price/AnalysisFilter.h"

#include "frame/FilterWalk.h"
#include "frame/ModPub.h"
#include "frame/PermissionColumns.h"
#include "frame/Text.h"
#include "frame/VouTypes.h"
#include "price/AnalysisCondition.h"

#include <algorithm>
#include <string_view>

namespace kavelin {

namespace {

// Handled here, and left to the filter's own where.
constexpr std::int32_t kHandledHere = 0;
constexpr std::int32_t kFilterToken = 1;

struct Field {
    std::string name, from, to;
    bool range, several;

    bool IsEmpty() const { return from.empty() && to.empty(); }
};

Field ReadField(FilterItem& item)
{
    item.SetLngGrouptoken(kHandledHere);
    Field field;
    field.name = item.Name();
    field.from = FilterText(item.varValue());
    field.to = FilterText(item.varValue2());
    field.range = item.RangeInput();
    field.several = item.IsMultSel();
    return field;
}

// ---- the forms of a condition, "" for a field without a value

std::string Between(const Field& field, const std::string& before)
{
    std::string where;
    if (!field.from.empty())
        where += before + field.name + ">= N'" + field.from + "'";
    if (!field.to.empty())
        where += before + field.name + "<= N'" + field.to + "'";
    return where;
}

// A value in the second box alone asks for the empty text.
std::string BetweenOrEqual(const Field& field, const std::string& before)
{
    if (field.IsEmpty())
        return "";
    return field.range ? Between(field, before) : before + field.name + "= N'" + field.from + "'";
}

std::string InList(const Field& field, const std::string& before)
{
    return field.from.empty() ? "" : before + field.name + " in (" + QuoteCodeList(field.from) + ") ";
}

std::string InRange(const Field& field)
{
    return Between(field, " And ");
}

std::string InRangeOrCodes(const Field& field)
{
    return field.range ? InRange(field) : InList(field, " and ");
}

std::string InCodes(const Field& field)
{
    return InList(field, " And ");
}

std::string OfColumn(const Field& field)
{
    return BetweenOrEqual(field, " And ");
}

std::string InSelection(const Field& field)
{
    return field.several ? InCodes(field) : OfColumn(field);
}

std::string OfInventory(const Field& field)
{
    return BetweenOrEqual(field, " And inventory.");
}

// ---- which form a key has

enum class Level { Any, Voucher };  // Voucher: only lines have what is asked for, summary rows don't

struct Key {
    std::string_view name;  // "*" at its end: all names that begin so
    Level level;
    std::string (*condition)(const Field& field);
};

// With regard to case, in this order. The last one stands for all other names.
// clang-format off
constexpr Key kKeys[] = {
    {"dVouDate",      Level::Voucher, InRange       },
    {"dKeepDate",     Level::Voucher, InRange       },
    {"cCCCode",       Level::Voucher, InRangeOrCodes},
    {"cVCCode",       Level::Voucher, InRangeOrCodes},
    {"cCusCode",      Level::Voucher, InRangeOrCodes},
    {"cVenCode",      Level::Voucher, InRangeOrCodes},
    {"cAccDep",       Level::Voucher, InRangeOrCodes},
    {"cInvCCode",     Level::Any,     InSelection   },
    {"cInvCode",      Level::Any,     InSelection   },
    {"cDepCode",      Level::Any,     InSelection   },
    {"cWhCode",       Level::Any,     InSelection   },
    {"cRdCode",       Level::Voucher, InCodes       },
    {"cproordercode", Level::Voucher, InRange       },
    {"cinvdefine*",   Level::Voucher, OfInventory   },
    {"cdefine*",      Level::Voucher, InRange       },
    {"*",             Level::Any,     OfColumn      },
};
// clang-format on

const Key& KeyOf(const std::string& name)
{
    return *std::ranges::find_if(kKeys, [&](const Key& key) {
        return key.name.ends_with('*') ? name.starts_with(key.name.substr(0, key.name.size() - 1))
                                       : name == key.name;
    });
}

void TakeCondition(const Field& field, AnalysisConditions& conditions, ConditionValues& values)
{
    const Key& key = KeyOf(field.name);
    const std::string condition = key.condition(field);
    conditions.strWhere += condition;
    if (key.level == Level::Voucher && !condition.empty())
        values.blnVoucherLevel = true;
}

void TakeMonth(const Field& field, AnalysisConditions& conditions, ConditionValues& values)
{
    values.strMonth = field.from;
    if (field.from.empty())
        return;
    const YearAndMonth month = SplitMonth(field.from);
    conditions.strWhere += " and iYear =  " + month.year + " and  iMonth = " + month.month;
}

void TakeItem(FilterItem& item, AnalysisConditions& conditions, ConditionValues& values)
{
    const Field field = ReadField(item);

    if (field.name == "iMonth")
        TakeMonth(field, conditions, values);
    else if (field.name == "ShowType")
        values.strShowType = field.from;
    else if (field.name == "Base Price")
        values.strBasePrice = field.from;
    else if (field.name == "avgPrice")
        values.strAvgFrom = field.from, values.strAvgTo = field.to;
    else if (field.name == "avgPrices")
        values.strAvgKind = field.from;
    else if (field.name == "DiffRatio")
        values.dblDiffRatio = field.from.empty() ? 0 : ToDouble(Value(field.from));
    else if (field.name == "cVouType")
        conditions.strVouTypes = QuoteCodeList(field.from);
    else if (field.name == "cBusType")
        conditions.strBusTypes = BuildBusTypeList(field.from);
    else if (field.name == "cBatchia")
        item.SetLngGrouptoken(kFilterToken);
    else
        TakeCondition(field, conditions, values);
}

std::string_view WithoutLeadingBlanks(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

}  // namespace

std::string BuildBusTypeList(const std::string& strList)
{
    if (strList.empty())
        return "";
    std::string list;
    for (const std::string& part : Split(strList, "\t")) {
        const std::string shown(WithoutLeadingBlanks(part));
        list += (list.empty() ? "N'" : ",N'") + Resources().GetEnumCode("IA.Bustype", shown) + "'";
    }
    return ReplaceAll(list, "N'委托代销'", "N'委托代销',N'委托'");
}

AnalysisConditions ReadAnalysisFilter(ReportFilterObject& objFilter)
{
    AnalysisConditions conditions;
    ConditionValues values;
    conditions.strWhere = BuildPermissionClauses(PermissionColumnsOf("clsIaAnalysis"));

    ForEachItem(objFilter, [&](FilterItem& item) { TakeItem(item, conditions, values); });
    if (!conditions.strVouTypes.empty() || !conditions.strBusTypes.empty())
        values.blnVoucherLevel = true;

    const std::string left = objFilter.GetWhereWithToken(kFilterToken);
    if (!left.empty())
        conditions.strWhere += " AND " + left;
    conditions.strConditionXml = WriteCondition(values);
    return conditions;
}

}  // namespace kavelin
