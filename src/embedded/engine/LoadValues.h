// Values on their way into a table, made to be of the column's T-SQL type or refused.
#pragma once

#include "embedded/Catalog.h"
#include "embedded/SqlType.h"
#include "frame/Decimal.h"
#include "frame/Value.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kavelin::embedded {

// Why a value cannot be stored, with SQL Server's number.
class BadValue : public std::runtime_error {
  public:
    BadValue(int number, const std::string& message) : std::runtime_error(message), lngNumber(number) {}
    int Number() const { return lngNumber; }

  private:
    int lngNumber;
};

// A value other than null and empty as the content of a column of `type`; the type is of the function's kind.
// A text is read as T-SQL reads one that is assigned to the column. Throws BadValue.
bool AsBit(const Value& value, const SqlType& type);
std::int64_t AsInteger(const Value& value, const SqlType& type);  // of tinyint to bigint
double AsFloat(const Value& value, const SqlType& type);
Int128 AsUnscaled(const Value& value,
                  const SqlType& type);  // of money and decimal, rounded half away from zero
std::int64_t AsMicroseconds(const Value& value, const SqlType& type);  // of datetime, since 1970

// A number becomes its default text, a date "2008-07-31". Blanks beyond the length are cut. `facts` loses
// what the text does not have. The view lasts as long as `value` and `buffer`.
std::string_view AsText(const Value& value, const SqlType& type, TextFacts& facts, std::string& buffer);

}  // namespace kavelin::embedded
