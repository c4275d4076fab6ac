// Reports and dialogs that a host behind the C interface runs.
#include "capi/Account.h"

#include <gtest/gtest.h>

#include <functional>
#include <iterator>
#include <map>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace kavelin::test {

namespace {

constexpr const char* kTables[] = {
    "create table AccInformation (cSysID nvarchar(10) not null, cName nvarchar(60) not null,"
    " cValue nvarchar(255) null, cDefault nvarchar(255) null)",
    "create table Warehouse (cWhCode nvarchar(10) not null, bInCost bit null)",
    "create table ComputationUnit (cComUnitCode nvarchar(20) not null, cComUnitName nvarchar(20) null)",
    "create table Inventory (cInvCode nvarchar(60) not null, cInvCCode nvarchar(24) null, cInvName"
    " nvarchar(255) null, cInvAddCode nvarchar(255) null, cInvStd nvarchar(255) null,"
    " cComUnitCode nvarchar(20) null, iid nvarchar(60) null)",
    "create table IA_Subsidiary (AutoID int identity(1,1) not null, iYear smallint not null, dKeepDate datetime"
    " not null, cVouType nvarchar(4) not null, cBusType nvarchar(60) null, bRdFlag tinyint not null,"
    " cWhCode nvarchar(10) null, cInvCode nvarchar(60) not null, iAInPrice money null, iAOutPrice money null,"
    " iDebitDifCost money null, iCreditDifCost money null)",
    "insert into Warehouse values ('01', 1)",
    "insert into Inventory values ('A', '01', N'钢板', 'A-1', '2mm', 'kg', '1')",
    "insert into Inventory values ('B', '01', N'铜线', null, '', 'kg', '2')",
    "insert into Inventory values ('C', '02', N'螺丝', 'C-1', 'M6', 'none', null)",
};

constexpr const char* kShares = "1,A,500.06,50 2,B,300.06,30.01 3,C,199.88,19.99";

class Reports : public AccountApi {
  protected:
    // The argument of a report without any filter item; its objects stay until the thread ends.
    kavelin_object Argument()
    {
        const kavelin_object source = Host(DataSource());
        const kavelin_object filter = Host(
            Record({{"FilterList", kavelin_of_object(Host(Record({{"Count", kavelin_of_integer(0)}})))}}));
        return Host(Record({{"DataSource", kavelin_of_object(source)},
                            {"Login", kavelin_of_object(Login())},
                            {"RawFilter", kavelin_of_object(filter)},
                            {"LangID", kavelin_of_text("zh-CN")}}));
    }

    kavelin_object Login()
    {
        return Host(Record({{"VosDbName", kavelin_of_text(ConnectionText().c_str())},
                            {"Year", kavelin_of_text("2008")},
                            {"Month", kavelin_of_integer(7)},
                            {"ConnectionText", kavelin_of_text("ledger")},
                            {"Password", kavelin_of_text("")},
                            {"LanguageRegion", kavelin_of_text("zh-CN")},
                            {"AuthService", kavelin_of_object(0)}}));
    }

    // What three items tie up.
    void FillAccount()
    {
        for (const char* statement : kTables)
            Run(statement);
        for (const char* line : {"'A', 500.06", "'B', 300.06", "'C', 199.88"})
            Run(("insert into IA_Subsidiary values (2008, '2008-07-31', '01', N'普通采购', 1, '01', " +
                 std::string(line) + ", null, null, null)")
                    .c_str());
    }

    std::string Shares()
    {
        return Query("select cNo, cinvcode, 资金占用额, 所占比重 from tempdb..share order by cNo");
    }

    kavelin_status RunShare(kavelin_object e)
    {
        kavelin_value argument = kavelin_of_object(e);
        return kavelin_call(Create("Kavelin.clsProPortion"), "GETSQL", &argument, 1, nullptr);
    }

    std::int64_t type = 0;  // as the report wrote it

  private:
    Scripted DataSource()
    {
        Scripted source = Record({{"sql", kavelin_of_text("tempdb..share")}});
        source.put["Type"] = [this](const kavelin_value& value) {
            type = value.as.integer;
            return KAVELIN_OK;
        };
        return source;
    }
};

struct Shown {
    std::vector<std::pair<std::string, int>> messages;

    static void Take(void* self, const char* text, int32_t icon)
    {
        static_cast<Shown*>(self)->messages.emplace_back(text, icon);
    }
};

// A dialog of the stock summary, whose fields hold texts.
class Dialogs : public Reports {
  protected:
    kavelin_object Filter()
    {
        Scripted list = Record({{"Count", kavelin_of_integer(static_cast<std::int64_t>(fields.size()))}});
        list.call["Item"] = [this](kavelin_value* arguments, size_t, kavelin_value* result) {
            const auto named = arguments[0].kind == KAVELIN_TEXT
                                   ? fields.find(arguments[0].as.text.bytes)
                                   : std::next(fields.begin(), arguments[0].as.integer - 1);
            if (named != fields.end())
                *result = kavelin_of_object(named->second);
            return KAVELIN_OK;
        };
        Scripted context;
        context.call["Add"] = [this](kavelin_value* arguments, size_t, kavelin_value*) {
            added += std::string(arguments[1].as.text.bytes) + "=" + arguments[0].as.text.bytes;
            return KAVELIN_OK;
        };
        return Host(Record({{"FilterID", kavelin_of_text(identity)},
                            {"Login", kavelin_of_object(Login())},
                            {"FilterList", kavelin_of_object(Host(std::move(list)))},
                            {"ContextArgs", kavelin_of_object(Host(std::move(context)))}}));
    }

