#include "demo/AccountFiles.h"

#include "demo/DemoCompany.h"
#include "demo/NewAccount.h"
#include "demo/QueryRows.h"
#include "demo/Scripts.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::demo {
namespace {

class AccountFiles : public testing::Test {
  protected:
    AccountFiles() { CreateEmptyAccount(account); }

    void Write(const std::string& name, std::string_view content) { WriteFile(input / name, content); }
    RowCounts Load() { return LoadFolder(account, input); }
    std::string Rows(const std::string& sql) { return QueryRows(account, sql); }

    // The message with which a load of these files is refused.
    std::string Refusal()
    {
        try {
            Load();
        } catch (const Error& error) {
            return error.what();
        }
        return "nothing was refused";
    }

    TestFolder folder;
    const std::filesystem::path account = folder / "test.kavelin";
    const std::filesystem::path input = folder / "input";
    const std::filesystem::path output = folder / "output";
};

TEST_F(AccountFiles, MakesAnAccountWithEveryTableAndNoRow)
{
    for (const std::string& table : SchemaTables())
        EXPECT_EQ(Rows("select * from " + table), "") << table;
}

TEST_F(AccountFiles, DoesNotMakeAnAccountOverAnother)
{
    Write("Person.csv", "cPersonCode\nP1\n");
    Load();
    EXPECT_THROW(CreateEmptyAccount(account), ConnectionError);
    EXPECT_EQ(Rows("select cPersonCode from Person"), "P1\n");
}

TEST_F(AccountFiles, LoadsRowsInAnyColumnOrderAndCase)
{
    Write("vendor.CSV", "CVCCODE,cVenName,cvencode\n01,\"A, \"\"B\"\"\",V1\n,第二,V2\n");
    EXPECT_EQ(Load(), (RowCounts{{"Vendor", 2}}));
    EXPECT_EQ(Rows("select cVenCode, cVenName, cVCCode from Vendor order by cVenCode"),
              "V1|A, \"B\"|01\nV2|第二|NULL\n");
}

TEST_F(AccountFiles, TellsNullFromTheEmptyText)
{
    Write("Person.csv", "cPersonCode,cPersonName\nP1,\nP2,\"\"\n");
    Load();
    EXPECT_EQ(Rows("select cPersonCode, cPersonName from Person order by cPersonCode"), "P1|NULL\nP2|\n");
}

TEST_F(AccountFiles, GivesColumnsLeftOutTheirDefaultNumberOrNull)
{
    Write("Inventory.csv", "cInvCode\nA\n");
    Write("IA_Summary.csv", "iYear,iMonth,cInvCode\n2008,1,A\n2008,2,A\n");
    Load();
    EXPECT_EQ(Rows("select cInvName, bCheckBatch from Inventory"), "NULL|False\n");
    EXPECT_EQ(Rows("select AutoID, iNum from IA_Summary order by AutoID"), "1|NULL\n2|NULL\n");
}

TEST_F(AccountFiles, KeepsNumbersOfAnIdentityThatTheFileGives)
{
    Write("IA_Summary.csv", "AutoID,iYear,iMonth,cInvCode\n70,2008,1,A\n");
    Load();
    EXPECT_EQ(Rows("select AutoID from IA_Summary"), "70\n");
}

TEST_F(AccountFiles, ReachesTheSystemTableUnderBothNames)
{
    const std::string_view row = "cAcc_ID,iYear,iID,dBegin,dEnd\n001,2008,1,2008-01-01,2008-01-31\n";
    Write("VosSystem..UA_Period.csv", row);
    EXPECT_EQ(Load(), (RowCounts{{"VosSystem..UA_Period", 1}}));
    std::filesystem::remove(input / "VosSystem..UA_Period.csv");
    Write("UA_Period.csv", "cAcc_ID,iYear,iID,dBegin,dEnd\n001,2008,2,2008-02-01,2008-02-29\n");
    EXPECT_EQ(Load(), (RowCounts{{"VosSystem..UA_Period", 1}}));
    EXPECT_EQ(Rows("select iID, dEnd, bIsDelete from VosSystem..UA_Period order by iID"),
              "1|2008-01-31|False\n2|2008-02-29|False\n");
}

TEST_F(AccountFiles, PassesOverOtherFiles)
{
    Write("Person.csv", "cPersonCode\nP1\n");
    Write("README.md", "no rows here");
    EXPECT_EQ(Load(), (RowCounts{{"Person", 1}}));
}

TEST_F(AccountFiles, TellsFileLineAndColumnOfWhatItRefuses)
{
    const struct {
        std::string file;
        std::string_view content;
        std::string message;
    } cases[] = {
        {"Nothing.csv", "a\n", "Nothing.csv: the account has no table 'Nothing'."},
        {"VosSystem..Person.csv", "a\n",
         "VosSystem..Person.csv: the account has no table 'VosSystem..Person'."},
        {"Person.csv", "", "Person.csv, line 1: the line with the column names is missing."},
        {"Person.csv", "cPersonCode,cAge\nP1,3\n",
         "Person.csv, line 1: the table Person has no column 'cAge'."},
        {"Person.csv", "cPersonCode,CPERSONCODE\nP1,P1\n",
         "Person.csv, line 1: the column cPersonCode stands there twice."},
        {"Person.csv", "cPersonCode,cPersonName\nP1,A\nP2\n",
         "Person.csv, line 3: 1 field stands where the first line has 2 columns."},
        {"Person.csv", "cPersonCode,cPersonName\nP1,A,B\n",
         "Person.csv, line 2: 3 fields stand where the first line has 2 columns."},
        {"Person.csv", "cPersonCode,cPersonName\n,A\n",
         "Person.csv, line 2, column cPersonCode: nothing stands there, but the column takes no NULL."},
        {"Person.csv", "cPersonName\nA\n",
         "Person.csv, line 1: the column cPersonCode is missing, but takes no NULL."},
        {"Person.csv", "cPersonCode\nP1\n\"P2\n",
         "Person.csv, line 3: the field that begins with a quote here never ends."},
        {"IA_Summary.csv", "iYear,iMonth,cInvCode,iNum\n2008,1,\"two\nlines\",5\n2008,2,A,five\n",
         "IA_Summary.csv, line 4, column iNum: 'five' is not a number."},
        {"UA_Period.csv", "cAcc_ID,iYear,iID,dBegin,dEnd\n001,2008,1,2008-01-01,2008-01-32\n",
         "UA_Period.csv, line 2, column dEnd: '2008-01-32' is not a date YYYY-MM-DD, or one with a time "
         "hh:mm:ss behind it."},
        {"Rd_Style.csv", "cRdCode\n1234567890123\n",
         "Rd_Style.csv, line 2, column cRdCode: '1234567890123' is not UTF-8 text of at most 12 characters."},
        {"Person.csv", std::string_view("cPersonCode\nP1\nP\0002\n", 18),
         "Person.csv, line 3: a NUL stands there: the file is damaged, or no UTF-8 text."},
        {"Person.csv", std::string_view("\xFF\xFEP\0e\0", 6),
         "Person.csv, line 1: a NUL stands there: the file is damaged, or no UTF-8 text."},
        {"Person.csv", "cPersonCode,cPersonName\nP1,A\nP2,\xE8\x9E",
         "Person.csv, line 3, column cPersonName: '\xE8\x9E' is not UTF-8 text of at most 60 characters."},
        {"Person.csv", "cPersonCode\nP\xFF\n",
         "Person.csv, line 2, column cPersonCode: 'P\xFF' is not UTF-8 text of at most 20 characters."},
    };
    for (const auto& c : cases) {
        std::filesystem::remove_all(input);
        Write(c.file, c.content);
        EXPECT_EQ(Refusal(), c.message);
    }
}

TEST_F(AccountFiles, RefusesAFolderWithoutFilesAndOneThatIsNotThere)
{
    EXPECT_TRUE(Refusal().ends_with(" cannot be read: No such file or directory.")) << Refusal();
    Write("README.md", "");
    EXPECT_TRUE(Refusal().ends_with(" holds no file TABLE.csv.")) << Refusal();
}

TEST_F(AccountFiles, RefusesAFolderInPlaceOfAFile)
{
    std::filesystem::create_directories(input / "Person.csv");
    EXPECT_EQ(Refusal(), "Person.csv: that is a folder, not a file.");
}

TEST_F(AccountFiles, RefusesTwoFilesForOneTable)
{
    Write("UA_Period.csv", "iID\n");
    Write("VosSystem..UA_Period.csv", "iID\n");
    EXPECT_EQ(Refusal(),
              "VosSystem..UA_Period.csv: another file holds rows of VosSystem..UA_Period as well.");
}

TEST_F(AccountFiles, LoadsAllFilesOrNone)
{
    Write("Department.csv", "cDepCode\n01\n");
    Write("Person.csv", "cPersonCode\nP1\nP2\n");
    Write("UA_Period.csv", "cAcc_ID,iYear,iID,dBegin,dEnd\n001,2008,1,2008-01-01,2008-01-31\n");
    Write("Warehouse.csv", "cWhCode,bInCost\n01,1\n02,maybe\n");  // the last file has the fault
    EXPECT_EQ(Refusal(), "Warehouse.csv, line 3, column bInCost: 'maybe' is not 0 or 1.");
    for (const char* table : {"Department", "Person", "VosSystem..UA_Period", "Warehouse"})
        EXPECT_EQ(Rows("select * from " + std::string(table)), "") << table;

    Write("Warehouse.csv", "cWhCode,bInCost\n01,1\n02,0\n");
    EXPECT_EQ(Load().size(), 4u);
    EXPECT_EQ(Rows("select cWhCode, bInCost from Warehouse order by cWhCode"), "01|True\n02|False\n");
}

TEST_F(AccountFiles, LoadsNothingWhenAKeyStandsTwice)
{
    Write("Department.csv", "cDepCode\n01\n");
    Write("Person.csv", "cPersonCode\nP1\nP2\nP1\n");
    Write("Warehouse.csv", "cWhCode\n01\n");
    EXPECT_EQ(Refusal(), "Person.csv: Violation of PRIMARY KEY constraint. Cannot insert duplicate key.");
    EXPECT_EQ(Rows("select * from Department"), "");

    Write("Person.csv", "cPersonCode\nP1\n");
    Load();
    std::filesystem::remove(input / "Department.csv");
    std::filesystem::remove(input / "Warehouse.csv");
    EXPECT_THROW(Load(), DatabaseError) << "the key is in the account already";
    EXPECT_EQ(Rows("select cPersonCode from Person"), "P1\n");
}

TEST_F(AccountFiles, ComesBackTheSameAfterExportAndLoad)
{
    const std::string odd =
        "cCusCode,cCusName,cCusAbbName\r\n"
        "C1,\"quote \"\" comma , \",\" blanks \"\r\n"
        "C2,\"two\nlines\",\"\"\r\n"
        "C3,,\"NULL\"\r\n";
    Write("Customer.csv", odd);
    Write("IA_Subsidiary.csv",
          "iYear,iMonth,dVouDate,dKeepDate,cAccounter,cVouType,bRdFlag,cInvCode,iAInQuantity,"
          "iAInPrice,cDefine7\n"
          "2008,1,2008-01-02,2008-01-02 23:59:59.997,x,01,1,A,0.1,922337203685477.5807,"
          "-1.7976931348623157e308\n"
          "2008,1,1753-01-01,9999-12-31,x,01,1,A,3.0000000000000004,-0.0001,1e-300\n");
    Load();

    ExportFolder(account, output);
    const std::filesystem::path other = folder / "other.kavelin";
    CreateEmptyAccount(other);
    LoadFolder(other, output);
    ExportFolder(other, folder / "again");
    for (const std::string& table : SchemaTables())
        EXPECT_EQ(ReadFile(output / (table + ".csv")), ReadFile(folder / ("again/" + table + ".csv")))
            << table;
    EXPECT_NE(ReadFile(output / "IA_Subsidiary.csv").find(",922337203685477.5807,"), std::string::npos);
    EXPECT_NE(ReadFile(output / "IA_Subsidiary.csv").find(",2008-01-02 23:59:59.997,"), std::string::npos);
    EXPECT_EQ(ReadFile(output / "Customer.csv"),
              "cCusCode,cCusName,cCusAbbName,cCCCode\r\n"
              "C1,\"quote \"\" comma , \",\" blanks \",\r\n"
              "C2,\"two\nlines\",\"\",\r\n"
              "C3,,NULL,\r\n");
}

TEST_F(AccountFiles, ExportsTheDemoCompanyAndLoadsItAgain)
{
    const std::filesystem::path company = folder / "company.kavelin";
    MakeDemoAccount(company, Profiles().front(), MinimumLines(), 5);
    const RowCounts exported = ExportFolder(company, output);
    EXPECT_EQ(exported.size(), SchemaTables().size());
    EXPECT_EQ(exported.at("IA_Subsidiary"), MinimumLines());

    EXPECT_EQ(LoadFolder(account, output), exported);
    ExportFolder(account, folder / "again");
    for (const std::string& table : SchemaTables())
        EXPECT_EQ(ReadFile(output / (table + ".csv")), ReadFile(folder / ("again/" + table + ".csv")))
            << table;
}

TEST_F(AccountFiles, ExportsIntoNoFolderThatHoldsOneOfTheFiles)
{
    WriteFile(output / "Warehouse.csv", "mine");
    EXPECT_THROW(ExportFolder(account, output), Error);
    EXPECT_EQ(ReadFile(output / "Warehouse.csv"), "mine");
    EXPECT_FALSE(std::filesystem::exists(output / "AccInformation.csv"))
        << "nothing is written before the test";

    WriteFile(output / "Warehouse.csv", "");  // an empty one may be written over
    ExportFolder(account, output);
    EXPECT_EQ(ReadFile(output / "Warehouse.csv"), "cWhCode,cWhName,cDepCode,bInCost,cWhValueStyle\r\n");
}

TEST_F(AccountFiles, LeavesWorkTablesOutOfAnExport)
{
    const std::shared_ptr<Connection> connection = ConnectTo(account);
    connection->Execute("create table Leftover (a int)");
    connection->Close();
    ExportFolder(account, output);
    EXPECT_FALSE(std::filesystem::exists(output / "Leftover.csv"));
}

}  // namespace
}  // namespace kavelin::demo
