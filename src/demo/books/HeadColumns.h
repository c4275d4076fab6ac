// What a head, its project and its goods show in the columns that documents and ledgers share.
#pragma once

#include "demo/RowValues.h"
#include "demo/books/Document.h"
#include "frame/Value.h"

#include <cstdint>
#include <string_view>

namespace kavelin::demo {

inline Value CodeOrNull(const Party* party)
{
    return party ? Value(party->code) : Value::Null();
}

inline Value ColourOrNull(const Place* place)
{
    return place ? TextOrNull(place->colour) : Value::Null();
}

inline Value BatchOrNull(const Place* place)
{
    return place ? TextOrNull(place->batch) : Value::Null();
}

// Each of these is Null for 0.
inline Value NumberOrNull(std::int32_t number)
{
    return number == 0 ? Value::Null() : Value(number);
}

inline Value QuantityOrNull(std::int64_t quantity)
{
    return quantity == 0 ? Value::Null() : Quantity(quantity);
}

inline Value MoneyOrNull(std::int64_t amount)
{
    return amount == 0 ? Value::Null() : Money(amount);
}

// Amount by quantity to four decimals; Null without a quantity or an amount.
Value UnitCostOrNull(std::int64_t amount, std::int64_t quantity);

// The code of the order behind the document, if it is of that kind: "PO-08-000042".
Value OrderOrNull(const Document& document, std::string_view prefix);

Value ProjectClass(const Document& document);
Value ProjectClassName(const Document& document);
Value ProjectName(const Document& document);

}  // namespace kavelin::demo