    // The name and the text must live as long as the test.
    void AddField(const char* name, const char* value)
    {
        Scripted item = Record({{"Name", kavelin_of_text(name)}, {"varValue", kavelin_of_text(value)}});
        item.put = {{"varValue", Takes()}, {"ListSource", [this](const kavelin_value& list) {
                                                listed = list.as.text.bytes;
                                                return KAVELIN_OK;
                                            }}};
        fields[name] = Host(std::move(item));
    }

    const char* identity = "F3D99620-46E3-465E-97C7-ECD73735B108";  // the stock summary's
    std::map<std::string, kavelin_object, std::less<>> fields;
    std::string added;   // to the arguments that travel with the filter
    std::string listed;  // in a drop-down
};

// A ledger of the host, which asks the account's connection for its years.
class Ledger {
  public:
    static kavelin_status Make(void* self, const char* name, kavelin_object* object)
    {
        static_cast<Ledger*>(self)->made += std::string(name) + ";";
        *object = static_cast<Ledger*>(self)->Object();
        return KAVELIN_OK;
    }

    std::string made;

  private:
    kavelin_object Object()
    {
        Scripted ledger;
        ledger.put["Login"] = Takes();
        ledger.call["Initialise"] =
            ledger.call["Reload"] = [](kavelin_value*, size_t, kavelin_value*) { return KAVELIN_OK; };
        ledger.call["GetAccountYears"] = [](kavelin_value* arguments, size_t, kavelin_value* years) {
            kavelin_value select = kavelin_of_text("select 2007 as iYear");
            Owned rows;
            const kavelin_status status =
                kavelin_call(arguments[1].as.object, "OpenRecordset", &select, 1, rows.Place());
            if (status != KAVELIN_OK)
                return status;
            kavelin_value first = kavelin_of_integer(0);
            Owned year;
            EXPECT_EQ(kavelin_call(rows->as.object, "Field", &first, 1, year.Place()), KAVELIN_OK);
            Scripted list = Record({{"Count", kavelin_of_integer(1)}});
            list.call["Item"] = [number = year->as.integer](kavelin_value*, size_t, kavelin_value* result) {
                *result = kavelin_of_integer(number);
                return KAVELIN_OK;
            };
            *years = kavelin_of_object(NewObject(std::move(list)));
            return KAVELIN_OK;
        };
        return NewObject(std::move(ledger));
    }
};

}  // namespace

// Total 1000. Computed 50.006 -> 50.01, 30.006 -> 30.01, 19.988 -> 19.99, in all 100.01. The largest becomes
// 100 - (30.01 + 19.99) = 50.00.
TEST_F(Reports, RunOnAnEmbeddedAccountWithTheHostsObjects)
{
    FillAccount();
    ASSERT_EQ(RunShare(Argument()), KAVELIN_OK) << Error().text;
    EXPECT_EQ(type, 2);
    EXPECT_EQ(Shares(), kShares);
}

TEST_F(Reports, PassOnTheFailureOfEveryMemberOfTheHost)
{
    FillAccount();
    const kavelin_object e = Argument();
    Calls() = {};
    ASSERT_EQ(RunShare(e), KAVELIN_OK) << Error().text;
    const int members = Calls().count;
    EXPECT_GT(members, 10);
    for (int failing = 1; failing <= members; ++failing) {
        Calls() = {.failing = failing};
        EXPECT_EQ(Told(RunShare(e)), "1 Kavelin.clsProPortion: planned failure")
            << failing << " of " << members;
    }
    Calls() = {};
    Run("drop table tempdb..share");
    EXPECT_EQ(RunShare(e), KAVELIN_OK) << Error().text;
    EXPECT_EQ(Shares(), kShares);
}

// Each with a host and an account of its own.
TEST(TwoThreads, RunReportsAtOnce)
{
    struct OnThread : Reports {
        void TestBody() override
        {
            FillAccount();
            for (int i = 0; i < 5; ++i) {
                EXPECT_EQ(RunShare(Argument()), KAVELIN_OK) << Error().text;
                EXPECT_EQ(Shares(), kShares);
                Run("drop table tempdb..share");
            }
        }
    };
    const auto run = [] { OnThread().TestBody(); };
    std::thread first(run);
    std::thread second(run);
    first.join();
    second.join();
}

