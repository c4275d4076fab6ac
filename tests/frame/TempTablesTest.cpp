#include "frame/TempTables.h"

#include "frame/Errors.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

constexpr Guid kGuid = {0x6F, 0x96, 0x19, 0xFF, 0x8B, 0x86, 0xD0, 0x11,
                        0xB4, 0x2D, 0x00, 0xC0, 0x4F, 0xC9, 0x64, 0xFF};

}  // namespace

TEST(CreateGuidText, GivesThirtyTwoHexadecimalDigits)
{
    RecordingHost host;
    host.Answers().guid = kGuid;
    EXPECT_EQ(CreateGuidText(""), "6F9619FF8B86D011B42D00C04FC964FF");
    EXPECT_EQ(host.Events().Text(), "CreateGuid\n");
}

TEST(CreateGuidText, DeletesTheCharactersToRemoveFromTheDigitsToo)
{
    RecordingHost host;
    host.Answers().guid = kGuid;
    EXPECT_EQ(CreateGuidText("F0"),
              "69619"
              "8B86D11B42DC4C964");
    EXPECT_EQ(CreateGuidText("-{}x仓"), "6F9619FF8B86D011B42D00C04FC964FF");
    EXPECT_EQ(CreateGuidText("0123456789ABCDEF"), "");
    EXPECT_EQ(CreateGuidText("f"), "6F9619FF8B86D011B42D00C04FC964FF");
}

TEST(GetClientSuffix, IsTheNumberOfANewObjectAsDigits)
{
    RecordingHost host;
    const struct {
        Value number;
        std::string_view suffix;
    } cases[] = {{7, "7"}, {" 12 ", "12"}, {2.5, "2"}, {-3, "-3"}, {2147483647, "2147483647"}};
    for (const auto& c : cases) {
        host.Answers().clientNumber = c.number;
        EXPECT_EQ(GetClientSuffix(), c.suffix);
    }
    host.Events().Clear();
    GetClientSuffix();
    EXPECT_EQ(host.Events().Text(), "new ClientNumber\nClientNumber.Number\n");
    host.Answers().clientNumber = 3e9;
    EXPECT_THROW(GetClientSuffix(), OverflowError);
}

TEST(GetClientTableName, JoinsFixedPartMachineAndNumber)
{
    RecordingHost host;
    host.Answers().clientNumber = 7;
    const std::string name = GetClientTableName("FCSFCItem");
    EXPECT_EQ(name, "FCSFCItem" + Machine().MachineName() + "7");
    const auto connection = host.OpenAccount();
    DropTableQuiet(*connection, InTempdb(name));
    EXPECT_EQ(host.Events().Text(), "#1.Execute drop table Tempdb..[" + name + "]\n");
}

TEST(DropTableQuiet, SendsOneStatementAndSwallowsEveryError)
{
    RecordingHost host;
    const auto connection = host.OpenAccount();
    DropTableQuiet(*connection, "tempdb..IA_Work");
    EXPECT_EQ(host.Events().Text(), "#1.Execute drop table tempdb..IA_Work\n");

    host.Script().failures["drop table missing"] = "there is no such table";
    EXPECT_NO_THROW(DropTableQuiet(*connection, "missing"));
    host.Events().FailAt(1);
    EXPECT_NO_THROW(DropTableQuiet(*connection, "missing"));
    connection->Close();
    EXPECT_NO_THROW(DropTableQuiet(*connection, "missing"));
}

TEST(DropTempdbTable, AsksForTheBareNameInTempdb)
{
    const struct {
        const char *table, *name;
    } cases[] = {
        {"goods", "goods"},           {"[goods]", "goods"},
        {"tempdb..goods", "goods"},   {"TempDB..[goods]", "goods"},
        {"[goods", "[goods"},         {"goods]", "goods]"},
        {"[tempdb..a]", "tempdb..a"}, {"tempdb.dbo.a", "tempdb.dbo.a"},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        host.OpenAccount();
        DropTempdbTable(c.table);
        const std::string name = c.name;
        EXPECT_EQ(host.Events().Text(),
                  "#1.Execute if exists(Select id from tempdb..sysobjects where id= object_id(N'tempdb.." +
                      name + "')) Drop Table tempdb..[" + name + "]\n");
    }
}

TEST(DropTempdbTable, ShowsItsErrorsAndThatOfAnEmptyName)
{
    RecordingHost host;
    host.OpenAccount();
    host.Answers().texts = {{"Orvo.IA.CHHSSQL.07860", "no name"}};
    for (const char* empty : {"", "tempdb..", "[]", "Tempdb..[]"}) {
        host.Events().Clear();
        EXPECT_NO_THROW(DropTempdbTable(empty));
        EXPECT_TRUE(host.Events().Text().ends_with("ResourceObject.ShowMessage no name, 48\n"))
            << host.Events().Text();
    }
    EXPECT_TRUE(host.Sent().empty());

    host.Script().failAtStatement = 1;
    EXPECT_NO_THROW(DropTempdbTable("goods"));
    EXPECT_TRUE(
        host.Events().Text().ends_with("ResourceObject.ShowMessage planned failure of statement 1, 48\n"));
}

TEST(RecordExists, TellsWhetherARowCameBack)
{
    RecordingHost host;
    host.OpenAccount();
    const std::string sql = "Select top 1 cWhCode from Warehouse where cWhCode= N'01'";
    EXPECT_FALSE(RecordExists("Warehouse", "cWhCode", "01"));
    EXPECT_EQ(host.Events().Text(), "#1.OpenRecordset @1 location=3 type=0 lock=1 " + sql + "\n");
    host.Script().rows[sql] = {{"cWhCode"}, {{"01"}}};
    EXPECT_TRUE(RecordExists("Warehouse", "cWhCode", "01"));
}

TEST(RecordExists, PastesAQuoteAsItIsAndFailsAsAStatement)
{
    RecordingHost host;
    host.OpenAccount();
    host.Script().failures["Select top 1 c from t where c= N'O'Neil'"] = "incorrect syntax";
    EXPECT_THROW(RecordExists("t", "c", "O'Neil"), DatabaseError);
}

TEST(SumDigits, AddsTheDigitsOfAText)
{
    EXPECT_EQ(SumDigits(""), 0);
    EXPECT_EQ(SumDigits("0"), 0);
    EXPECT_EQ(SumDigits("1234567890"), 45);
    EXPECT_EQ(SumDigits(std::string(3640, '9') + "7"), 32767);
}

TEST(SumDigits, RefusesAnyOtherCharacterAndASumPastSixteenBits)
{
    for (const char* text : {"a", "12a", " ", "1 2", "-1", "1.5", "１"})
        EXPECT_THROW(SumDigits(text), ConversionError) << text;
    EXPECT_THROW(SumDigits(std::string(3640, '9') + "8"), OverflowError);
}

}  // namespace kavelin::test
