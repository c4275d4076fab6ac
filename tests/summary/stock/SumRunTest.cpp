// What a run of the summary sends: the statements of each scenario, and the steps of each account.
#include "frame/Errors.h"
#include "frame/Text.h"
#include "summary/clsIASFCReport.h"
#include "summary/clsSfcSumInfo.h"
#include "summary/stock/SummaryRun.h"
#include "support/Scenario.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace kavelin::test {

namespace {

constexpr const char* kPosted = "已记账单据";
constexpr const char* kUnposted = "未记账单据";
constexpr const char* kAll = "";  // posted, unposted and direct
const FakeField kJuly = {"dVouDate", "2008-07-01", "2008-07-31", true};

std::string Steps(const SummaryAccount& account, const std::vector<FakeField>& fields)
{
    RecordingHost host;
    Prepare(host, account, fields);
    clsSfcSumInfo().GETSQL(*host.EarlyArgument());
    return StepsOf(host);
}

// The steps between the start of every run and its end.
std::string Between(const std::string& steps)
{
    const std::string start = "drop drop ?cDispLevel create ";
    const std::string end = " classes warehouses";
    EXPECT_TRUE(steps.starts_with(start) && steps.ends_with(end)) << steps;
    return steps.substr(start.size(), steps.size() - start.size() - end.size());
}

// The statement of that beginning.
std::string Find(const RecordingHost& host, const std::string& beginning, const std::string& piece = "")
{
    for (const std::string& sql : StatementsOf(host))
        if (sql.starts_with(beginning) && sql.find(piece) != std::string::npos)
            return sql;
    ADD_FAILURE() << "nothing begins with " << beginning;
    return "";
}

// A run of the engine on a made-up connection.
struct EngineRun {
    explicit EngineRun(const SumArguments& arguments, const SummaryAccount& account = {})
    {
        Prepare(host, account, {});
        host.OpenAccount();
        clsIASFCReport engine;
        engine.SetsTable("pool");
        result = engine.GetSum(arguments);
    }

    std::string Opening() const { return Where("or imonth=0) "); }
    std::string Movement() const { return Where("and imonth<> 0 "); }
    std::string Stock() const { return Where(" from rpt_rdrecordsIA870 "); }

    // From "where" on.
    std::string Where(const std::string& piece) const
    {
        const std::string sql = Find(host, "insert into", piece);
        const std::string joined = "ComputationUnit.ccomunitcode ";
        return sql.substr(sql.find(joined) + joined.size());
    }

    RecordingHost host;
    Value result = Value("not empty");
};

const std::string kWarehouses =
    " and  ((cWhCode IN (Select cWhCode From Warehouse Where bInCost = 1))  or cWhCode is null) ";

}  // namespace

TEST(TheStockSummary, SendsTheStatementsOfItsScenarios)
{
    const SummaryAccount invoices = {};
    const SummaryAccount stockIssues = {.saleType = "False", .entrustedStyle = "销售出库单"};
    const SummaryAccount goodsSent = {.saleType = "发出商品", .entrustedStyle = "发出商品"};
    const struct {
        const char* name;
        SummaryAccount account;
        std::vector<FakeField> filter;
        std::function<void(RecordingHost&)> prepare = [](RecordingHost&) {};
    } cases[] = {
        {"no-filter", invoices, {}},
        {"posted", invoices, {{"vouEstate", kPosted}, kJuly}},
        {"unposted-where-the-invoice-costs", invoices, {{"vouEstate", kUnposted}, kJuly}},
        {"unposted-where-the-stock-issue-costs", stockIssues, {{"vouEstate", kUnposted}, kJuly}},
        {"unposted-where-the-dispatch-costs", goodsSent, {{"vouEstate", kUnposted}, kJuly}},
        {"direct-where-the-invoice-costs", invoices, {{"vouEstate", kAll}, kJuly}},
        {"direct-where-the-stock-issue-costs", stockIssues, {{"vouEstate", kAll}, kJuly}},
        {"all-keys",
         goodsSent,
         {{"vouEstate", "已记账单据,未记账单据"},
          {"cInvCCode", "01"},
          {"cinvcode", "A", "B", true},
          {"cwhcode", "01\t02"},
          kJuly,
          {"cItemCode", "P1"},
          {"cItem_Class", "97"},
          {"cAssComUnitNum", "2"},
          {"rdGrade", "2"},
          {"EndNum", "大于零"},
          {"EndPrice", "小于零"},
          {"incompareout", "入库大于出库"},
          {"busEstate", "发生业务"},
          {"byteFree", "是"},
          {"cInvDefine1", "x"},
          {"cRdCode", "11", "19", true}}},
        {"permissions",
         invoices,
         {{"vouEstate", "已记账单据,未记账单据"}, kJuly},
         [](RecordingHost& host) {
             for (const char* name : {"bWarehouseCheck", "bDepartmentCheck", "bInventoryCheck"})
                 host.SetParameter("IA", name, "TRUE");
             host.Answers().lists = {
                 {"Warehouse", "'01','02'"}, {"Department", "'D1'"}, {"Inventory", "'1','2'"}};
         }},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host, c.account, c.filter);
        c.prepare(host);
        clsSfcSumInfo().GETSQL(*host.EarlyArgument());
        ExpectStatements(host.Sent(), std::string("stock-summary/") + c.name);
        ExpectScenario(host, "clsSfcSumInfo", std::string("stock-summary/") + c.name);
        EXPECT_EQ(ConnectionsLeft(), "gcnnAccount=closed gcnnSystem=open gobjLogin=set") << c.name;
    }
}

