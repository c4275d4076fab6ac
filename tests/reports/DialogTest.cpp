// The dialogs of all reports on the demo companies, as they open for a user and as they check his values.
#include "frame/Errors.h"
#include "frame/Text.h"
#include "host/Dialog.h"
#include "host/HostErrors.h"
#include "reports/AccountReport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test {

namespace {

using host::Dialog;
using host::FilterInput;
using host::HostFilterItem;
using host::Session;

std::string SettingOf(const demo::Profile& profile, std::string_view name)
{
    for (const demo::Setting& setting : profile.settings)
        if (EqualsNoCase(setting.name, name))
            return std::string(setting.value.value_or(""));
    return "";
}

// What a dialog shows of its fields before the user has done anything: "key=value" of those that have one, and
// "key locked".
std::string Opened(const Dialog& dialog)
{
    std::string text;
    for (const auto& item : dialog.Filter()->Items()) {
        if (!item->Shown().empty())
            text += item->Name() + "=" + item->Shown() + " ";
        if (item->state.locked)
            text += item->Name() + " locked ";
    }
    return text;
}

std::string Values(const HostFilterItem& item, bool second = false)
{
    std::string text;
    for (const host::Choice& choice : item.Choices(second))
        text += (text.empty() ? "" : ",") + choice.value;
    return text;
}

class DialogsOf : public testing::TestWithParam<std::string> {
  protected:
    void Enter(const std::string& language, const std::string& user = "")
    {
        objDialog.reset();
        objSession =
            std::make_unique<Session>(LoginTo(AccountOf(objProfile), language, user), LoggedConnections());
    }

    Dialog& Open(const std::string& report, const std::vector<std::string>& settings = {})
    {
        strReport = report;
        objDialog.reset();
        objDialog = std::make_unique<Dialog>(*objSession, host::FindReport(report));
        FilterInput input(host::TemplateOf(report), host::ValuePolicy::Checked);
        for (const std::string& setting : settings)
            input.Set(setting);
        objDialog->Set(input);
        return *objDialog;
    }

    const HostFilterItem& Item(std::string_view key) { return *objDialog->Filter()->Find(key); }

    // The rows of a query on the account, fields between "|", sorted by nothing but the query.
    std::string Query(const std::string& sql)
    {
        const auto rows = objSession->Account().OpenRecordset(sql, CursorLocation::Client, CursorType::Static,
                                                              LockType::ReadOnly);
        std::string text;
        for (; !rows->Eof(); rows->MoveNext()) {
            for (int field = 0; field < rows->FieldCount(); ++field)
                text += (field > 0 ? "|" : "") + ToText(rows->Field(field));
            text += "\n";
        }
        return text;
    }

    // The first `columns` columns of all that a field offers, in the form of Query.
    std::string Offered(const std::string& key, std::size_t columns, std::string_view search = "")
    {
        std::string text;
        for (const auto& row : objDialog->Offer(key, search, 1, 10000).rows) {
            for (std::size_t i = 0; i < std::min(columns, row.size()); ++i)
                text += (i > 0 ? "|" : "") + row[i];
            text += "\n";
        }
        return text;
    }

    const demo::Profile& objProfile = *demo::FindProfile(GetParam());
    std::string strReport;
    std::unique_ptr<Session> objSession;
    std::unique_ptr<Dialog> objDialog;
};

}  // namespace

