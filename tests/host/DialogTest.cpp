// What the host does around the callbacks of a dialog. The callbacks here are the test's own.
#include "host/Dialog.h"

#include "frame/ModPub.h"
#include "frame/Text.h"
#include "host/FilterTemplate.h"
#include "host/HostErrors.h"
#include "support/RecordingConnection.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace kavelin::host {
namespace {

using test::ConnectionScript;
using test::EventLog;
using test::RecordingConnection;
using test::Rows;

// Notes each callback with its key and what the changed field holds, then does what the test wants done.
class FakeControl : public LateBound {
  public:
    using Does = std::function<void(ReportFilterObject& filter, std::vector<Variant>& arguments)>;

    std::string log;
    std::map<std::string, Does, LessNoCase> does;

    Variant Get(std::string_view) override { return {}; }
    void Put(std::string_view, const Variant&) override {}
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        std::vector<Variant> copy = arguments;
        return CallByReference(member, copy);
    }
    Variant CallByReference(std::string_view member, std::vector<Variant>& arguments) override
    {
        const bool keyed = std::holds_alternative<Value>(arguments[0]);
        const auto filter = ObjectOf<ReportFilterObject>(arguments[keyed ? 1 : 0], member);
        log += std::string(member.substr(std::string_view("CallBack_").size()));
        if (keyed) {
            const std::string key = ToText(ValueOf(arguments[0], member));
            const auto item = filter->FilterList()->Item(key);
            log += "(" + key + " " + ToText(item->varValue()) +
                   (item->RangeInput() ? ".." + ToText(item->varValue2()) : "") + ")";
        }
        log += "\n";
        if (const auto found = does.find(member); found != does.end())
            found->second(*filter, arguments);
        return Value();
    }
};

class DialogTest : public testing::Test {
  protected:
    DialogTest()
    {
        objScript->rowsByStart["select top 1 iYear, iID"] =
            Rows{{"iYear", "iID"}, {{Value(2008), Value(12)}}};
        AccountLogin login;
        login.connectionString = "Embedded Account=x";
        login.language = "en-US";
        objSession =
            std::make_unique<Session>(login, ConnectionSource({}, nullptr, [this] {
                                          return std::make_shared<RecordingConnection>(objEvents, objScript);
                                      }));
    }

    std::unique_ptr<Dialog> Open(const std::string& report)
    {
        strReport = report;
        return std::make_unique<Dialog>(*objSession, FindReport(report), objControl);
    }

    FilterInput Input(std::initializer_list<std::string_view> assignments,
                      ValuePolicy policy = ValuePolicy::Checked) const
    {
        FilterInput input(TemplateOf(strReport), policy);
        for (const std::string_view assignment : assignments)
            input.Set(assignment);
        return input;
    }

    template <class Does>
    static std::string Refusal(Does does)
    {
        try {
            does();
        } catch (const UsageError& e) {
            return e.what();
        }
        return "";
    }

    std::string strReport;
    std::shared_ptr<FakeControl> objControl = std::make_shared<FakeControl>();
    std::shared_ptr<EventLog> objEvents = std::make_shared<EventLog>();
    std::shared_ptr<ConnectionScript> objScript = std::make_shared<ConnectionScript>();
    std::unique_ptr<Session> objSession;
};

TEST_F(DialogTest, GoesThroughTheCallbacksInTheOrderOfAPersonAtAScreen)
{
    const auto dialog = Open("capital-share");
    dialog->Set(Input({"cNo=10", "cinvcode=A..B"}));
    dialog->Accept();
    // Values in the template's order, each followed by both callbacks on it; what was not given is not told.
    EXPECT_EQ(objControl->log,
              "FilterInit\nReportViewInit\nValueChange(cinvcode A..B)\nReportViewChange(cinvcode A..B)\n"
              "ValueChange(cNo 10)\nReportViewChange(cNo 10)\nFilterClick\n");
}

