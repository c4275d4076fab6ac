#include "database/odbc/ResultColumn.h"

namespace kavelin::odbc {

void ResultColumn::AddNull()
{
    switch (enmStorage) {
        case Storage::Bit:
        case Storage::Integer: AddWhole(0); break;
        case Storage::Real: AddReal(0); break;
        case Storage::Decimal: AddDecimal(Decimal()); break;
        case Storage::Date: AddDate(DateTime()); break;
        case Storage::Text:
        case Storage::Binary: AddText({}); break;
    }
    lstNulls.back() = true;
}

void ResultColumn::AddWhole(std::int64_t whole)
{
    lstNulls.push_back(false);
    lstWhole.push_back(whole);
}

void ResultColumn::AddReal(double real)
{
    lstNulls.push_back(false);
    lstReal.push_back(real);
}

void ResultColumn::AddDecimal(const Decimal& decimal)
{
    lstNulls.push_back(false);
    lstUnscaled.push_back(decimal.Unscaled());
    lstScales.push_back(static_cast<std::uint8_t>(decimal.Scale()));
}

void ResultColumn::AddDate(DateTime date)
{
    AddWhole(date.time_since_epoch().count());
}

void ResultColumn::AddText(std::string_view text)
{
    lstNulls.push_back(false);
    strTexts += text;
    lstEnds.push_back(strTexts.size());
}

Value ResultColumn::Get(std::size_t row) const
{
    if (lstNulls[row])
        return Value::Null();
    switch (enmStorage) {
        case Storage::Bit: return lstWhole[row] != 0;
        case Storage::Integer: return lstWhole[row];
        case Storage::Real: return lstReal[row];
        case Storage::Decimal: return Decimal(lstUnscaled[row], lstScales[row]);
        case Storage::Date: return DateTime(std::chrono::milliseconds(lstWhole[row]));
        case Storage::Text:
        case Storage::Binary: break;
    }
    const std::size_t begin = row == 0 ? 0 : lstEnds[row - 1];
    return std::string_view(strTexts).substr(begin, lstEnds[row] - begin);
}

}  // namespace kavelin::odbc
