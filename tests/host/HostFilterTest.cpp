#include "host/HostFilter.h"

#include "frame/Errors.h"
#include "frame/Value.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

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
    EXPECT_EQ(names, "cCode.. cInvCCode cClasses* cClassRange.. nSize* cTab* dDay bMerge cState ");
    EXPECT_EQ(list->Item("CCODE")->Name(), "cCode");
    EXPECT_EQ(list->Item("cNothing"), nullptr);
    EXPECT_THROW(list->Item(0), Error);
    EXPECT_THROW(list->Item(10), Error);
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

TEST(HostFilter, RecordsWhatADialogDoesToItsFields)
{
    const auto filter = Filled({"cCode=A..B"});
    filter->SetFieldLocked("ccode", true);
    filter->SetFieldLocked("cCode__2", false);
    filter->SetFieldFlag("cCode__2", false);
    filter->SetFieldRefCondition("cCode", "", " cid = 20 ");
    filter->RefreshFieldList("cState", "IA.Oth", "1月,2月");
    filter->SetFieldRangeList("cCode", "2008.01,2008.02");

    EXPECT_TRUE(filter->StateOf("cCode").locked);
    EXPECT_FALSE(filter->StateOf("cCode__2").locked);
    EXPECT_EQ(filter->StateOf("cCode").flag, std::nullopt);
    EXPECT_EQ(filter->StateOf("cCode__2").flag, false);
    EXPECT_EQ(filter->StateOf("cCode").condition, " cid = 20 ");
    EXPECT_EQ(filter->StateOf("cState").listEnumType, "IA.Oth");
    EXPECT_EQ(filter->StateOf("cState").list, "1月,2月");
    EXPECT_EQ(filter->StateOf("cCode").rangeList, "2008.01,2008.02");
    filter->SetFieldRefCondition("cCode", "", "");
    EXPECT_EQ(filter->StateOf("cCode").condition, "");
}

TEST(HostFilter, SetsAndReadsBothBoxesOfAField)
{
    const auto filter = Filled({"cCode=A..B"});
    EXPECT_EQ(filter->GetFieldValue("CCODE"), Value("A"));
    EXPECT_EQ(filter->GetFieldValue("cCode__2"), Value("B"));
    filter->SetFieldValue("cCode__2", Value(""));
    EXPECT_EQ(filter->GetWhereWithToken(0), "a.cCode >= N'A'");
    EXPECT_THROW(filter->SetFieldValue("cNothing", Value("")), Error);
    EXPECT_THROW(filter->SetFieldLocked("cNothing", true), Error);
}

}  // namespace
}  // namespace kavelin::host
