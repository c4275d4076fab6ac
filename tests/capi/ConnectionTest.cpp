// The library's own connection, by name.
#include "capi/Account.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace kavelin::test {

namespace {

class LibraryConnection : public AccountApi {
  protected:
    // The first cell that the statement gives.
    void ReadCell(const char* select, Owned& cell)
    {
        kavelin_value text = kavelin_of_text(select);
        Owned rows;
        ASSERT_EQ(kavelin_call(Connection(), "OpenRecordset", &text, 1, rows.Place()), KAVELIN_OK)
            << Error().text;
        kavelin_value first = kavelin_of_integer(0);
        ASSERT_EQ(kavelin_call(rows->as.object, "Field", &first, 1, cell.Place()), KAVELIN_OK)
            << Error().text;
    }

    std::string TextOf(const char* select)
    {
        Owned cell;
        ReadCell(select, cell);
        return cell.Text();
    }

    kavelin_status Open(kavelin_object connection, const std::string& text)
    {
        kavelin_value argument = kavelin_of_text(text.c_str());
        return kavelin_call(connection, "Open", &argument, 1, nullptr);
    }
};

}  // namespace

TEST_F(LibraryConnection, GivesEachTypeAsItsKind)
{
    const struct {
        const char* value;
        kavelin_kind kind;
    } cases[] = {
        {"cast(null as int)", KAVELIN_NULL},
        {"cast(1 as bit)", KAVELIN_BOOLEAN},
        {"42", KAVELIN_INTEGER},
        {"cast(0.5 as float)", KAVELIN_DOUBLE},
        {"cast(1.5 as decimal(10,2))", KAVELIN_DECIMAL},
        {"cast('2008-07-31' as datetime)", KAVELIN_DATE},
        {"N'铜线'", KAVELIN_TEXT},
    };
    for (const auto& wanted : cases) {
        Owned cell;
        ReadCell((std::string("select ") + wanted.value).c_str(), cell);
        EXPECT_EQ(cell->kind, wanted.kind) << wanted.value;
    }
}

TEST_F(LibraryConnection, GivesDecimalsDatesAndTextsWhole)
{
    EXPECT_EQ(TextOf("select cast('99999999999999999999999999999999999999' as decimal(38,0))"),
              "99999999999999999999999999999999999999");
    EXPECT_EQ(TextOf("select cast(1.5 as decimal(10,2))"), "1.50");
    EXPECT_EQ(TextOf("select N'钢板𠮷🙂'"), "钢板𠮷🙂");
    Owned date;
    ReadCell("select cast('2008-07-31 14:30:00' as datetime)", date);
    EXPECT_EQ(date->as.date, 1217514600000);
}

TEST_F(LibraryConnection, WalksThroughRows)
{
    Run("create table T (n int, t nvarchar(20))");
    Run("insert into T values (1, N'一')");
    Run("insert into T values (2, null)");
    EXPECT_EQ(Query("select n, t from T order by n"), "1,一 2,");

    kavelin_value select = kavelin_of_text("select n, t from T order by n");
    Owned rows;
    ASSERT_EQ(kavelin_call(Connection(), "OpenRecordset", &select, 1, rows.Place()), KAVELIN_OK);
    const kavelin_object object = rows->as.object;
    Owned count;
    EXPECT_EQ(kavelin_get(object, "RecordCount", count.Place()), KAVELIN_OK);
    EXPECT_EQ(count->as.integer, 2);
    EXPECT_EQ(kavelin_call(object, "MoveNext", nullptr, 0, nullptr), KAVELIN_OK);
    EXPECT_EQ(kavelin_call(object, "MoveFirst", nullptr, 0, nullptr), KAVELIN_OK);
    kavelin_value name = kavelin_of_text("T");
    Owned cell;
    EXPECT_EQ(kavelin_call(object, "Field", &name, 1, cell.Place()), KAVELIN_OK);
    EXPECT_EQ(cell.Text(), "一");
    kavelin_value second = kavelin_of_integer(1);
    Owned type;
    EXPECT_EQ(kavelin_call(object, "FieldType", &second, 1, type.Place()), KAVELIN_OK);
    EXPECT_EQ(type.Text(), "nvarchar(20)");
    EXPECT_EQ(kavelin_call(object, "Close", nullptr, 0, nullptr), KAVELIN_OK);
}