TEST(TheStockSummary, MakesAnEmptyPoolAndFinishesItWithoutDocumentStates)
{
    EXPECT_EQ(Steps({}, {}), "drop drop ?cDispLevel create -direct classes warehouses");
    EXPECT_EQ(Steps({}, {{"cAssComUnitNum", "2"}, {"byteFree", "是"}}),
              "drop drop ?cDispLevel create -direct classes warehouses unit free");
    EXPECT_EQ(Steps({}, {{"vouEstate", "直运单据"}}), "drop drop ?cDispLevel create classes warehouses");
}

TEST(TheStockSummary, ReadsTheLedgerAndTheDocumentsByState)
{
    EXPECT_EQ(Between(Steps({}, {{"vouEstate", kPosted}, kJuly})), "opening movement -direct");
    EXPECT_EQ(Between(Steps({}, {{"vouEstate", "已记账单据,直运单据"}, kJuly})), "opening movement");
    EXPECT_TRUE(Steps({}, {{"vouEstate", kUnposted}, kJuly}).find("opening") == std::string::npos)
        << "no opening balances at all";
    EXPECT_TRUE(Between(Steps({}, {{"vouEstate", kAll}, kJuly}))
                    .starts_with("opening movement ?cEnDispAccountStyle ?bSaleType +stock"));
}

// Every combination of the two settings of an account and of direct business.
TEST(TheStockSummary, ReadsAndDeletesWhatTheAccountsSettingsSay)
{
    const std::string read = "?cEnDispAccountStyle ?bSaleType +stock +adjustments ";
    const std::string invoiceFirst =
        "+invoices +exports -issues -invoices-of-posted-issues -exports-of-posted-issues ";
    const std::string stockFirst = "-issues-of-posted-invoices -issues-of-posted-exports ";
    const std::string rest = "+vendors +dispatches -instalments ";
    const struct {
        const char* saleType;
        std::string sales;        // first of the sale's documents
        const char* entrusted;    // where the style is not 发出商品
        const char* directSales;  // behind the purchases
    } types[] = {
        {"true", invoiceFirst, "-entrusted-but-invoice", ""},
        {"TRUE", invoiceFirst, "-entrusted-but-invoice", ""},
        {"false", stockFirst, "-entrusted-but-issue", " +exports(direct) +invoices(direct)"},
        {"False", stockFirst, "-entrusted-but-issue", " +exports(direct) +invoices(direct)"},
        {"销售发票", stockFirst, "-entrusted-but-issue", ""},
        {"发出商品", stockFirst, "-entrusted-but-issue", ""},
        {"", stockFirst, "-entrusted-but-issue", ""},
    };
    for (const auto& type : types) {
        for (const char* style : {"发出商品", "销售发票", "销售出库单", "发出商品 ", ""}) {
            const SummaryAccount account = {.saleType = type.saleType, .entrustedStyle = style};
            const std::string entrusted =
                std::string(style) == "发出商品" ? "-entrusted-but-dispatch" : type.entrusted;
            const std::string documents = read + type.sales + rest + entrusted;
            EXPECT_EQ(Between(Steps(account, {{"vouEstate", kUnposted}, kJuly})), documents + " -direct");
            EXPECT_EQ(Between(Steps(account, {{"vouEstate", "未记账单据,直运单据"}, kJuly})),
                      documents + " +purchases(direct)" + type.directSales)
                << type.saleType << " " << style;
        }
    }
}