// The login's month is December 2008, the last that has ledger lines.
TEST_P(DialogsOf, OpenWithTheirDefaultsAndLocksInBothLanguages)
{
    const std::string style = SettingOf(objProfile, "cValueStyle");
    const std::string abcLocks = std::string(style == "按仓库核算" ? "" : "cwhcode locked ") +
                                 (style == "按部门核算" ? "" : "cdepcode locked ");
    const std::map<std::string, std::string> wanted = {
        {"journal", "vouEstate=已记账单据 iMonth=2008.12 "},
        {"standard-cost-journal", "cDepCode locked "},
        {"stock-summary", "vouEstate=已记账单据 rdGrade=0 "},
        {"estimate-balance",
         "ia_subsidiary.iyear=2008 ia_subsidiary.iMonth=12月 bDispCheckFreeOnly=否 bDisZero=是 "},
        {"goods-summary", "iYear=2008 Ia_Ensubsidiary.cBustype=分期收款 IsMerge=否 "},
        {"goods-cost-summary", "IA_EnSubsidiary.iYear=2008 "},
        {"goods-cost-ledger", "IA_EnSubsidiary.iYear=2008 IA_EnSubsidiary.iMonth=12月 "},
        {"price-analysis", "iMonth=2008.12 ShowType=1 Base Price=3 avgPrice=2008.12 avgPrices=1 "},
        {"turnover", "iyear=2008 dismethod=按金额 "},
        {"abc", "iyear=2008 iperiod=12月 inclua=是 inclub=是 incluc=是 " + abcLocks},
        {"capital-share", ""},
        {"area-table", ""},
        {"goods-template", "Ia_Ensubsidiary.cBustype=全部 "},
    };
    for (const char* language : {"zh-CN", "en-US"}) {
        Enter(language);
        for (const host::Report& report : host::AllReports())
            EXPECT_EQ(Opened(Open(std::string(report.name))), wanted.at(std::string(report.name)))
                << report.name << " in " << language;
        EXPECT_TRUE(objSession->Messages().empty());
    }
}

TEST_P(DialogsOf, OfferTheListsThatTheAccountHas)
{
    Enter("zh-CN");
    Open("journal");
    // A year that is archived is closed.
    std::vector<std::string> years = {"2008.", "2009."};
    if (SettingOf(objProfile, "ArchiveDate").starts_with("2008"))
        years.erase(years.begin());
    std::string months;
    for (const std::string& year : years)
        for (const char* month : {"01", "02", "03", "04", "05", "06", "07", "08", "09", "10", "11", "12"})
            months += (months.empty() ? "" : ",") + year + month;
    EXPECT_EQ(Values(Item("iMonth")), months);
    EXPECT_EQ(Values(Item("iMonth"), true), months);

    Open("estimate-balance");
    EXPECT_EQ(Values(Item("ia_subsidiary.iyear")), "2007,2008,2009");
    EXPECT_EQ(Values(Item("ia_subsidiary.iMonth")), "1月,2月,3月,4月,5月,6月,7月,8月,9月,10月,11月,12月");
    EXPECT_EQ(Values(Item("ia_subsidiary.cBusType")), SettingOf(objProfile, "cSysVersion") == "工业"
                                                          ? "普通采购,委外加工,一般贸易进口,进料加工"
                                                          : "普通采购,受托代销,一般贸易进口,进料加工");
    Open("goods-summary");
    EXPECT_EQ(Values(Item("Ia_Ensubsidiary.cBustype")), SettingOf(objProfile, "bSaleType") == "发出商品"
                                                            ? "分期收款,委托代销,普通销售,全部"
                                                            : "分期收款,委托代销,全部");
    Open("stock-summary");
    EXPECT_EQ(Values(Item("busEstate")), "所有业务,发生业务,出库未入库,入库未出库,未发生");
}

TEST_P(DialogsOf, OfferTheWarehousesAndDepartmentsThatTakePartInCosting)
{
    const struct {
        const char *report, *warehouse, *department;
    } fields[] = {{"journal", "cWhCode", "cDepCode"},
                  {"standard-cost-journal", "cWhCode", "cDepCode"},
                  {"price-analysis", "cWhCode", "cDepCode"},
                  {"turnover", "cwhcode", "cdepcode"},
                  {"abc", "cwhcode", "cdepcode"},
                  {"estimate-balance", "ia_subsidiary.cWhCode", "ia_subsidiary.cDepCode"},
                  {"stock-summary", "cwhcode", nullptr}};
    for (const char* language : {"zh-CN", "en-US"}) {
        Enter(language);
        const std::string warehouses =
            Query("select cWhCode, cWhName from Warehouse where bInCost = 1 order by cWhCode");
        const std::string departments = Query(
            "select cDepCode, cDepName from Department where cDepCode in (select cDepCode from Warehouse where"
            " bInCost = 1) order by cDepCode");
        EXPECT_NE(warehouses, Query("select cWhCode, cWhName from Warehouse order by cWhCode"));
        for (const auto& field : fields) {
            Open(field.report);
            EXPECT_EQ(Offered(field.warehouse, 2), warehouses) << field.report;
            EXPECT_EQ(objDialog->Offer(field.warehouse, "", 1, 1).captions.front(),
                      std::string_view(language) == "zh-CN" ? "仓库编码" : "Warehouse code");
            if (!field.department)
                continue;
            EXPECT_EQ(Offered(field.department, 2), departments) << field.report;
        }
    }
}