TEST_F(DialogTest, HasTheTemplatesDefaultsBeforeItOpensAndTheUsersValuesAfterwards)
{
    std::string atOpening;
    objControl->does["CallBack_FilterInit"] = [&](ReportFilterObject& filter, auto&) {
        atOpening = ToText(filter.FilterList()->Item("vouEstate")->varValue());
        filter.FilterList()->Item("rdGrade")->SetvarValue("0");
    };
    const auto dialog = Open("stock-summary");
    dialog->Set(Input({"cRdCode=101"}));
    EXPECT_EQ(atOpening, "已记账单据");
    EXPECT_EQ(dialog->Filter()->Find("vouEstate")->From(), "已记账单据");
    EXPECT_EQ(dialog->Filter()->Find("rdGrade")->From(), "0");
    EXPECT_EQ(dialog->Filter()->Find("cRdCode")->Shown(), "101");
}

TEST_F(DialogTest, AnEmptyValueTakesTheDialogsDefaultAwayAndIsTold)
{
    objControl->does["CallBack_FilterInit"] = [&](ReportFilterObject& filter, auto&) {
        filter.SetFieldValue("iyear", Value("2008"));
    };
    const auto dialog = Open("turnover");
    dialog->Set(Input({"iyear="}));
    EXPECT_EQ(dialog->Filter()->Find("iyear")->From(), "");
    EXPECT_NE(objControl->log.find("ValueChange(iyear )"), std::string::npos);
}

TEST_F(DialogTest, NamesTheFieldWhoseValueACallbackCannotRead)
{
    objControl->does["CallBack_ValueChange"] = [](ReportFilterObject& filter, auto& arguments) {
        if (ToText(ValueOf(arguments[0], "key")) == "iyear")
            ToInt32(filter.FilterList()->Item("iyear")->varValue());
    };
    const auto dialog = Open("abc");
    EXPECT_EQ(Refusal([&] { dialog->Set(Input({"iyear="})); }),
              "iyear: Type mismatch: \"\" is no number; it takes an accounting year, YYYY.");
    objControl->does["CallBack_ValueChange"] = [](auto&, auto&) { throw Error("The account has no years."); };
    try {
        dialog->Set(Input({"iyear=2008"}));
        FAIL();
    } catch (const Error& e) {
        EXPECT_STREQ(e.what(), "The account has no years.") << "other errors stay as they are";
        EXPECT_EQ(dynamic_cast<const UsageError*>(&e), nullptr);
    }
}

TEST_F(DialogTest, RefusesAValueForALockedFieldAtTheMomentWhenItIsSet)
{
    objControl->does["CallBack_ValueChange"] = [](ReportFilterObject& filter, auto& arguments) {
        if (ToText(ValueOf(arguments[0], "key")) == "DispatchList.cDLCode")
            filter.SetFieldLocked("rdrecord32.cCode", true);
    };
    const auto dialog = Open("goods-summary");
    EXPECT_EQ(Refusal([&] { dialog->Set(Input({"rdrecord32.cCode=1"})); }), "");
    EXPECT_EQ(Refusal([&] {
                  dialog->Set(Input({"DispatchList.cDLCode=1", "rdrecord32.cCode=1"}));
              }),
              "rdrecord32.cCode: the dialog has locked this field (Sales issue number).");
}

