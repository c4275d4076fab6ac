#include "host/HostFilter.h"

#include "frame/Errors.h"
#include "frame/Value.h"
#include "host/HostLogin.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::host {
namespace {

const FilterTemplate& TestTemplate()
{
    static const FilterTemplate filter = ParseFilterTemplate("test", R"json({"fields": [
        {"key": "cCode", "caption": {"zh-CN": "编码", "en-US": "Code"}, "kind": "reference", "range": true,
         "column": "a.cCode"},
        {"key": "cInvCCode", "caption": {"zh-CN": "分类", "en-US": "Class"}, "kind": "reference",
         "column": "a.cInvCCode", "match": "prefix"},
        {"key": "cClasses", "caption": {"zh-CN": "分类", "en-US": "Classes"}, "kind": "reference",
         "column": "a.cInvCCode", "match": "prefix", "multiple": true},
        {"key": "cClassRange", "caption": {"zh-CN": "分类", "en-US": "Classes"}, "kind": "reference",
         "column": "a.cInvCCode", "match": "prefix", "range": true},
        {"key": "nSize", "caption": {"zh-CN": "大小", "en-US": "Size"}, "kind": "number", "column": "a.nSize",
         "multiple": true},
        {"key": "cTab", "caption": {"zh-CN": "列", "en-US": "Tab"}, "kind": "text", "multiple": true,
         "separator": "tab", "column": "a.cTab"},
        {"key": "dDay", "caption": {"zh-CN": "日期", "en-US": "Day"}, "kind": "date", "column": "a.dDay"},
        {"key": "bMerge", "caption": {"zh-CN": "合并", "en-US": "Merge"}, "kind": "flag"},
        {"key": "cState", "caption": {"zh-CN": "状态", "en-US": "State"}, "kind": "list",
         "entries": [{"value": "甲", "caption": {"zh-CN": "甲", "en-US": "A"}},
                     {"value": "乙", "caption": {"zh-CN": "乙", "en-US": "B"}}]},
        {"key": "iYear", "caption": {"zh-CN": "年", "en-US": "Year"}, "kind": "year", "column": "a.iYear"},
        {"key": "iMonth", "caption": {"zh-CN": "月", "en-US": "Month"}, "kind": "month", "range": true,
         "column": "a.iMonth"},
        {"key": "iPeriod", "caption": {"zh-CN": "期间", "en-US": "Period"}, "kind": "period", "range": true},
        {"key": "CcCusCode", "controlKey": "cCusCode", "caption": {"zh-CN": "客户", "en-US": "Customer"},
         "kind": "reference"},
        {"key": "cType", "caption": {"zh-CN": "类型", "en-US": "Type"}, "kind": "list", "enum": "IA.Bustype",
         "multiple": true},
        {"key": "cTable", "caption": {"zh-CN": "表", "en-US": "Table"}, "kind": "text", "argument": true}
    ]})json");
    return filter;
}

std::shared_ptr<HostFilter> Filled(std::initializer_list<std::string_view> assignments)
{
    FilterInput input(TestTemplate(), ValuePolicy::Legacy);
    for (const std::string_view assignment : assignments)
        input.Set(assignment);
    auto filter = std::make_shared<HostFilter>("ID", TestTemplate(), nullptr);
    filter->Fill(input);
    return filter;
}

TEST(HostFilter, ListsItsItemsInTheTemplatesOrderWithoutTheArguments)
{
    const auto list = Filled({})->FilterList();
    std::string names;
    for (int i = 1; i <= list->Count(); ++i)
        names += list->Item(i)->Name() + (list->Item(i)->RangeInput() ? ".." : "") +
                 (list->Item(i)->IsMultSel() ? "* " : " ");
    EXPECT_EQ(names,
              "cCode.. cInvCCode cClasses* cClassRange.. nSize* cTab* dDay bMerge cState iYear iMonth.. "
              "iPeriod.. CcCusCode cType* ");
    EXPECT_EQ(list->Item("CCODE")->Name(), "cCode");
    EXPECT_EQ(list->Item("cNothing"), nullptr);
    EXPECT_THROW(list->Item(0), Error);
    EXPECT_THROW(list->Item(15), Error);
    EXPECT_EQ(list->Item("cState")->ListSource(), "甲,乙");
}