TEST_P(DialogsOf, OfferVoucherTypesByTheEdition)
{
    const bool industrial = SettingOf(objProfile, "cSysVersion") == "工业";
    const std::string all =
        "01 011 05 06 08 09 10 11 20 21 22 24 25 26 27 28 29 30 301 32 35 70 701 EX26 EX27 ";
    const auto without = [](std::string codes, std::initializer_list<const char*> gone) {
        for (const char* code : gone)
            codes = ReplaceAll(codes, std::string(" ") + code + " ", " ");
        return codes;
    };
    const std::string wanted = industrial ? all : without(all, {"10", "11"});
    for (const char* language : {"zh-CN", "en-US"}) {
        Enter(language);
        const auto codes = [&](const char* report) {
            Open(report);
            return ReplaceAll(Offered("cVouType", 1), "\n", " ");
        };
        EXPECT_EQ(codes("journal"), wanted);
        EXPECT_EQ(codes("standard-cost-journal"), without(wanted, {"35"}));
        EXPECT_EQ(codes("price-analysis"), without(wanted, {"20", "21", "22", "25", "35"}));
        EXPECT_EQ(Offered("cVouType", 2, "EX26"),
                  std::string_view(language) == "zh-CN" ? "EX26|出口发票\n" : "EX26|Export invoice\n");
    }
}

// Every lookup of every dialog runs, counts what it shows, finds its own first row and pages through the rest.
TEST_P(DialogsOf, OfferWhatTheirLookupsHoldPageByPage)
{
    Enter("zh-CN");
    int lookups = 0;
    for (const host::Report& report : host::AllReports()) {
        Open(std::string(report.name));
        for (const auto& item : objDialog->Filter()->Items()) {
            if (!item->HasLookup())
                continue;
            ++lookups;
            SCOPED_TRACE(strReport + " " + item->Name());
            const host::OfferedRows all = objDialog->Offer(item->Name(), "", 1, 10000);
            EXPECT_EQ(objDialog->LookupCount(*item), static_cast<std::int64_t>(all.rows.size()));
            EXPECT_FALSE(all.more);
            if (all.rows.size() < 2)
                continue;
            const host::OfferedRows second = objDialog->Offer(item->Name(), "", 2, 1);
            EXPECT_EQ(second.rows, (std::vector<std::vector<std::string>>{all.rows[1]}));
            EXPECT_EQ(second.more, all.rows.size() > 2);
            const auto found = objDialog->Offer(item->Name(), all.rows[0][0], 1, 10000).rows;
            EXPECT_NE(std::ranges::find(found, all.rows[0]), found.end());
            EXPECT_TRUE(objDialog->Offer(item->Name(), "%", 1, 1).rows.empty() ||
                        all.rows[0][0].find('%') != 0);
        }
    }
    EXPECT_GT(lookups, 200);
}