TEST_F(DialogTest, TakesOfAListOnlyWhatItOffersAtThatMoment)
{
    objControl->does["CallBack_FilterInit"] = [](ReportFilterObject& filter, auto&) {
        filter.FilterList()->Item("iyear")->SetListSource("2007,2008");
        filter.FilterList()->Item("iperiod")->SetListSource("1月,2月,3月,");
    };
    objControl->does["CallBack_ValueChange"] = [](ReportFilterObject& filter, auto& arguments) {
        if (ToText(ValueOf(arguments[0], "key")) == "iyear")
            filter.RefreshFieldList("iPeriod", "IA.Oth", "11月,12月,");
    };
    const auto dialog = Open("abc");
    EXPECT_EQ(Refusal([&] { dialog->Set(Input({"iperiod=12"})); }),
              "iperiod: the dialog doesn't offer 12月, but 1月, 2月, 3月. Did you mean 1月?");
    dialog->Set(Input({"iperiod=2"}));
    dialog->Set(Input({"iperiod=12", "iyear=2008"}));
    EXPECT_EQ(dialog->Filter()->Find("iperiod")->From(), "12月");
    EXPECT_EQ(Refusal([&] { dialog->Set(Input({"iyear=2010"})); }),
              "iyear: the dialog doesn't offer 2010, but 2007, 2008.");
    dialog->Set(Input({"iyear=2010"}, ValuePolicy::Legacy));
    EXPECT_EQ(dialog->Filter()->Find("iyear")->From(), "2010");
}

TEST_F(DialogTest, TakesAnEntryByItsCaptionAndNamesOnlyTheFirstOfALongList)
{
    objControl->does["CallBack_FilterInit"] = [](ReportFilterObject& filter, auto&) {
        filter.FilterList()->Item("NoSub.cBusType")->SetListSource("普通采购,普通销售,a,b,c,d,e,f,g,h,i,j,k");
    };
    const auto dialog = Open("journal");
    dialog->Set(Input({"NoSub.cBusType=ordinary SALE", "NoSub.cBusType=普通采购"}));
    EXPECT_EQ(dialog->Filter()->Find("NoSub.cBusType")->From(), "普通销售\t普通采购");
    EXPECT_EQ(
        Refusal([&] { dialog->Set(Input({"NoSub.cBusType=sales of all"})); }),
        "NoSub.cBusType: the dialog doesn't offer sales of all, but 普通采购, 普通销售, a, b, c, d, e, f, g, h, i, j "
        "and 1 more.");
}

TEST_F(DialogTest, RefusesValuesThatALaterOneTakesAway)
{
    objControl->does["CallBack_ValueChange"] = [](ReportFilterObject& filter, auto& arguments) {
        if (ToText(ValueOf(arguments[0], "key")) == "cVouType")
            filter.SetFieldValue("dVouDate", Value(""));
    };
    const auto dialog = Open("journal");
    EXPECT_EQ(
        Refusal([&] {
            dialog->Set(Input({"dVouDate=2008-01-01..2008-01-31", "cVouType=01"}));
        }),
        "dVouDate: 2008-01-01..2008-01-31 doesn't go with the other values; the dialog has made \"..2008-01-31\" "
        "of it.");
}

TEST_F(DialogTest, AsksForMandatoryFieldsBeforeOk)
{
    const auto dialog = Open("goods-summary");
    EXPECT_EQ(Refusal([&] { dialog->Accept(); }),
              "goods-summary needs iYear (Accounting year): an accounting year, YYYY.");
    EXPECT_EQ(objControl->log.find("FilterClick"), std::string::npos);
    dialog->Set(Input({"iYear=2008"}));
    EXPECT_NO_THROW(dialog->Accept());
}

TEST_F(DialogTest, IsNotAcceptedIfTheCheckCancels)
{
    objControl->does["CallBack_FilterClick"] = [](ReportFilterObject&, std::vector<Variant>& arguments) {
        EXPECT_EQ(ValueOf(arguments[1], "Cancel"), Value(false));
        Resources().ShowMessage("No.", kInformation);
        arguments[1] = Value(true);
    };
    const auto dialog = Open("capital-share");
    try {
        dialog->Accept();
        FAIL();
    } catch (const FilterRefused& e) {
        EXPECT_STREQ(e.what(), "The filter of capital-share was not accepted.");
    }
    EXPECT_EQ(objSession->Messages(), (std::vector<ShownMessage>{{"No.", kInformation}}));
}

