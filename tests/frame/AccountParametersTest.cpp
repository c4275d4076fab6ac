#include "frame/AccountParameters.h"

#include "frame/Errors.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

const std::string kStartDate = "Select * FROM AccInformation where cSysID= N'IA' and cName= N'dIAStartDate'";

DateTime Day(int year, unsigned month, unsigned day)
{
    return std::chrono::sys_days(std::chrono::year_month_day{
        std::chrono::year(year), std::chrono::month(month), std::chrono::day(day)});
}

std::string UserField(int number)
{
    return "Select * from UserDef  where cClass = N'存货' and  cItem = N'自定义项" + std::to_string(number) +
           "' and isnull(cItemName, N'')<> N''";
}

}  // namespace

TEST(GetAccInfoValue, OpensReadsAndClosesOneForwardOnlyRecordSet)
{
    RecordingHost host;
    host.OpenAccount();
    host.SetParameter("IA", "cValueStyle", "按仓库核算");
    EXPECT_EQ(GetAccInfoValue("IA", "cValueStyle"), Value("按仓库核算"));
    EXPECT_EQ(host.Events().Text(),
              "#1.OpenRecordset @1 location=3 type=0 lock=1 "
              "Select * FROM AccInformation where cSysID= N'IA' and cName= N'cValueStyle'\n"
              "@1.Field cvalue\n"
              "@1.Close\n");
}

TEST(GetAccInfoValue, FallsBackToTheDefaultAndThenToTheEmptyText)
{
    const struct {
        const char* what;
        Value value, byDefault, given;
    } cases[] = {
        {"a value", "1", "2", "1"},
        {"an empty value", "", "2", "2"},
        {"a null value", Value::Null(), "2", "2"},
        {"both null", Value::Null(), Value::Null(), ""},
        {"an empty value, default null", "", Value::Null(), ""},
        {"both empty", "", "", ""},
        {"a value of blanks", "  ", "2", "  "},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        host.OpenAccount();
        host.SetParameter("IA", "p", c.value, c.byDefault);
        EXPECT_EQ(GetAccInfoValue("IA", "p"), c.given) << c.what;
    }
}

TEST(GetAccInfoValue, GivesTheEmptyTextWithoutARowAndClosesTheSet)
{
    RecordingHost host;
    host.OpenAccount();
    EXPECT_EQ(GetAccInfoValue("IA", "none"), Value(""));
    EXPECT_EQ(host.Events().Lines().back(), "@1.Close");
}

TEST(GetAccInfoValue, TakesTheFirstRowOnly)
{
    RecordingHost host;
    host.OpenAccount();
    host.Script().rows["Select * FROM AccInformation where cSysID= N'IA' and cName= N'p'"] = {
        {"cvalue", "cDefault"}, {{"first", ""}, {"second", ""}}};
    EXPECT_EQ(GetAccInfoValue("IA", "p"), Value("first"));
}

TEST(GetAccInfoValue, CachesNothingAndPastesItsArgumentsAsTheyAre)
{
    RecordingHost host;
    host.OpenAccount();
    GetAccInfoValue("ia", "d'Or");
    GetAccInfoValue("ia", "d'Or");
    ASSERT_EQ(host.Sent().size(), 2U);
    EXPECT_EQ(host.Sent()[1].sql, "Select * FROM AccInformation where cSysID= N'ia' and cName= N'd'Or'");
}

TEST(GetAccInfoValue, LetsAFailedQueryThrough)
{
    RecordingHost host;
    host.OpenAccount();
    host.Script().failAtStatement = 1;
    EXPECT_THROW(GetAccInfoValue("IA", "p"), DatabaseError);
}

TEST(GetSysStartMonth, IsTheMonthOfTheParameterNamedAfterTheModule)
{
    const struct {
        Value value;
        int month;
    } cases[] = {
        {"2008-07-31", 7},    {" 2008-12-01 ", 12}, {"2008年1月1日", 1},
        {Day(2008, 3, 1), 3}, {Value::Null(), 0},   {"", 0},
        {"   ", 0},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        host.OpenAccount();
        host.Script().rows["SELECT * FROM AccInformation WHERE cSysID= N'SA' AND cName= N'dSAStartDate'"] = {
            {"cvalue"}, {{c.value}}};
        std::string system = "SA";
        EXPECT_EQ(GetSysStartMonth(system), c.month);
        EXPECT_EQ(system, "SA");
    }
}

TEST(GetSysStartMonth, TakesAnEmptyModuleForIAAndWritesItBack)
{
    RecordingHost host;
    host.OpenAccount();
    std::string system;
    EXPECT_EQ(GetSysStartMonth(system), 0);
    EXPECT_EQ(system, "IA");
    EXPECT_EQ(host.Events().Text(),
              "#1.OpenRecordset @1 location=3 type=3 lock=-1 "
              "SELECT * FROM AccInformation WHERE cSysID= N'IA' AND cName= N'dIAStartDate'\n");
}

TEST(GetIAStartMonth, IsTheMonthAsText)
{
    RecordingHost host;
    host.OpenAccount();
    EXPECT_EQ(GetIAStartMonth(), "0");
    host.SetParameter("IA", "dIAStartDate", "2008-07-01");
    EXPECT_EQ(GetIAStartMonth(), "7");
    host.SetParameter("IA", "dIAStartDate", "", "2008-11-01");
    EXPECT_EQ(GetIAStartMonth(), "11");
    host.SetParameter("IA", "dIAStartDate", Day(2008, 2, 29));
    EXPECT_EQ(GetIAStartMonth(), "2");
}

