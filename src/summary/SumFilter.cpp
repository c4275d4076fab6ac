#include "summary/SumFilter.h"

#include "frame/FilterWalk.h"
#include "frame/Guards.h"
#include "frame/Text.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace kavelin {

namespace {

constexpr std::int32_t kHandledHere = 1;

bool Holds(const std::string& text, std::string_view word)
{
    return text.find(word) != std::string::npos;
}

std::int16_t NumberOf(const Value& value)
{
    return FilterText(value).empty() ? std::int16_t{0} : ToInt16(value);
}

// ---- choices that are told in words, of which a text may hold several

// Three words of one scale and what each set of them stands for, at the position above * 4 + equal * 2 +
// below; a text without any of them changes nothing.
template <class T>
struct Scale {
    std::string_view above, equal, below;
    T ofEmptyText;
    std::array<std::optional<T>, 8> meanings;
};

constexpr Scale<std::int16_t> kBalance = {
    "大于零", "等于零", "小于零", 6, {std::nullopt, 4, 2, 3, 0, 5, 1, 6}};

constexpr Scale<std::string_view> kComparison = {
    "入库大于出库", "入库等于出库", "入库小于出库", "", {std::nullopt, "<", "=", "<=", ">", "<>", ">=", ""}};

template <class T, class Target>
void TakeScale(const Scale<T>& scale, const std::string& text, Target& target)
{
    if (text.empty()) {
        target = scale.ofEmptyText;
        return;
    }
    const int words =
        Holds(text, scale.above) * 4 + Holds(text, scale.equal) * 2 + Holds(text, scale.below) * 1;
    if (const auto& meaning = scale.meanings[static_cast<std::size_t>(words)])
        target = *meaning;
}

struct BusinessWord {
    std::string_view word;
    std::int16_t code;
};

// All of it, with movement, issued and not received, received and not issued, without movement. The last one
// that the text holds is taken.
constexpr BusinessWord kBusinessWords[] = {
    {"所有业务", 0}, {"发生业务", 1}, {"出库未入库", 2}, {"入库未出库", 3}, {"未发生", 4},
};

// ---- keys

void TakeWarehouses(FilterItem& item, SumConditions& conditions)
{
    conditions.strWhCode = FilterText(item.varValue());
    if (!conditions.strWhCode.empty())
        conditions.strWhCode = "N'" + ReplaceAll(conditions.strWhCode, "\t", "',N'") + "'";
}

void TakeBusiness(FilterItem& item, SumConditions& conditions)
{
    const std::string text = FilterText(item.varValue());
    if (text.empty())
        conditions.BlnIfOcc = 0;
    for (const BusinessWord& business : kBusinessWords)
        if (Holds(text, business.word))
            conditions.BlnIfOcc = business.code;
}

// Switches on and never off: a choice of an earlier run of the same object stays.
void TakeStates(FilterItem& item, SumConditions& conditions)
{
    const std::string text = FilterText(item.varValue());
    if (text.empty() || Holds(text, "已记账单据"))
        conditions.BlnAccounted = true;
    if (text.empty() || Holds(text, "未记账单据"))
        conditions.BlnUnAccounted = true;
    if (text.empty() || Holds(text, "直运单据"))
        conditions.bytDirect = 1;
}

void TakeInventories(FilterItem& item, SumConditions& conditions)
{
    conditions.strInvCode(0) = FilterText(item.varValue());
    conditions.strInvCode(1) = FilterText(item.varValue2());
}

void TakeDates(FilterItem& item, SumConditions& conditions)
{
    conditions.varDate(0) = item.varValue();
    conditions.varDate(1) = item.varValue2();
}

template <std::string SumConditions::*Member>
void TakeText(FilterItem& item, SumConditions& conditions)
{
    conditions.*Member = FilterText(item.varValue());
}

template <std::int16_t SumConditions::*Member>
void TakeNumber(FilterItem& item, SumConditions& conditions)
{
    conditions.*Member = NumberOf(item.varValue());
}

template <std::int16_t SumConditions::*Member>
void TakeBalance(FilterItem& item, SumConditions& conditions)
{
    TakeScale(kBalance, FilterText(item.varValue()), conditions.*Member);
}

void TakeComparison(FilterItem& item, SumConditions& conditions)
{
    TakeScale(kComparison, FilterText(item.varValue()), conditions.strCompareQuantity);
}

void TakeFreeItems(FilterItem& item, SumConditions& conditions)
{
    conditions.bytFree = FilterText(item.varValue()) == kYes ? 1 : 0;
}

// Any other key is a column, compared as text. A value in the second box alone is an equality with the empty
// text.
void TakeColumn(const std::string& name, FilterItem& item, SumConditions& conditions)
{
    const std::string from = FilterText(item.varValue());
    const std::string to = FilterText(item.varValue2());
    const bool range = item.RangeInput();
    if (from.empty() && to.empty())
        return;
    if (!range)
        conditions.strDefineSub += " And " + name + "= N'" + from + "'";
    if (range && !from.empty())
        conditions.strDefineSub += " And " + name + ">= N'" + from + "'";
    if (range && !to.empty())
        conditions.strDefineSub += " And " + name + "<= N'" + to + "'";
}

struct SumKey {
    std::string_view name;
    void (*take)(FilterItem& item, SumConditions& conditions);
};

// clang-format off
constexpr SumKey kKeys[] = {
    {"cInvCCode",      TakeText<&SumConditions::strInvCCode>},
    {"cinvcode",       TakeInventories},
    {"cwhcode",        TakeWarehouses},
    {"dVouDate",       TakeDates},
    {"cItemCode",      TakeText<&SumConditions::itemCode>},
    {"cItem_Class",    TakeText<&SumConditions::itemCls>},
    {"cAssComUnitNum", TakeNumber<&SumConditions::cAssComUnitNum>},
    {"rdGrade",        TakeNumber<&SumConditions::intRdGrade>},
    {"EndNum",         TakeBalance<&SumConditions::IntThanZero>},
    {"EndPrice",       TakeBalance<&SumConditions::IntThanZeroA>},
    {"incompareout",   TakeComparison},
    {"busEstate",      TakeBusiness},
    {"vouEstate",      TakeStates},
    {"byteFree",       TakeFreeItems},
};
// clang-format on

void TakeItem(FilterItem& item, SumConditions& conditions)
{
    item.SetLngGrouptoken(kHandledHere);
    const std::string name = item.Name();
    for (const SumKey& key : kKeys) {
        if (key.name == name) {
            key.take(item, conditions);
            return;
        }
    }
    TakeColumn(name, item, conditions);
}

}  // namespace

bool TranslateSummaryFilter(ReportFilterObject& objFilter, SumConditions& conditions)
{
    return ShowErrors([&] {
        conditions.strDefineSub = " 1=1 ";
        conditions.blnWhSum = false;
        ForEachItem(objFilter, [&](FilterItem& item) { TakeItem(item, conditions); });
        // The dialog gives the bare names of the inventory's user fields.
        conditions.strDefineSub = ReplaceAll(conditions.strDefineSub, "cInvDefine", "Inventory.cInvDefine");
    });
}

}  // namespace kavelin