TEST_F(DialogTest, ShowsTheViewThatTheCallbacksAskFor)
{
    objControl->does["CallBack_ReportViewInit"] = [](ReportFilterObject&, std::vector<Variant>& arguments) {
        arguments[1] = Value("ordin");
    };
    objControl->does["CallBack_ReportViewChange"] = [](ReportFilterObject&, std::vector<Variant>& arguments) {
        if (ToText(ValueOf(arguments[0], "key")) == "rdGrade")
            arguments[2] = Value(ToText(ValueOf(arguments[2], "view")) + "->cross");
    };
    const auto dialog = Open("stock-summary");
    EXPECT_EQ(dialog->View(), "ordin");
    dialog->Set(Input({"cRdCode=1"}));
    EXPECT_EQ(dialog->View(), "ordin");
    dialog->Set(Input({"rdGrade=2"}));
    EXPECT_EQ(dialog->View(), "ordin->cross");
}

TEST_F(DialogTest, IsThereForAReportWithoutOneToHoldItsArguments)
{
    strReport = "area-table";
    Dialog dialog(*objSession, FindReport("area-table"));
    dialog.Set(Input({"IADataTable=rows", "IAAreeTable=lines"}));
    dialog.Accept();
    EXPECT_EQ(std::get<Value>(dialog.Filter()->ContextArgs()->Item("iadatatable")), Value("rows"));
}

TEST_F(DialogTest, LendsTheLibraryItsPlatformAndLanguageWhileItLives)
{
    objControl->does["CallBack_FilterInit"] = [](auto&, auto&) { throw Error("It can't."); };
    EXPECT_THROW(Open("journal"), Error);
    EXPECT_EQ(ModPub().gobjPlatform, nullptr);
    objControl->does.clear();
    auto dialog = Open("journal");
    EXPECT_NE(ModPub().gobjPlatform, nullptr);
    EXPECT_EQ(ModPub().gstrLanguage, "en-US");
    dialog.reset();
    EXPECT_EQ(ModPub().gobjPlatform, nullptr);
}

TEST_F(DialogTest, PagesThroughALookupUnderTheConditionsOfTheDialog)
{
    objControl->does["CallBack_FilterInit"] = [this](ReportFilterObject& filter, auto&) {
        ModPub().gobjLogin = filter.Login();
        ModPub().gcnnAccount = objSession->Connections().Open("report", "x", "");
    };
    objControl->does["CallBack_ValueChange"] = [](ReportFilterObject& filter, auto& arguments) {
        if (ToText(ValueOf(arguments[0], "key")) == "cInvCCode")
            filter.SetFieldRefCondition("cInvCode", "", " #FN[cInvCCode]='01'");
    };
    const auto dialog = Open("standard-cost-journal");
    objScript->rowsByStart["select top "] =
        Rows{{"a", "b"}, {{Value("1"), Value("x")}, {Value("2"), Value::Null()}, {Value("3"), Value("z")}}};
    dialog->Set(Input({"cInvCCode=01"}));

    OfferedRows page = dialog->Offer("CINVCODE", "PM", 1, 2);
    EXPECT_EQ(page.rows, (std::vector<std::vector<std::string>>{{"1", "x"}, {"2", ""}}));
    EXPECT_TRUE(page.more);
    EXPECT_EQ(page.captions.front(), "Item code");
    const std::string sql = objScript->sent.back().sql;
    EXPECT_TRUE(sql.starts_with("select top 3 Lookup.[")) << sql;
    EXPECT_NE(sql.find(" where (Lookup.[cInvCCode]='01') and (Lookup.[cInvCode] like N'PM%' or Lookup.["),
              std::string::npos)
        << sql;
    page = dialog->Offer("cInvCode", "", 2, 2);
    EXPECT_TRUE(objScript->sent.back().sql.starts_with("select top 5 "));
    EXPECT_EQ(page.rows, (std::vector<std::vector<std::string>>{{"3", "z"}}));
    EXPECT_FALSE(page.more);
}