TEST(GetIAStartMonth, ShowsAMessageForAValueThatIsNoDateAndGivesZero)
{
    RecordingHost host;
    host.OpenAccount();
    host.SetParameter("IA", "dIAStartDate", "abc");
    host.Answers().texts = {{"Orvo.IA.CHHSSQL.06609", "start date "},
                            {"Orvo.IA.CHHSSQL.06610", " is no date"}};
    EXPECT_EQ(GetIAStartMonth(), "0");
    EXPECT_EQ(host.Events().Text(), "#1.OpenRecordset @1 location=3 type=0 lock=1 " + kStartDate +
                                        "\n"
                                        "@1.Field cvalue\n"
                                        "@1.Close\n"
                                        "new ResourceObject\n"
                                        "ResourceObject.GetResString Orvo.IA.CHHSSQL.06609\n"
                                        "ResourceObject.GetResString Orvo.IA.CHHSSQL.06610\n"
                                        "ResourceObject.ShowMessage start date abc is no date, 64\n");
}

class GetPeriodDatesTest : public testing::Test {
  protected:
    GetPeriodDatesTest()
    {
        host.OpenSystem();
        ModPub().gobjLogin = host.Login();
    }

    void SetPeriod()
    {
        host.Script().rows
            ["Select dBegin,dEnd from VosSystem..UA_Period where cAcc_ID= N'001' and iYear=2008 and iID=7"] =
            {{"dBegin", "dEnd"}, {{Day(2008, 7, 1), Day(2008, 7, 31)}}};
    }

    RecordingHost host;
    std::string year;
};

TEST_F(GetPeriodDatesTest, GivesBothDaysAndFillsAnEmptyYearFromTheLogin)
{
    SetPeriod();
    Value begin;
    Value end;
    EXPECT_TRUE(GetPeriodDates(7, &begin, &end, year));
    EXPECT_EQ(begin, Value("2008-07-01"));
    EXPECT_EQ(end, Value("2008-07-31"));
    EXPECT_EQ(year, "2008");
    EXPECT_EQ(host.Events().Text(),
              "Login.Year\n"
              "Login.AccountId\n"
              "#1.OpenRecordset @1 location=3 type=0 lock=1 "
              "Select dBegin,dEnd from VosSystem..UA_Period where cAcc_ID= N'001' and iYear=2008 and iID=7\n"
              "@1.Field dBegin\n"
              "@1.Field dEnd\n");
}

TEST_F(GetPeriodDatesTest, OnlyTellsWhetherThePeriodExistsWithNeitherArgument)
{
    SetPeriod();
    EXPECT_TRUE(GetPeriodDates(7, nullptr, nullptr, year));
    EXPECT_EQ(host.Events().Text().find("Field"), std::string::npos);
}

TEST_F(GetPeriodDatesTest, FillsOneArgumentWithoutTheOther)
{
    SetPeriod();
    Value end;
    EXPECT_TRUE(GetPeriodDates(7, nullptr, &end, year));
    EXPECT_EQ(end, Value("2008-07-31"));
}

TEST_F(GetPeriodDatesTest, IsFalseWithoutARowAndLeavesTheArguments)
{
    Value begin = "as it was";
    year = "2009";
    EXPECT_FALSE(GetPeriodDates(7, &begin, nullptr, year));
    EXPECT_EQ(begin, Value("as it was"));
    EXPECT_EQ(year, "2009");
    EXPECT_EQ(host.Sent()[0].sql,
              "Select dBegin,dEnd from VosSystem..UA_Period where cAcc_ID= N'001' and iYear=2009 and iID=7");
}

TEST(GetInvDefineNames, ReadsSixteenFieldsAndLeavesThoseWithoutARow)
{
    RecordingHost host;
    host.OpenAccount();
    host.Script().rows[UserField(1)] = {{"cClass", "cItem", "cItemName"}, {{"存货", "自定义项1", "颜色"}}};
    host.Script().rows[UserField(16)] = {{"cClass", "cItem", "cItemName"},
                                         {{"存货", "自定义项16", "first"}, {"存货", "自定义项16", "last"}}};
    std::array<std::string, 16> names;
    names.fill("before");
    GetInvDefineNames(names);
    EXPECT_EQ(names[0], "颜色");
    EXPECT_EQ(names[1], "before");
    EXPECT_EQ(names[14], "before");
    EXPECT_EQ(names[15], "last");
    ASSERT_EQ(host.Sent().size(), 16U);
    for (int number = 1; number <= 16; ++number)
        EXPECT_EQ(host.Sent()[static_cast<std::size_t>(number) - 1].sql, UserField(number));
}

TEST(InitLedgerObjects, HandsOverTheLoginAndKeepsTheObjects)
{
    RecordingHost host;
    ModPub().gobjLogin = host.Login();
    InitLedgerObjects();
    EXPECT_EQ(host.Events().Text(),
              "Login.ConnectionText\n"
              "Login.Password\n"
              "new LedgerLogin\n"
              "LedgerLogin.Initialise 'connection text', ';PWD=login password', False, False\n"
              "new LedgerPub\n"
              "LedgerPub.SetLogin gobjLedgerLogin\n"
              "LedgerPub.Reload '', ''\n");

    const auto login = ModPub().gobjLedgerLogin;
    const auto pub = ModPub().gobjLedgerPub;
    InitLedgerObjects();
    EXPECT_EQ(ModPub().gobjLedgerLogin, login);
    EXPECT_EQ(ModPub().gobjLedgerPub, pub);
}

}  // namespace kavelin::test