TEST_F(LibraryConnection, TellsHowManyRowsABatchChanged)
{
    Run("create table T (n int)");
    kavelin_value batch = kavelin_of_text("insert into T values (1) insert into T values (2) delete from T");
    Owned changed;
    EXPECT_EQ(kavelin_call(Connection(), "Execute", &batch, 1, changed.Place()), KAVELIN_OK) << Error().text;
    EXPECT_EQ(changed->as.integer, 2);
}

TEST_F(LibraryConnection, FailsWithStatementAndPlace)
{
    kavelin_value batch = kavelin_of_text("select *\r\n  from NoTable");
    EXPECT_EQ(kavelin_call(Connection(), "Execute", &batch, 1, nullptr), KAVELIN_DATABASE);
    EXPECT_STREQ(Error().source, "Kavelin.Connection");
    EXPECT_NE(std::string(Error().text).find("NoTable"), std::string::npos) << Error().text;
    EXPECT_STREQ(Error().statement, "select *\r\n  from NoTable");
    EXPECT_EQ(Error().native_number, 208);
    EXPECT_STREQ(Error().sqlstate, "42S02");
    EXPECT_EQ(Error().line, 2);
    EXPECT_EQ(Error().column, 8);
}

TEST_F(LibraryConnection, FailsToOpenWhatIsNotThere)
{
    const kavelin_object another = Create("kavelin.connection");
    EXPECT_EQ(Open(another, "Embedded Account=/nowhere/a.kavelin"), KAVELIN_CONNECTION);
    EXPECT_STREQ(Error().source, "Kavelin.Connection");
    EXPECT_EQ(Open(another, "nonsense"), KAVELIN_CONNECTION);
    Owned state;
    EXPECT_EQ(kavelin_get(another, "State", state.Place()), KAVELIN_OK);
    EXPECT_EQ(state->as.integer, 0);
    EXPECT_EQ(Open(another, ConnectionText()), KAVELIN_OK);
    EXPECT_EQ(kavelin_get(another, "State", state.Place()), KAVELIN_OK);
    EXPECT_EQ(state->as.integer, 1);
    EXPECT_EQ(kavelin_call(another, "Close", nullptr, 0, nullptr), KAVELIN_OK);
    EXPECT_EQ(kavelin_get(another, "State", state.Place()), KAVELIN_OK);
    EXPECT_EQ(state->as.integer, 0);
}

TEST_F(LibraryConnection, ReachesOtherDatabasesOverOdbc)
{
    const std::string driver = "/usr/lib/x86_64-linux-gnu/odbc/libsqlite3odbc.so";
    if (!std::filesystem::exists(driver))
        GTEST_SKIP() << "SQLite's ODBC driver is not installed.";
    const kavelin_object another = Create("Kavelin.Connection");
    ASSERT_EQ(Open(another, "Driver=" + driver + ";Database=:memory:"), KAVELIN_OK) << Error().text;
    kavelin_value select = kavelin_of_text("select 'copper' as t");
    Owned rows;
    ASSERT_EQ(kavelin_call(another, "OpenRecordset", &select, 1, rows.Place()), KAVELIN_OK) << Error().text;
    kavelin_value name = kavelin_of_text("T");
    Owned cell;
    ASSERT_EQ(kavelin_call(rows->as.object, "Field", &name, 1, cell.Place()), KAVELIN_OK) << Error().text;
    EXPECT_EQ(cell.Text(), "copper");
}

TEST_F(LibraryConnection, RowsOutliveTheHandleOfTheirConnection)
{
    const kavelin_object another = Create("Kavelin.Connection");
    ASSERT_EQ(Open(another, ConnectionText()), KAVELIN_OK);
    kavelin_value select = kavelin_of_text("select 7 as n");
    Owned rows;
    ASSERT_EQ(kavelin_call(another, "OpenRecordset", &select, 1, rows.Place()), KAVELIN_OK);
    EXPECT_EQ(kavelin_release(another), KAVELIN_OK);
    Owned end;
    // The rows close with their connection; they can still be asked.
    EXPECT_EQ(Told(kavelin_get(rows->as.object, "EOF", end.Place())), "1 Kavelin: The record set is closed.");
}

}  // namespace kavelin::test