TEST_F(DialogTest, PagesThroughAListByCodeOrCaption)
{
    const auto dialog = Open("journal");
    const OfferedRows all = dialog->Offer("vouEstate", "", 1, 1);
    EXPECT_EQ(all.rows, (std::vector<std::vector<std::string>>{{"已记账单据", "Posted documents"}}));
    EXPECT_TRUE(all.more);
    EXPECT_EQ(dialog->Offer("vouEstate", "unPOSTED", 1, 9).rows,
              (std::vector<std::vector<std::string>>{{"未记账单据", "Unposted documents"}}));
    EXPECT_TRUE(dialog->Offer("vouEstate", "", 3, 1).rows.empty());
    EXPECT_EQ(
        Refusal([&] { dialog->Offer("dVouDate", "", 1, 1); }),
        "dVouDate offers no list: it takes a date, YYYY-MM-DD, or a range FROM..TO of which either end may be "
        "missing.");
}

TEST_F(DialogTest, TurnsTheMonthsOfTheJournalIntoDatesOnOk)
{
    objControl->does["CallBack_FilterInit"] = [](ReportFilterObject& filter, auto&) {
        const auto months = filter.FilterList()->Item("iMonth");
        months->SetvarValue("2008.12");
        months->SetvarValue2("2008.12");
    };
    objScript->rowsByStart["select min(dBegin), max(dEnd)"] =
        Rows{{"", ""}, {{Value("2008-11-26"), Value("2009-01-25")}}};
    const struct {
        std::initializer_list<std::string_view> given;
        std::string_view posting, document, limits;
    } cases[] = {
        {{},
         "2008-11-26..2009-01-25",
         "",
         " and iYear * 100 + iID >= 200812 and iYear * 100 + iID <= 200812"},
        {{"iMonth=2008-03.."}, "2008-11-26..", "", " and iYear * 100 + iID >= 200803"},
        {{"iMonth=..2008-03"}, "..2009-01-25", "", " and iYear * 100 + iID <= 200803"},
        {{"vouEstate=未记账单据"}, "", "2008-11-26..2009-01-25", "12"},
        {{"vouEstate=已记账单据", "vouEstate=未记账单据"}, "", "2008-11-26..2009-01-25", "12"},
        {{"iMonth=2008.03", "dVouDate=2008-04-01.."}, "2008-11-26..2009-01-25", "2008-04-01..", "03"},
        // Months that nobody asked for stand back.
        {{"dKeepDate=2008-04-01"}, "2008-04-01", "", ""},
        {{"dVouDate=2008-04-01"}, "", "2008-04-01", ""},
        {{"iMonth="}, "", "", ""},
    };
    for (const auto& c : cases) {
        const std::size_t sent = objScript->sent.size();
        const auto dialog = Open("journal");
        dialog->Set(Input(c.given));
        dialog->Accept();
        EXPECT_EQ(dialog->Filter()->Find("dKeepDate")->Shown(), c.posting);
        EXPECT_EQ(dialog->Filter()->Find("dVouDate")->Shown(), c.document);
        EXPECT_EQ(dialog->Filter()->Find("iMonth")->Shown(), "");
        EXPECT_EQ(objScript->sent.size(), sent + !c.limits.empty());
        const std::string& last = objScript->sent.back().sql;
        EXPECT_TRUE(c.limits.empty() || last.ends_with(c.limits)) << last;
    }
}

TEST_F(DialogTest, RefusesMonthsAndDatesThatBothTellTheDays)
{
    auto dialog = Open("journal");
    dialog->Set(Input({"iMonth=2008.03", "dKeepDate=2008-03-01"}));
    EXPECT_EQ(Refusal([&] { dialog->Accept(); }),
              "iMonth and dKeepDate both tell the days; give one of them.");
    dialog.reset();
    dialog = Open("journal");
    dialog->Set(Input({"iMonth=2008.03"}));
    EXPECT_THROW(dialog->Accept(), Error);  // the account has no such month
}

}  // namespace
}  // namespace kavelin::host