TEST_F(Reports, PassTheErrorOfAStatementOnWithItsClass)
{
    EXPECT_EQ(RunShare(Argument()), KAVELIN_DATABASE);  // the account has no tables
    EXPECT_STREQ(Error().source, "Kavelin.clsProPortion");
    EXPECT_NE(std::string(Error().text), "");
    EXPECT_NE(std::string(Error().statement), "");
}

TEST_F(Reports, PassTheErrorOfAHostsMemberOn)
{
    Scripted e = Record({});
    e.get["RawFilter"] = [](kavelin_value*) { return kavelin_fail("筛选条件丢失"); };
    EXPECT_EQ(Told(RunShare(Host(std::move(e)))), "1 Kavelin.clsProPortion: 筛选条件丢失");
}

TEST_F(Reports, RefuseAnArgumentThatIsNoObject)
{
    const kavelin_object report = Create("Kavelin.clsProPortion");
    kavelin_value argument = kavelin_of_text("e");
    EXPECT_EQ(kavelin_call(report, "GETSQL", &argument, 1, nullptr), KAVELIN_FAILED);
    argument = kavelin_of_object(0);
    EXPECT_EQ(kavelin_call(report, "GETSQL", &argument, 1, nullptr), KAVELIN_FAILED);
    EXPECT_NE(std::string(Error().text).find("GETSQL"), std::string::npos) << Error().text;
}

TEST_F(Reports, KeepTheirPropertiesAndGiveThemBack)
{
    const kavelin_object report = Create("Kavelin.clsProPortion");
    const kavelin_value title = kavelin_of_text("资金占用");
    EXPECT_EQ(kavelin_put(report, "ReportTitle", &title), KAVELIN_OK);
    Owned read;
    EXPECT_EQ(kavelin_get(report, "REPORTTITLE", read.Place()), KAVELIN_OK);
    EXPECT_EQ(read.Text(), "资金占用");
}

TEST_F(Reports, TakePropertiesWithAnIndex)
{
    const kavelin_object summary = Create("Kavelin.clsSFCSumCon");
    kavelin_value write[] = {kavelin_of_integer(0), kavelin_of_text("铜线")};
    EXPECT_EQ(kavelin_call(summary, "strInvName", write, 2, nullptr), KAVELIN_OK) << Error().text;
    Owned read;
    EXPECT_EQ(kavelin_call(summary, "strInvName", write, 1, read.Place()), KAVELIN_OK) << Error().text;
    EXPECT_EQ(read.Text(), "铜线");
    EXPECT_EQ(kavelin_get(summary, "strInvName", read.Place()), KAVELIN_FAILED);
}

TEST_F(Dialogs, ExchangeTheirViewInTheHostsArgument)
{
    AddField("rdgrade", "2");
    const kavelin_object control = Create("Kavelin.clsFilterControl");
    kavelin_value change[] = {kavelin_of_text("rdGrade"), kavelin_of_object(Filter()),
                              kavelin_of_text("ordin")};
    AddField("rdGrade", "2");
    ASSERT_EQ(kavelin_call(control, "CallBack_ReportViewChange", change, 3, nullptr), KAVELIN_OK)
        << Error().text;
    EXPECT_EQ(std::string(change[2].as.text.bytes), "cross");
    EXPECT_EQ(change[2].owned, 1);
    kavelin_clear(&change[2]);
}

TEST_F(Dialogs, CancelTheClickWithAMessageToTheHost)
{
    AddField("vouEstate", "");
    Shown shown;
    ASSERT_EQ(kavelin_on_message(Shown::Take, &shown), KAVELIN_OK);
    kavelin_value click[] = {kavelin_of_object(Filter()), kavelin_of_boolean(0)};
    ASSERT_EQ(kavelin_call(Create("Kavelin.clsFilterControl"), "CallBack_FilterClick", click, 2, nullptr),
              KAVELIN_OK)
        << Error().text;
    EXPECT_EQ(click[1].kind, KAVELIN_BOOLEAN);
    EXPECT_EQ(click[1].as.boolean, 1);
    EXPECT_EQ(added, "ViewClass=");
    ASSERT_EQ(shown.messages.size(), 1u);
    EXPECT_NE(shown.messages[0].first, "");
    EXPECT_EQ(shown.messages[0].second, KAVELIN_INFORMATION);
}

TEST_F(Dialogs, HandTheAccountsConnectionToALedgerOfTheHost)
{
    identity = "IA[__]存货周转率分析";
    AddField("iyear", "");
    Ledger ledger;
    for (const char* name : {"Suite.LedgerLogin", "Suite.LedgerPub", "Suite.LedgerParams"})
        ASSERT_EQ(kavelin_provide(name, Ledger::Make, &ledger), KAVELIN_OK);
    kavelin_value filter = kavelin_of_object(Filter());
    ASSERT_EQ(kavelin_call(Create("Kavelin.clsFilterControl"), "CallBack_FilterInit", &filter, 1, nullptr),
              KAVELIN_OK)
        << Error().text;
    EXPECT_EQ(ledger.made, "Suite.LedgerLogin;Suite.LedgerPub;");
    EXPECT_EQ(listed, "2007");
}

}  // namespace kavelin::test
