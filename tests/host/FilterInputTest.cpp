#include "host/FilterInput.h"

#include "host/HostErrors.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>

namespace kavelin::host {
namespace {

const FilterTemplate& TestTemplate()
{
    static const FilterTemplate filter = ParseFilterTemplate("test", R"json({"fields": [
        {"key": "cCode", "caption": {"zh-CN": "编码", "en-US": "Code"}, "kind": "reference", "range": true},
        {"key": "dDay", "caption": {"zh-CN": "日期", "en-US": "Day"}, "kind": "date", "range": true},
        {"key": "nSize", "caption": {"zh-CN": "大小", "en-US": "Size"}, "kind": "number", "range": true},
        {"key": "cType", "caption": {"zh-CN": "类型", "en-US": "Type"}, "kind": "text", "multiple": true},
        {"key": "cTab", "caption": {"zh-CN": "列", "en-US": "Tab"}, "kind": "text", "multiple": true,
         "separator": "tab"},
        {"key": "cName", "caption": {"zh-CN": "名称", "en-US": "Name"}, "kind": "text"},
        {"key": "bAll", "caption": {"zh-CN": "全部", "en-US": "All"}, "kind": "flag", "default": "yes"}
    ]})json");
    return filter;
}

const std::string kFields = " Its fields are cCode, dDay, nSize, cType, cTab, cName, bAll.";

// What is set, one field after another: "cCode=A..B cType=[x|y]".
std::string Print(const FilterInput& input)
{
    std::string text;
    for (const FieldInput& field : input.Fields()) {
        if (!field.from.empty() || !field.to.empty())
            text += field.field->key + "=" + field.from + ".." + field.to + " ";
        if (field.values.empty())
            continue;
        text += field.field->key + "=[";
        for (std::size_t i = 0; i < field.values.size(); ++i)
            text += (i == 0 ? "" : "|") + field.values[i];
        text += "] ";
    }
    return text;
}

std::string Set(std::initializer_list<std::string_view> assignments)
{
    FilterInput input(TestTemplate(), ValuePolicy::Checked);
    input.Set("bAll=");  // keeps the default out of the picture
    for (const std::string_view assignment : assignments)
        input.Set(assignment);
    return Print(input);
}

std::string Refusal(const std::function<void(FilterInput&)>& act)
{
    FilterInput input(TestTemplate(), ValuePolicy::Checked);
    try {
        act(input);
    } catch (const UsageError& e) {
        return e.what();
    }
    return "";
}

TEST(FilterInput, ReadsRangesWithMissingEnds)
{
    const struct {
        std::string_view assignment, printed;
    } cases[] = {
        {"cCode=A01..B99", "cCode=A01..B99 "},
        {"cCode=A01..", "cCode=A01.. "},
        {"cCode=..B99", "cCode=..B99 "},
        {"cCode=..", ""},
        {"cCode=", ""},
        {"cCode=A.1..A.2", "cCode=A.1..A.2 "},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Set({c.assignment}), c.printed) << c.assignment;
}

TEST(FilterInput, TakesOneValueOfARangeForBothEnds)
{
    EXPECT_EQ(Set({"cCode=A01"}), "cCode=A01..A01 ");
    EXPECT_EQ(Set({"dDay=2008/7/1"}), "dDay=2008-07-01..2008-07-01 ");
}

TEST(FilterInput, TakesTwoPointsForThemselvesInAFieldThatIsNoRange)
{
    EXPECT_EQ(Set({"cName=A..B"}), "cName=[A..B] ");
}

TEST(FilterInput, FindsKeysWithoutRegardToCaseAndKeepsEqualSignsOfTheValue)
{
    EXPECT_EQ(Set({"CNAME=a=b"}), "cName=[a=b] ");
}

TEST(FilterInput, AddsToAMultipleSelectionAndReplacesAnyOtherValue)
{
    EXPECT_EQ(Set({"cType=x", "ctype=y"}), "cType=[x|y] ");
    EXPECT_EQ(Set({"cName=x", "cName=y"}), "cName=[y] ");
    EXPECT_EQ(Set({"cCode=A..B", "cCode=C.."}), "cCode=C.. ");
}

TEST(FilterInput, SplitsASelectionAtCommasWhereTheReportWill)
{
    EXPECT_EQ(Set({"cType=x,y"}), "cType=[x|y] ");
    testing::internal::CaptureStderr();
    EXPECT_EQ(Set({"cTab=x,y", "cTab=z"}), "cTab=[x,y|z] ");
    const std::string warning = testing::internal::GetCapturedStderr();
    EXPECT_NE(warning.find("cTab: \"x,y\" is one value"), std::string::npos) << warning;
    EXPECT_EQ(warning.find("\"z\""), std::string::npos) << warning;
}