// ---- conditions

TEST(GetSum, GivesAnEmptyValue)
{
    EXPECT_TRUE(EngineRun({}).result.IsEmpty());
}

TEST(GetSum, AsksForThePeriodByTheDatesOfTheLedgerAndOfTheDocuments)
{
    const SumArguments arguments = {.varDateStart = "2008-07-01",
                                    .varDateEnd = "2008-07-31",
                                    .bAccount = true,
                                    .BUnAccount = true,
                                    .strDefineSub = " 1=1 "};
    const EngineRun run(arguments);
    EXPECT_EQ(run.Opening(),
              "where cVouType<> N'33' " + kWarehouses +
                  " and  (dKeepDate< N'2008-07-01' or imonth=0)  and cVouType<> N'33' and  1=1 ");
    EXPECT_EQ(run.Movement(),
              "where cVouType<> N'33' " + kWarehouses +
                  " and  dKeepDate>= N'2008-07-01' and imonth<> 0  And  dKeepDate<= N'2008-07-31 '"
                  " and cVouType<> N'33' and  1=1 ");
    EXPECT_EQ(run.Stock(), "where  isnull(caccounter,'')=''  " + kWarehouses +
                               " and  ( dVouDate>= N'2008-07-01' or dVouDate< N'2008-01-01' ) "
                               " And  dVouDate<= N'2008-07-31' and  1=1 ");
}

TEST(GetSum, BeginsOnTheDayOfTheModulesStartAtTheEarliest)
{
    const auto day = [](int year, unsigned month, unsigned dayOfMonth) {
        return Value(DateTime(std::chrono::sys_days(std::chrono::year(year) / month / dayOfMonth)));
    };
    const struct {
        Value start;
        const char* used;
    } cases[] = {
        {"2007-12-31", "2008-01-15"},
        {"2008-01-14", "2008-01-15"},
        {"2008-01-15", "2008-01-15"},
        {"2008-01-16", "2008-01-16"},
        {"", "2008-01-15"},
        {Value(), "2008-01-15"},
        {Value::Null(), "2008-01-15"},
        {"2008/2/3", "2008-02-03"},
        {"2007/2/3", "2008-01-15"},
        {day(2008, 3, 1), "2008-03-01"},
        {day(2007, 3, 1), "2008-01-15"},
    };
    for (const auto& c : cases) {
        const EngineRun run(
            {.varDateStart = c.start, .bAccount = true, .BUnAccount = true, .strDefineSub = " 1=1 "},
            {.start = "2008-01-15"});
        EXPECT_NE(run.Opening().find(std::string(" (dKeepDate< N'") + c.used + "' or imonth=0) "),
                  std::string::npos)
            << run.Opening();
        EXPECT_NE(run.Stock().find(std::string("dVouDate>= N'") + c.used + "' or dVouDate< N'2008-01-15'"),
                  std::string::npos)
            << run.Stock();
    }
}

TEST(GetSum, LeavesTheDateConditionEmptyWithoutAFirstDay)
{
    const auto wheres = [](const SumArguments& arguments) {
        const EngineRun run(arguments, {.start = ""});
        std::string texts;
        for (const std::string& sql : StatementsOf(run.host))
            if (sql.starts_with("insert into") && sql.find(" from IA_Subsidiary ") != std::string::npos)
                texts += sql.substr(sql.find("is null) ") + 9) + "\n";
        return texts;
    };
    // The ledger's conditions on the items go with the dates; the server refuses the first text.
    EXPECT_EQ(wheres({.strInvCCode = "01", .bAccount = true, .strDefineSub = " 1=1 "}),
              " and  and cVouType<> N'33' and  1=1 \n and  and cVouType<> N'33' and  1=1 \n");
    EXPECT_EQ(wheres({.varDateEnd = "2008-07-31", .bAccount = true, .strDefineSub = " 1=1 "}),
              " and  and cVouType<> N'33' and  1=1 \n"
              " and  dKeepDate<= N'2008-07-31 ' and cVouType<> N'33' and  1=1 \n");
    // A first day that is no date but sorts behind the module's start is kept and is none.
    const EngineRun run(
        {.strInvCCode = "01", .varDateStart = "soon", .BUnAccount = true, .strDefineSub = " 1=1 "});
    EXPECT_EQ(run.Stock(), "where  isnull(caccounter,'')=''  " + kWarehouses + " and  1=1 ");
}

