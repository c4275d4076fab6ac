#include "host/definition/StockConditions.h"

#include "frame/Text.h"
#include "host/definition/StockMeasures.h"

#include <span>
#include <string_view>
#include <vector>

namespace kavelin::host {

namespace {

const std::vector<std::string>& ValuesOf(const FilterInput& input, std::string_view key)
{
    static const std::vector<std::string> none;
    for (const FieldInput& field : input.Fields())
        if (EqualsNoCase(field.field->key, key))
            return field.values;
    return none;
}

struct Comparison {
    std::string_view word, sign;
};
constexpr Comparison kBalances[] = {{"大于零", ">"}, {"小于零", "<"}, {"等于零", "="}};
constexpr Comparison kMovements[] = {{"入库大于出库", ">"}, {"入库小于出库", "<"}, {"入库等于出库", "="}};

// Several words of one field are alternatives.
std::string AnyOf(const std::vector<std::string>& words, std::span<const Comparison> comparisons,
                  const std::string& left, const std::string& right)
{
    std::string any;
    for (const std::string& word : words)
        for (const Comparison& comparison : comparisons)
            if (word == comparison.word)
                any += (any.empty() ? "" : " or ") + left + std::string(comparison.sign) + right;
    return any;
}

std::string BusinessState(const std::vector<std::string>& words)
{
    const std::string received = StockLinesReceived();
    const std::string issued = StockLinesIssued();
    const struct {
        std::string_view word;
        std::string condition;
    } states[] = {
        {"发生业务", received + "+" + issued + ">0"},
        {"出库未入库", issued + ">0 and " + received + "=0"},
        {"入库未出库", received + ">0 and " + issued + "=0"},
        {"未发生", received + "+" + issued + "=0"},
    };
    for (const std::string& word : words)
        for (const auto& state : states)
            if (word == state.word)
                return state.condition;
    return "";
}

void AddCondition(std::string& having, const std::string& condition)
{
    if (!condition.empty())
        having += (having.empty() ? "(" : " and (") + condition + ")";
}

}  // namespace

std::string StockGroupCondition(const FilterInput& input)
{
    const StockAmounts closing = StockClosing();
    std::string having;
    AddCondition(having, AnyOf(ValuesOf(input, "EndNum"), kBalances, StockQuantity(closing.quantity), "0"));
    AddCondition(having, AnyOf(ValuesOf(input, "EndPrice"), kBalances, StockMoney(closing.money), "0"));
    AddCondition(having,
                 AnyOf(ValuesOf(input, "incompareout"), kMovements, StockQuantity(StockSide("In").quantity),
                       StockQuantity(StockSide("Out").quantity)));
    AddCondition(having, BusinessState(ValuesOf(input, "busEstate")));
    return having;
}

}  // namespace kavelin::host