TEST_P(DialogsOf, LimitALookupByWhatWasChosenBesideIt)
{
    Enter("zh-CN");
    Open("standard-cost-journal", {"cInvCCode=0201", "cWhCode=01"});
    EXPECT_EQ(Offered("cInvCode", 1),
              Query("select cInvCode from Inventory where cInvCCode = '0201' order by cInvCode"));
    EXPECT_EQ(Offered("cDepCode", 1), Query("select cDepCode from Warehouse where cWhCode = '01'"));
    Open("standard-cost-journal", {"cInvCCode=0201"});
    objDialog->Set([] {
        FilterInput input(host::TemplateOf("standard-cost-journal"), host::ValuePolicy::Checked);
        input.Set("cInvCCode=");
        return input;
    }());
    EXPECT_EQ(Offered("cInvCode", 1), Query("select cInvCode from Inventory order by cInvCode"));

    Open("standard-cost-journal", {"cCCCode=01", "cVCCode=01"});
    EXPECT_EQ(Offered("CcCusCode", 1),
              Query("select cCusCode from Customer where cCCCode = '01' order by cCusCode"));
    EXPECT_EQ(Offered("cVenCode", 1),
              Query("select cVenCode from Vendor where cVCCode = '01' order by cVenCode"));

    Open("estimate-balance", {"Inventory.cInvCCode=02", "Vendor.cVCCode=01"});
    EXPECT_EQ(Offered("ia_subsidiary.cInvCode", 1),
              Query("select cInvCode from Inventory where cInvCCode like '02%' order by cInvCode"));
    EXPECT_EQ(Offered("ia_subsidiary.cVenCode", 1),
              Query("select cVenCode from Vendor where cVCCode like '01%' order by cVenCode"));

    Open("stock-summary");
    EXPECT_EQ(Offered("cfree1", 1),
              Query("select cValue from Demo_FieldValue where cID = 20 order by cValue"));
    EXPECT_EQ(Offered("cdefine1", 1),
              Query("select cValue from Demo_FieldValue where cID = 1 order by cValue"));
}

TEST_P(DialogsOf, MoveTheMonthWithTheYearAndKeepTheUsersChoice)
{
    Enter("zh-CN");
    Open("estimate-balance", {"ia_subsidiary.iyear=2009"});
    EXPECT_EQ(Item("ia_subsidiary.iMonth").From(), "12月");
    Open("estimate-balance", {"ia_subsidiary.iMonth=3", "ia_subsidiary.iyear=2007"});
    EXPECT_EQ(Item("ia_subsidiary.iMonth").From(), "3月");
    Open("goods-cost-ledger", {"IA_EnSubsidiary.iYear=2009"});
    EXPECT_EQ(Item("IA_EnSubsidiary.iMonth").Shown(), "12月");
    Open("goods-cost-ledger", {"IA_EnSubsidiary.iMonth=2..5"});
    EXPECT_EQ(Item("IA_EnSubsidiary.iMonth").Shown(), "2月..5月");
}

TEST_P(DialogsOf, CheckTheirValuesOnOkInTheUsersLanguage)
{
    const std::string dates = "dVouDate=2008-01-01..2008-03-31";
    const struct {
        std::string report;
        std::vector<std::string> settings;
        std::string chinese, english;
    } cases[] = {
        {"stock-summary",
         {dates, "vouEstate=直运单据"},
         "选择直运单据时，必须同时选择已记账单据或未记账单据。",
         "With direct-business documents choose posted or unposted documents as well."},
        {"stock-summary", {dates, "vouEstate="}, "必须选择单据状态。", "Choose a document state."},
        {"stock-summary",
         {dates, "cInvCCode=0101", "cinvcode=PMP-01-001"},
         "存货不属于所选的存货分类。",
         "The item is not of the chosen class."},
        {"stock-summary", {dates, "vouEstate=直运单据", "vouEstate=已记账单据"}, "", ""},
        {"estimate-balance", {"ia_subsidiary.iMonth="}, "必须录入查询月份", "必须录入查询月份"},
        {"price-analysis", {"avgPrice=2009.03..2009.11"}, "", ""},
        {"goods-summary",
         {"Inventory.cInvStd=no such model"},
         "起始规格型号不存在。",
         "The first model does not exist."},
        {"goods-summary",
         {"iUnitNumber=12345"},
         "辅计量单位序号不正确，最多四位。",
         "The unit number is wrong; four characters at most."},
        {"goods-summary",
         {"Ia_Ensubsidiary.cBustype="},
         "业务类型不正确，请重新选择。",
         "The business type is not one of those offered."},
        {"goods-summary", {}, "", ""},
        {"capital-share", {}, "", ""},
        {"turnover", {}, "", ""},
        {"abc", {}, "", ""},
    };
    for (const char* language : {"zh-CN", "en-US"}) {
        Enter(language);
        for (const auto& c : cases) {
            objSession->ForgetMessages();
            Dialog& dialog = Open(c.report, c.settings);
            bool accepted = true;
            try {
                dialog.Accept();
            } catch (const host::FilterRefused&) {
                accepted = false;
            }
            const std::string& wanted = std::string_view(language) == "zh-CN" ? c.chinese : c.english;
            const std::string what = c.report + " " + (c.settings.empty() ? "" : c.settings.back());
            EXPECT_EQ(accepted, wanted.empty()) << what;
            std::string shown;
            for (const host::ShownMessage& message : objSession->Messages())
                shown += message.text;
            EXPECT_EQ(shown, wanted) << what;
        }
    }
}