TEST(GetSum, JoinsItsConditionsOnTheItemInOrder)
{
    const EngineRun run({.strInvCCode = "01",
                         .strInvStart = "A",
                         .strInvEnd = "B",
                         .varDateStart = "2008-07-01",
                         .strWhDepCode = "N'01',N'02'",
                         .bAccount = true,
                         .BUnAccount = true,
                         .strDefineSub = " 1=1 ",
                         .itemCls = "97",
                         .itemCode = "P1"});
    const std::string filter =
        " and  Inventory.cInvCCode Like N'01%' And  Inventory.cInvCode>= N'A' And  Inventory.cInvCode<= N'B'"
        " And ( cwhcode in (N'01',N'02' ) or cwhcode is  null)  AND  cItemCode= N'P1' AND  cItem_Class="
        " N'97' And ";
    EXPECT_NE(run.Opening().find(filter + " (dKeepDate< "), std::string::npos) << run.Opening();
    EXPECT_NE(run.Movement().find(filter + " dKeepDate>= "), std::string::npos) << run.Movement();
    EXPECT_NE(run.Stock().find(filter + " ( dVouDate>= "), std::string::npos) << run.Stock();

    const struct {
        SumArguments arguments;
        const char* filter;
    } alone[] = {
        {{.strInvCCode = "01"}, " Inventory.cInvCCode Like N'01%'"},
        {{.strInvStart = "A"}, " Inventory.cInvCode>= N'A'"},
        {{.strInvEnd = "B"}, " Inventory.cInvCode<= N'B'"},
        {{.strWhDepCode = "N'01'"}, "( cwhcode in (N'01' ) or cwhcode is  null) "},
        {{.itemCls = "97"}, " cItem_Class= N'97'"},
        {{.itemCode = "P1"}, " cItemCode= N'P1'"},
    };
    for (const auto& c : alone) {
        SumArguments arguments = c.arguments;
        arguments.varDateStart = "2008-07-01";
        arguments.bAccount = true;
        const EngineRun one(arguments);
        EXPECT_NE(one.Opening().find(" and " + std::string(c.filter) + " And  (dKeepDate< "),
                  std::string::npos)
            << one.Opening();
    }
}

TEST(GetSum, ReadsOnlyDirectBusinessWithoutAWarehouseWhereNoWarehouseIsChosen)
{
    SumArguments arguments = {.varDateStart = "2008-07-01",
                              .bAccount = true,
                              .BUnAccount = true,
                              .bytDirect = 1,
                              .strDefineSub = " 1=1 "};
    const EngineRun narrow(arguments);
    EXPECT_TRUE(narrow.Opening().starts_with(
        "where cVouType<> N'33'  AND  cwhcode is null and left(cbustype,2) =N'直运'  and  (dKeepDate<"));
    EXPECT_TRUE(narrow.Stock().starts_with(
        "where  isnull(caccounter,'')=''   AND  cwhcode is null  and left(cbustype,2) =N'直运' and  ("
        " dVouDate>="));

    arguments.strWhDepCode = "N'01'";
    EXPECT_TRUE(EngineRun(arguments).Opening().starts_with("where cVouType<> N'33' " + kWarehouses));
    arguments.strWhDepCode = "";
    arguments.bytDirect = 2;
    EXPECT_TRUE(EngineRun(arguments).Opening().starts_with("where cVouType<> N'33' " + kWarehouses))
        << "only 1 is direct business";
}

TEST(GetSum, KeepsTheClassOfTheGradeAskedFor)
{
    const struct {
        const char* levels;
        std::int16_t grade;
        const char* cut;
    } cases[] = {{"223", 0, "left(cRdCode,7)"}, {"223", 1, "left(cRdCode,2)"}, {"223", 2, "left(cRdCode,4)"},
                 {"223", 3, "left(cRdCode,7)"}, {"223", 9, "left(cRdCode,7)"}, {"", 0, "left(cRdCode,0)"}};
    for (const auto& c : cases) {
        const EngineRun run({.intRdGrade = c.grade}, {.levels = c.levels});
        EXPECT_NE(Find(run.host, "select top 0 ").find(c.cut), std::string::npos)
            << c.levels << " " << c.grade;
    }
    for (const char* levels : {"2a3", "2 3", "-2", "２"}) {
        EXPECT_THROW(EngineRun({}, {.levels = levels}), ConversionError) << levels;
        EXPECT_NO_THROW(EngineRun({.intRdGrade = 0}, {.levels = "9"}));
    }
    EXPECT_THROW(EngineRun({.intRdGrade = -1}), Error);
}

