#include "database/odbc/CellReader.h"

#include <gtest/gtest.h>

#include <sql.h>
#include <sqlext.h>

#include <string>

namespace kavelin::odbc {
namespace {

ColumnPlan PlanOf(Storage storage)
{
    ColumnPlan plan;
    plan.storage = storage;
    return plan;
}

Value ReadDecimal(const std::string& text)
{
    ResultColumn column(Storage::Decimal);
    return AddCell(column, PlanOf(Storage::Decimal), text.data(), text.size()) ? column.Get(0) : Value();
}

TEST(AddCell, TakesDecimalsHoweverADriverWritesThem)
{
    EXPECT_EQ(ReadDecimal("12.50"), Value(Decimal(1250, 2)));
    EXPECT_EQ(ReadDecimal("-.0001"), Value(Decimal(-1, 4)));
    EXPECT_EQ(ReadDecimal(".5"), Value(Decimal(5, 1)));
    EXPECT_EQ(ReadDecimal("0"), Value(Decimal(0, 0)));
}

TEST(AddCell, RefusesWhatIsNoDecimalOf38Digits)
{
    for (const std::string text : {"", "NaN", "1e5", "123456789012345678901234567890123456789", "1,5"})
        EXPECT_EQ(ReadDecimal(text), Value()) << text;
}

TEST(AddCell, RoundsADaysFractionsToMilliseconds)
{
    using namespace std::chrono;
    const struct {
        SQLUINTEGER nanoseconds;
        milliseconds rounded;
    } cases[] = {
        {0, 0ms}, {3'333'333, 3ms}, {996'666'666, 997ms}, {997'000'000, 997ms}, {999'999'900, 1000ms}};
    for (const auto& c : cases) {
        const SQL_TIMESTAMP_STRUCT stamp{2008, 7, 31, 23, 59, 59, c.nanoseconds};
        ResultColumn column(Storage::Date);
        EXPECT_TRUE(AddCell(column, PlanOf(Storage::Date), &stamp, sizeof stamp));
        EXPECT_EQ(column.Get(0), Value(DateTime(sys_days(2008y / 7 / 31) + 23h + 59min + 59s + c.rounded)));
    }
}

TEST(AddCell, WritesBinaryDataAsTransactSqlDoes)
{
    ResultColumn column(Storage::Binary);
    const std::string bytes("\x00\xAF\x10", 3);
    AddCell(column, PlanOf(Storage::Binary), bytes.data(), bytes.size());
    AddCell(column, PlanOf(Storage::Binary), "", 0);
    EXPECT_EQ(column.Get(0), Value("0x00AF10"));
    EXPECT_EQ(column.Get(1), Value("0x"));
}

TEST(AddCell, TextMayHoldZeros)
{
    ResultColumn column(Storage::Text);
    const std::u16string text(u"a\0b", 3);
    AddCell(column, PlanOf(Storage::Text), text.data(), text.size() * sizeof(char16_t));
    EXPECT_EQ(column.Get(0), Value(std::string("a\0b", 3)));
}

TEST(ResultColumn, KeepsNullsBetweenValuesOfEveryKind)
{
    ResultColumn text(Storage::Text), decimal(Storage::Decimal), bit(Storage::Bit);
    text.AddText("a");
    text.AddNull();
    text.AddText("");
    text.AddText("b");
    EXPECT_EQ(text.Get(0), Value("a"));
    EXPECT_TRUE(text.Get(1).IsNull());
    EXPECT_EQ(text.Get(2), Value(""));
    EXPECT_EQ(text.Get(3), Value("b"));
    decimal.AddNull();
    decimal.AddDecimal(Decimal(5, 1));
    EXPECT_TRUE(decimal.Get(0).IsNull());
    EXPECT_EQ(decimal.Get(1), Value(Decimal(5, 1)));
    bit.AddWhole(1);
    EXPECT_EQ(bit.Get(0), Value(true));
}

}  // namespace
}  // namespace kavelin::odbc