TEST_P(DialogsOf, KeepTheAveragePriceWithinOneYear)
{
    Enter("en-US");
    if (SettingOf(objProfile, "ArchiveDate").starts_with("2008")) {
        EXPECT_THROW(Open("price-analysis", {"avgPrice=2008.11..2009.02"}), host::UsageError);
        return;
    }
    Dialog& dialog = Open("price-analysis", {"avgPrice=2008.11..2009.02"});
    EXPECT_THROW(dialog.Accept(), host::FilterRefused);
    EXPECT_EQ(objSession->Messages().at(0).text, "The two months must lie in one year.");
    EXPECT_NO_THROW(Open("price-analysis", {"avgPrice=2008.03..2008.11"}).Accept());
}

INSTANTIATE_TEST_SUITE_P(Profiles, DialogsOf, testing::ValuesIn(ProfileNames()),
                         [](const auto& tested) { return PlainName(tested.param); });

// In the profile that has permissions switched on, anna has some warehouses and departments only.
class RestrictedDialogs : public DialogsOf {
  protected:
    std::string Rights(const std::string& kind, const std::string& table, const std::string& code)
    {
        return Query("select " + code + " from " + table + " where " + code +
                     " in (select cCode from Demo_UserRight where cUser = N'anna' and cKind = N'" + kind +
                     "') order by " + code);
    }
};