TEST(GetSum, FillsTheSecondUnitForAnyNumberButZero)
{
    EXPECT_EQ(Find(EngineRun({.cAssComUnitNum = 2}).host, "update sfc set sfc.rate"),
              "update sfc set sfc.rate=com.iChangRate ,sfc.cFComUnitName = com.ccomunitname from pool"
              " sfc inner join ComputationUnit com on sfc.cGroupCode=com.cGroupCode  and  com.iNumber=2");
    EXPECT_TRUE(
        Find(EngineRun({.cAssComUnitNum = -3}).host, "update sfc set sfc.rate").ends_with("com.iNumber=-3"));
    EXPECT_EQ(StepsOf(EngineRun({}).host).find("unit"), std::string::npos);
}

TEST(GetSum, ClearsFreeItemsForAOneOnly)
{
    for (const std::uint8_t flag : {0, 2, 255})
        EXPECT_EQ(StepsOf(EngineRun({.bytFree = flag}).host).find("free"), std::string::npos);
    EXPECT_NE(StepsOf(EngineRun({.bytFree = 1}).host).find("free"), std::string::npos);
}

// Balance and business conditions, grades and the rest reach the engine and go no further.
TEST(GetSum, SendsTheSameWhateverTheArgumentsAreThatItDoesNotUse)
{
    const SumArguments plain = {
        .varDateStart = "2008-07-01", .bAccount = true, .BUnAccount = true, .strDefineSub = " 1=1 "};
    SumArguments other = plain;
    other.iEndbz = 3;
    other.iEndbzPrice = 4;
    other.BFsbz = 2;
    other.strCompareQuantity = ">";
    other.intInvCGrade = 2;
    other.blnUpGrade = true;
    other.blnWhSum = true;
    other.strDefineRec = " And 1=2";
    other.strDefineSal = " And 1=3";
    other.nCount = 9;
    EXPECT_EQ(StatementsOf(EngineRun(other).host), StatementsOf(EngineRun(plain).host));
}

TEST(GetSum, PastesValuesInAsTheyAre)
{
    const EngineRun run({.strInvCCode = "0'1", .varDateStart = "2008-07-01", .bAccount = true});
    EXPECT_NE(run.Opening().find("Like N'0'1%'"), std::string::npos);
}

TEST(GetSum, LooksForItsPoolByTheWholeName)
{
    for (const char* table : {"pool", "tempdb..pool", "tempdb..[pool]"}) {
        RecordingHost host;
        Prepare(host, {}, {});
        host.OpenAccount();
        clsIASFCReport engine;
        engine.tmpTable = table;
        engine.GetSum({});
        EXPECT_EQ(host.Sent().front().sql,
                  std::string("if exists(select * from  tempdb..sysobjects where name='") + table +
                      "') drop table " + table);
    }
}

TEST(ClsIASFCReport, HasItsTableUnderTwoNames)
{
    clsIASFCReport engine;
    EXPECT_EQ(engine.sTable(), "");
    engine.SetsTable("a");
    EXPECT_EQ(engine.tmpTable, "a");
    engine.tmpTable = "b";
    EXPECT_EQ(engine.sTable(), "b");
}

// What the pool is made of is told once: every column that an insert names is there, in that order.
TEST(ThePool, HasTheColumnsThatTheInsertsName)
{
    const EngineRun run({.varDateStart = "2008-07-01", .bAccount = true, .strDefineSub = " 1=1 "});
    const std::string insert = Find(run.host, "insert into");
    const std::string create = Find(run.host, "select top 0 ");
    std::size_t position = 0;
    const std::string list = insert.substr(insert.find('(') + 1, insert.find(')') - insert.find('(') - 1);
    for (const std::string& name : Split(list, ",")) {
        const std::string column = ToLower(Trim(name));
        const std::size_t found = ToLower(create).find(column, position);
        EXPECT_NE(found, std::string::npos) << column;
        position = found;
    }
    EXPECT_EQ(Split(list, ",").size(), 37U);
}

}  // namespace kavelin::test
