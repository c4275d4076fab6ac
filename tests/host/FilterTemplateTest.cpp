#include "host/FilterTemplate.h"

#include "frame/Errors.h"
#include "host/FilterInput.h"
#include "host/Reports.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kavelin::host {
namespace {

std::string ParseError(std::string_view json)
{
    try {
        ParseFilterTemplate("test", json);
    } catch (const Error& e) {
        return e.what();
    }
    return "";
}

TEST(FilterTemplate, OfTheCapitalShareHasItsFiveFields)
{
    const FilterTemplate& filter = TemplateOf("capital-share");
    std::string keys;
    for (const FilterField& field : filter.fields)
        keys += field.key + (field.range ? ".. " : " ");
    EXPECT_EQ(keys, "cinvcode.. cwhcode.. cinvccode.. imonth.. cNo ");
    EXPECT_EQ(filter.Find("IMONTH")->kind, FieldKind::Date);
    EXPECT_EQ(filter.Find("cno")->minimum, 1);
    EXPECT_EQ(filter.Find("cinvccode")->match, FieldMatch::Prefix);
    EXPECT_EQ(filter.Find("cdepcode"), nullptr);
}

TEST(FilterTemplate, OfTheAreaTableHoldsArgumentsOnly)
{
    for (const FilterField& field : TemplateOf("area-table").fields)
        EXPECT_TRUE(field.argument && field.column.empty()) << field.key;
}

TEST(FilterTemplate, OfEveryBuiltReportTakesItsOwnExamples)
{
    int reports = 0;
    for (const Report& report : AllReports()) {
        ++reports;
        const FilterTemplate& filter = TemplateOf(report.name);
        FilterInput input(filter, ValuePolicy::Checked);
        for (const FilterField& field : filter.fields) {
            EXPECT_FALSE(field.caption.chinese.empty() || field.caption.english.empty()) << field.key;
            EXPECT_FALSE(field.example.empty()) << field.key;
            EXPECT_NO_THROW(input.Set(field.key, field.example)) << field.key;
        }
    }
    EXPECT_GE(reports, 2);
}

TEST(FilterTemplate, TellsWhatAFieldTakes)
{
    const FilterTemplate& filter = TemplateOf("capital-share");
    EXPECT_EQ(WhatItTakes(*filter.Find("imonth")),
              "a date, YYYY-MM-DD, or a range FROM..TO of which either end may be missing");
    EXPECT_EQ(WhatItTakes(*filter.Find("cNo")), "a whole number from 1");
}

TEST(FilterTemplate, RefusesADescriptionThatMakesNoSense)
{
    const std::string caption = R"("caption": {"zh-CN": "甲", "en-US": "A"})";
    const struct {
        std::string json;
        std::string_view error;
    } cases[] = {
        {R"({"fields": [{"key": "a", )" + caption + R"(, "kind": "colour"}]})",
         "The filter template of test: field 1 a has the unknown kind \"colour\"."},
        {R"({"fields": [{"key": "a", )" + caption + R"(, "kind": "text", "separator": ";"}]})",
         "The filter template of test: field 1 a has the unknown separator \";\"."},
        {R"({"fields": [{"key": "a", )" + caption + R"(, "kind": "text", "rang": true}]})",
         "The filter template of test: field 1 has the unknown member \"rang\"."},
        {R"({"fields": [{"key": "a", )" + caption + R"(, "kind": "text", "range": true, "multiple": true}]})",
         "The filter template of test: field 1 a is either a range or a multiple selection."},
        {R"({"fields": [{"key": "a", )" + caption + R"(, "kind": "text", "entries": [{"value": "x", )" +
             caption + "}]}]}",
         "The filter template of test: field 1 a has entries and is no list."},
        {R"({"fields": [{"key": "a", )" + caption + R"(, "kind": "text", "bothEnds": true}]})",
         "The filter template of test: field 1 a has both ends only as a range."},
        {R"({"fields": [{"key": "a", )" + caption + R"(, "kind": "period", "dates": ["b", "c"]}]})",
         "The filter template of test: field 1 a has two fields of dates only as a range of periods."},
        {R"({"fields": [{"key": "a", )" + caption + R"(, "kind": "reference", "lookup": "things"}]})",
         "The filter template of test: field 1 a has the unknown lookup \"things\"."},
        {R"({"fields": [{"key": "a{}", )" + caption + R"(, "kind": "text", "numbers": "1-x"}]})",
         "\"x\" is no number of a family of fields."},
        {R"({"fields": [{"key": "a", )" + caption + R"(, "kind": "text"}, {"key": "A", )" + caption +
             R"(, "kind": "text"}]})",
         "The filter template of test: field 2 has the key A, which another field has."},
        {R"({"fields": [{"kind": "text"}]})", "The filter template of test: field 1 has no key."},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ParseError(c.json), c.error) << c.json;
    EXPECT_NE(ParseError("{").find("The filter template of test cannot be read"), std::string::npos);
}

TEST(FilterTemplate, WritesAFamilyOfFieldsOutNumberByNumber)
{
    const Lookups lookups =
        ParseLookups(R"json({"lookups": {"values": {"from": "V", "where": "1 = 1", "columns": [
        {"column": "V.cValue", "caption": {"zh-CN": "值", "en-US": "Value"}},
        {"column": "V.cID", "hidden": true}]}}})json");
    const FilterTemplate filter = ParseFilterTemplate("test", R"json({"fields": [
        {"key": "cfree{}", "caption": {"zh-CN": "自由项{}", "en-US": "Free item {}"}, "kind": "reference",
         "lookup": "values", "lookupWhere": "cID = {+19}", "numbers": "1-2,10"}]})json",
                                                      lookups);
    ASSERT_EQ(filter.fields.size(), 3u);
    EXPECT_EQ(filter.fields[0].key, "cfree1");
    EXPECT_EQ(filter.fields[1].caption.english, "Free item 2");
    EXPECT_EQ(filter.fields[2].key, "cfree10");
    EXPECT_EQ(filter.fields[2].lookup.where, "cID = 29");
    EXPECT_EQ(filter.fields[2].lookup.columns.size(), 2u);
    EXPECT_EQ(filter.fields[2].controlKey, "cfree10");
}

TEST(Lookups, RefuseADescriptionThatMakesNoSense)
{
    const struct {
        std::string_view json, error;
    } cases[] = {
        {R"({"lookups": {"a": {"from": "", "columns": [{"column": "x", "hidden": true}]}}})",
         "The lookup a needs a table and a code that it shows."},
        {R"({"lookups": {"a": {"from": "T", "columns": [{"column": "x"}]}}})",
         "The lookup a shows the column x without a caption."},
        {R"({"lookups": {"a": {"from": "T", "columns": [], "wher": ""}}})",
         "The lookup a has the unknown member \"wher\"."},
    };
    for (const auto& c : cases) {
        try {
            ParseLookups(c.json);
            ADD_FAILURE() << c.error;
        } catch (const Error& e) {
            EXPECT_EQ(std::string_view(e.what()), c.error);
        }
    }
}

TEST(FilterTemplate, OfAnUnknownReportIsAnError)
{
    EXPECT_THROW(TemplateOf("nothing"), Error);
}

}  // namespace
}  // namespace kavelin::host