TEST(FilterInput, WarnsOfCodesThatBeginBehindTheirEnd)
{
    const struct {
        const char* assignment;
        bool warns;
    } cases[] = {
        {"cCode=C004..C001", true}, {"cCode=c001..C004", false}, {"cCode=C004..c004", false},
        {"cCode=C004..", false},    {"cCode=..C001", false},     {"cCode=B..\xE7\x94\xB2", false},
    };
    for (const auto& c : cases) {
        testing::internal::CaptureStderr();
        Set({c.assignment});
        const std::string warning = testing::internal::GetCapturedStderr();
        EXPECT_EQ(warning.find("nothing may lie between them") != std::string::npos, c.warns) << c.assignment;
    }
}

TEST(FilterInput, BeginsWithDefaultsThatTheFirstValueReplaces)
{
    FilterInput input(TestTemplate(), ValuePolicy::Checked);
    EXPECT_EQ(Print(input), "bAll=[是] ");
    input.Set("bAll=no");
    EXPECT_EQ(Print(input), "bAll=[否] ");
    input.Set("bAll=");
    EXPECT_EQ(Print(input), "");
}

TEST(FilterInput, RefusesWithOneClearMessage)
{
    const std::string range = "or a range FROM..TO of which either end may be missing.";
    const struct {
        std::string_view assignment;
        std::string error;
    } cases[] = {
        {"cNmae=x", "test has no field \"cNmae\"." + kFields},
        {"cNam=x", "test has no field \"cNam\". Did you mean cName?" + kFields},
        {"cName", "\"cName\" sets nothing: a value is given as KEY=VALUE."},
        {"=x", "\"=x\" sets nothing: a value is given as KEY=VALUE."},
        {"nSize=big", "nSize: \"big\" is not what it takes, which is a number, " + range},
        {"nSize=1..big", "nSize: \"big\" is not what it takes, which is a number, " + range},
        {"nSize=10..9", "nSize: the range begins with 10 and ends before it, with 9."},
        {"dDay=2008-02-01..2008-01-31",
         "dDay: the range begins with 2008-02-01 and ends before it, with 2008-01-31."},
        {"cCode=A..B..C", "cCode: \"..\" stands twice in \"A..B..C\"; it takes a code, " + range},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Refusal([&](FilterInput& input) { input.Set(c.assignment); }), c.error) << c.assignment;
}

TEST(FilterInput, ReadsAJsonFile)
{
    FilterInput input(TestTemplate(), ValuePolicy::Checked);
    input.SetFromJson(R"({"CCODE": {"from": "A..1", "to": "B"}, "dDay": {"from": "2008-01-01"}, "nSize": 12.5,
                          "cType": ["x", "y"], "cName": null, "bAll": false})",
                      "f.json");
    EXPECT_EQ(Print(input), "cCode=A..1..B dDay=2008-01-01.. nSize=12.5..12.5 cType=[x|y] bAll=[否] ");
    input.Set("cType=z");
    EXPECT_NE(Print(input).find("cType=[x|y|z]"), std::string::npos);
}

TEST(FilterInput, RefusesAJsonFileWithOneClearMessage)
{
    const struct {
        std::string_view json;
        std::string error;
    } cases[] = {
        {"[1]", "f.json: a filter file holds an object of keys and values."},
        {R"({"cNam": 1})", "test has no field \"cNam\". Did you mean cName?" + kFields},
        {R"({"cName": ["a", "b"]})", "cName: several values are not what it takes, which is a text."},
        {R"({"cName": {"from": "a"}})", "cName: a range is not what it takes, which is a text."},
        {R"({"cName": true})", "cName: true is not what it takes, which is a text."},
        {R"({"cType": [["a"]]})",
         "cType: [\"a\"] is not what it takes, which is a text, several times if wanted."},
        {R"({"cCode": {"form": "a"}})", "cCode: a range has \"from\" and \"to\", not \"form\"."},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Refusal([&](FilterInput& input) { input.SetFromJson(c.json, "f.json"); }), c.error)
            << c.json;
    EXPECT_EQ(
        Refusal([](FilterInput& input) { input.SetFromJson("{", "f.json"); }).rfind("f.json: parse error", 0),
        0u);
    EXPECT_EQ(Refusal([](FilterInput& input) {
                  input.SetFromJson(R"({"cName": "\ud800"})", "f.json");
              }).rfind("f.json: ", 0),
              0u);
}

TEST(FilterInput, LeavesAJsonTextOfQuotesToTheGate)
{
    EXPECT_EQ(
        Refusal([](FilterInput& input) { input.SetFromJson(R"({"cName": "a\u0027b"})", "f.json"); }),
        "cName: the value holds a quote ('), and values go into statements as they stand. It takes a text.");
}

}  // namespace
}  // namespace kavelin::host