TEST(HostFilter, HandsValuesOverAsTexts)
{
    const auto list = Filled({"cCode=A..", "nSize=1", "nSize=2", "cTab=x", "cTab=y,z"})->FilterList();
    EXPECT_EQ(list->Item("cCode")->varValue(), Value("A"));
    EXPECT_EQ(list->Item("cCode")->varValue2(), Value(""));
    EXPECT_EQ(list->Item("nSize")->varValue(), Value("1,2"));
    EXPECT_EQ(list->Item("cTab")->varValue(), Value("x\ty,z"));
    EXPECT_EQ(list->Item("dDay")->varValue(), Value(""));
}

TEST(HostFilter, PutsArgumentsOfTheCallIntoTheContext)
{
    const auto filter = Filled({"cTable=rows"});
    EXPECT_EQ(filter->ContextArgs()->Count(), 1);
    EXPECT_EQ(std::get<Value>(filter->ContextArgs()->Item("ctable")), Value("rows"));
    EXPECT_TRUE(std::get<Value>(filter->ContextArgs()->Item("cOther")).IsEmpty());
}

TEST(GetWhereWithToken, WordsEveryMatch)
{
    testing::internal::CaptureStderr();  // the legacy policy's warnings
    const struct {
        std::initializer_list<std::string_view> assignments;
        std::string_view where;
    } cases[] = {
        {{}, ""},
        {{"cCode=A..B"}, "a.cCode >= N'A' and a.cCode <= N'B'"},
        {{"cCode=A.."}, "a.cCode >= N'A'"},
        {{"cCode=..B"}, "a.cCode <= N'B'"},
        {{"cCode=A"}, "a.cCode >= N'A' and a.cCode <= N'A'"},
        {{"cCode=O'Brien.."}, "a.cCode >= N'O''Brien'"},
        {{"cInvCCode=01"}, "a.cInvCCode like N'01%'"},
        {{"cInvCCode=5%_[x]"}, "a.cInvCCode like N'5[%][_][[]x]%'"},
        {{"cInvCCode=O'Brien"}, "a.cInvCCode like N'O''Brien%'"},
        {{"cClasses=01"}, "a.cInvCCode like N'01%'"},
        {{"cClasses=01,02"}, "(a.cInvCCode like N'01%' or a.cInvCCode like N'02%')"},
        {{"cClassRange=01..02"},
         "a.cInvCCode >= N'01' and (a.cInvCCode <= N'02' or a.cInvCCode like N'02%')"},
        {{"cClassRange=01"}, "a.cInvCCode like N'01%'"},
        {{"cClassRange=01.."}, "a.cInvCCode >= N'01'"},
        {{"nSize=5"}, "a.nSize = 5"},
        {{"nSize=5", "nSize=-1.50"}, "a.nSize in (5, -1.50)"},
        {{"cTab=x", "cTab=y,z"}, "a.cTab in (N'x', N'y,z')"},
        {{"dDay=2008/7/1"}, "a.dDay = N'2008-07-01'"},
        {{"bMerge=yes", "cState=甲"}, ""},
        {{"cTable=rows"}, ""},
        {{"iYear=2008年"}, "a.iYear = 2008"},
        {{"iMonth=3..07"}, "a.iMonth >= 3 and a.iMonth <= 7"},
        {{"dDay=2008-07-01", "nSize=5"}, "a.nSize = 5 and a.dDay = N'2008-07-01'"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Filled(c.assignments)->GetWhereWithToken(0), c.where);
    testing::internal::GetCapturedStderr();
}

TEST(GetWhereWithToken, TakesUpTheItemsOfItsTokenOnly)
{
    const auto filter = Filled({"nSize=5", "dDay=2008-07-01"});
    filter->FilterList()->Item("nSize")->SetLngGrouptoken(1);
    EXPECT_EQ(filter->GetWhereWithToken(0), "a.dDay = N'2008-07-01'");
    EXPECT_EQ(filter->GetWhereWithToken(1), "a.nSize = 5");
    EXPECT_EQ(filter->GetWhereWithToken(2), "");
}

TEST(GetWhereWithToken, QuotesWhateverADialogPutsIntoANumberField)
{
    const auto filter = Filled({});
    filter->SetFieldValue("nSize", Value("1); drop table x"));
    EXPECT_EQ(filter->GetWhereWithToken(0), "a.nSize = N'1); drop table x'");
}

HostFilterItem& ItemOf(HostFilter& filter, std::string_view key)
{
    return *filter.Find(key);
}

TEST(HostFilter, KeepsWhatADialogDoesToItsFieldsBoxByBox)
{
    const auto filter = Filled({"cCode=A..B"});
    filter->SetFieldLocked("ccode", true);
    filter->SetFieldLocked("cCode__2", false);
    filter->SetFieldFlag("cCode__2", false);
    filter->SetFieldRefCondition("cCode", "", " cid = 20 ");

    HostFilterItem& item = ItemOf(*filter, "cCode");
    EXPECT_TRUE(item.state.locked);
    EXPECT_FALSE(item.secondState.locked);
    EXPECT_EQ(item.state.flag, std::nullopt);
    EXPECT_EQ(item.secondState.flag, false);
    EXPECT_EQ(item.state.condition, " cid = 20 ");
    filter->SetFieldRefCondition("cCode", "", "");
    EXPECT_EQ(item.state.condition, "");
    filter->SetFieldLocked("cCode", false);
    EXPECT_FALSE(item.state.locked);
}

TEST(HostFilter, OffersTheEntriesOfItsTemplateUntilACallbackGivesOthers)
{
    const auto filter = Filled({});
    const HostFilterItem& item = ItemOf(*filter, "cState");
    EXPECT_EQ(item.Choices(false), (std::vector<Choice>{{"甲", "甲"}, {"乙", "乙"}}));
    filter->FilterList()->Item("cState")->SetListSource("乙,丙");
    EXPECT_EQ(item.Choices(false), (std::vector<Choice>{{"乙", "乙"}, {"丙", "丙"}}));
    filter->RefreshFieldList("CSTATE", "IA.Month", "1月,2月,");
    EXPECT_EQ(item.Choices(false), (std::vector<Choice>{{"1月", "1月"}, {"2月", "2月"}}));
    EXPECT_EQ(filter->FilterList()->Item("cState")->ListSource(), "1月,2月,");
    filter->RefreshFieldList("cState", "IA.Month", "");
    EXPECT_TRUE(item.Choices(false).empty());
}

TEST(HostFilter, GivesEachBoxOfAPairItsHalfOfAPairedList)
{
    const auto filter = Filled({});
    filter->SetFieldRangeList("iPeriod", "2008.01{#}2008.02{##}2008.02{#}2008.03");
    const HostFilterItem& item = ItemOf(*filter, "iPeriod");
    EXPECT_EQ(item.Choices(false), (std::vector<Choice>{{"2008.01", "2008.01"}, {"2008.02", "2008.02"}}));
    EXPECT_EQ(item.Choices(true), (std::vector<Choice>{{"2008.02", "2008.02"}, {"2008.03", "2008.03"}}));
}

TEST(HostFilter, TakesASelectForALookupAndNoList)
{
    const auto filter = Filled({});
    const auto item = filter->FilterList()->Item("CcCusCode");
    EXPECT_FALSE(ItemOf(*filter, "CcCusCode").HasLookup());
    item->SetListSource(" SELECT a as [A],b as [B] FROM T");
    EXPECT_EQ(ItemOf(*filter, "CcCusCode").LookupSelect(), " SELECT a as [A],b as [B] FROM T");
    EXPECT_TRUE(ItemOf(*filter, "CcCusCode").Choices(false).empty());
    item->SetListSource("Selected,Other");
    EXPECT_FALSE(ItemOf(*filter, "CcCusCode").HasLookup());
    EXPECT_EQ(ItemOf(*filter, "CcCusCode").Choices(false).size(), 2u);
}

TEST(HostFilter, ShowsEntriesInTheLanguageOfTheLoginAndTakesWhatItShows)
{
    HostFilter filter("ID", TestTemplate(),
                      std::make_shared<HostLogin>(LoginSettings{"", "", "", "", "en-US"}, nullptr));
    const HostFilterItem& state = ItemOf(filter, "cState");
    EXPECT_EQ(state.Choices(false), (std::vector<Choice>{{"甲", "A"}, {"乙", "B"}}));
    filter.SetFieldValue("cState", Value("b"));
    EXPECT_EQ(state.From(), "乙");
    filter.SetFieldValue("cState", Value("丙"));
    EXPECT_EQ(state.From(), "丙");

    // By the enum texts, each of several.
    const HostFilterItem& type = ItemOf(filter, "cType");
    filter.SetFieldValue("cType", Value("Instalment sale,委托代销"));
    EXPECT_EQ(type.From(), "分期收款,委托代销");
    filter.FilterList()->Item("cType")->SetListSource("分期收款,全部");
    EXPECT_EQ(type.Choices(false).front(), (Choice{"分期收款", "Instalment sale"}));
    filter.RefreshFieldList("cType", "IA.Month", "7月");
    EXPECT_EQ(type.Choices(false).front(), (Choice{"7月", "Month 7"}));
}

TEST(HostFilter, OffersYesAndNoOfAFlagInTheLanguageOfTheLogin)
{
    const auto filter = Filled({"bMerge=yes"});
    EXPECT_EQ(ItemOf(*filter, "bMerge").From(), "是");
    EXPECT_EQ(ItemOf(*filter, "bMerge").Choices(false), (std::vector<Choice>{{"是", "是"}, {"否", "否"}}));

    HostFilter english("ID", TestTemplate(),
                       std::make_shared<HostLogin>(LoginSettings{"", "", "", "", "en-US"}, nullptr));
    EXPECT_EQ(ItemOf(english, "bMerge").Choices(false), (std::vector<Choice>{{"是", "Yes"}, {"否", "No"}}));
}

TEST(HostFilter, FindsAFieldByItsControlKeyToo)
{
    const auto filter = Filled({});
    filter->SetFieldValue("cCusCode", Value("C001"));
    EXPECT_EQ(filter->FilterList()->Item("CcCusCode")->varValue(), Value("C001"));
    EXPECT_EQ(filter->FilterList()->Item("CcCusCode")->ControlKey(), "cCusCode");
    EXPECT_EQ(filter->FilterList()->Item("cCusCode"), nullptr);
    EXPECT_EQ(filter->GetFieldValue("CcCusCode"), Value("C001"));
}

TEST(HostFilter, SetsAndReadsBothBoxesOfAField)
{
    const auto filter = Filled({"cCode=A..B"});
    EXPECT_EQ(filter->GetFieldValue("CCODE"), Value("A"));
    EXPECT_EQ(filter->GetFieldValue("cCode__2"), Value("B"));
    EXPECT_EQ(ItemOf(*filter, "cCode").Shown(), "A..B");
    filter->SetFieldValue("cCode__2", Value(""));
    EXPECT_EQ(filter->GetWhereWithToken(0), "a.cCode >= N'A'");
    EXPECT_EQ(ItemOf(*filter, "cCode").Shown(), "A..");
}

TEST(HostFilter, PassesOverFieldsThatItsTemplateLacks)
{
    const auto filter = Filled({"cCode=A"});
    filter->SetFieldValue("cNothing", Value("x"));
    filter->SetFieldLocked("cNothing", true);
    filter->SetFieldFlag("cNothing", false);
    filter->SetFieldRefCondition("cNothing", "", "x");
    filter->RefreshFieldList("cNothing", "IA.Oth", "x");
    filter->SetFieldRangeList("cNothing", "x{##}x");
    EXPECT_EQ(filter->GetFieldValue("cNothing"), Value(""));
    EXPECT_EQ(filter->GetWhereWithToken(0), "a.cCode >= N'A' and a.cCode <= N'A'");
}

}  // namespace
}  // namespace kavelin::host