TEST_P(RestrictedDialogs, OfferARestrictedUserHisWarehousesAndDepartmentsOnly)
{
    for (const char* language : {"zh-CN", "en-US"}) {
        Enter(language, "anna");
        const std::string warehouses = Rights("Warehouse", "Warehouse", "cWhCode");
        ASSERT_NE(warehouses, "");
        ASSERT_NE(warehouses, Query("select cWhCode from Warehouse where bInCost = 1 order by cWhCode"));
        const std::string departments = Rights("Department", "Department", "cDepCode");
        ASSERT_NE(departments, "");
        // Of a dialog whose lookup the callbacks fill, those that have a warehouse for costing.
        const std::string ofWarehouses = Query(
            "select cDepCode from Department where cDepCode in (select cCode from Demo_UserRight where cUser ="
            " N'anna' and cKind = N'Department') and cDepCode in (select cDepCode from Warehouse where bInCost"
            " = 1) order by cDepCode");

        const struct {
            const char *report, *key;
            const std::string& wanted;
        } fields[] = {{"journal", "cWhCode", warehouses},
                      {"journal", "cDepCode", ofWarehouses},
                      {"standard-cost-journal", "cWhCode", warehouses},
                      {"standard-cost-journal", "cDepCode", ofWarehouses},
                      {"stock-summary", "cwhcode", warehouses},
                      {"stock-summary", "cDepCode", departments},
                      {"estimate-balance", "ia_subsidiary.cWhCode", warehouses},
                      {"estimate-balance", "ia_subsidiary.cDepCode", ofWarehouses},
                      {"goods-summary", "Ia_Ensubsidiary.cWhCode", warehouses},
                      {"goods-summary", "Ia_Ensubsidiary.cDepCode", departments},
                      {"goods-cost-summary", "Ia_Ensubsidiary.cWhCode", warehouses},
                      {"goods-cost-summary", "Ia_Ensubsidiary.cAccDep", departments},
                      {"goods-cost-ledger", "Ia_Ensubsidiary.cWhCode", warehouses},
                      {"goods-cost-ledger", "Ia_Ensubsidiary.cAccDep", departments},
                      {"price-analysis", "cWhCode", warehouses},
                      {"price-analysis", "cDepCode", ofWarehouses},
                      {"price-analysis", "cAccDep", departments},
                      {"turnover", "cwhcode", warehouses},
                      {"turnover", "cdepcode", ofWarehouses},
                      {"abc", "cwhcode", warehouses},
                      {"abc", "cdepcode", ofWarehouses},
                      {"capital-share", "cwhcode", warehouses}};
        for (const auto& field : fields) {
            Open(field.report);
            EXPECT_EQ(Offered(field.key, 1), field.wanted) << field.report << " " << field.key;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Profiles, RestrictedDialogs, testing::Values("invoices"),
                         [](const auto& tested) { return PlainName(tested.param); });

// An account whose only month is deleted.
TEST(DialogOfTheJournal, CantOpenWithoutAMonthThatIsOpen)
{
    SmallAccount account;
    account.Run(
        "insert into VosSystem..UA_Period (cAcc_ID, iYear, iID, dBegin, dEnd, bIsDelete) values"
        " (N'001', 2008, 7, '2008-07-01', '2008-07-31', 1)");
    account.Run(
        "insert into AccInformation (cSysID, cName, cValue) values (N'IA', N'dIAStartDate', N'2008-01-01')");
    Session session(LoginTo(account.Path(), "zh-CN"), LoggedConnections());
    try {
        Dialog dialog(session, host::FindReport("journal"));
        FAIL();
    } catch (const Error& e) {
        EXPECT_STREQ(e.what(), "The account has no month that is open for inventory accounting.");
    }
    EXPECT_NO_THROW(Dialog(session, host::FindReport("capital-share")));
}

// From the month of the start date on, the day of which doesn't count.
TEST(DialogOfTheJournal, OffersTheMonthsThatAreOpen)
{
    SmallAccount account;
    account.Run(
        "insert into VosSystem..UA_Period (cAcc_ID, iYear, iID, dBegin, dEnd, bIsDelete) values"
        " (N'001', 2008, 6, '2008-06-01', '2008-06-30', 0), (N'001', 2008, 7, '2008-07-01', '2008-07-31', 0),"
        " (N'001', 2008, 8, '2008-08-01', '2008-08-31', 1), (N'001', 2009, 1, '2009-01-01', '2009-01-31', 0),"
        " (N'002', 2008, 9, '2008-09-01', '2008-09-30', 0), (N'001', 9999, 1, '2099-01-01', '2099-01-31', 0)");
    account.Run(
        "insert into AccInformation (cSysID, cName, cValue) values (N'IA', N'dIAStartDate', N'2008-07-15'),"
        " (N'IA', N'bWarehouseCheck', N'False'), (N'IA', N'cOther', N'no date')");
    Session session(LoginTo(account.Path(), "zh-CN"), LoggedConnections());
    {
        Dialog dialog(session, host::FindReport("journal"));
        EXPECT_EQ(Values(*dialog.Filter()->Find("iMonth")), "2008.07,2009.01");
    }
    account.Run(
        "insert into AccInformation (cSysID, cName, cValue) values (N'AA', N'ArchiveDate', N'2008-06-30')");
    Dialog dialog(session, host::FindReport("journal"));
    EXPECT_EQ(Values(*dialog.Filter()->Find("iMonth")), "2009.01");
}

}  // namespace kavelin::test
