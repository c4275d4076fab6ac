#include "host/ValueGate.h"

#include "host/HostErrors.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace kavelin::host {
namespace {

FilterField Field(FieldKind kind)
{
    FilterField field;
    field.key = "cTest";
    field.kind = kind;
    return field;
}

std::string Refusal(const FilterField& field, std::string_view value)
{
    try {
        CheckedValue(field, value, ValuePolicy::Checked);
    } catch (const UsageError& e) {
        return e.what();
    }
    return "";
}

TEST(Objection, IsTakenToWhateverCouldEndATextOrBeginAStatement)
{
    const struct {
        std::string_view value, objection;
    } cases[] = {
        {"O'Brien", "holds a quote (')"},
        {"a\"b", "holds a quote (\")"},
        {"a`b", "holds a quote (`)"},
        {"a´b", "holds a quote (´)"},
        {"a’b", "holds a quote (’)"},
        {"a‘b", "holds a quote (‘)"},
        {"“a”", "holds a quote (“)"},
        {"„a", "holds a quote („)"},
        {"«a»", "holds a quote («)"},
        {"a›", "holds a quote (›)"},
        {"「a」", "holds a quote (「)"},
        {"a』", "holds a quote (』)"},
        {"a＇b", "holds a quote (＇)"},
        {"a＂b", "holds a quote (＂)"},
        {"aʼb", "holds a quote (ʼ)"},
        {"a′b", "holds a quote (′)"},
        {"a｣", "holds a quote (｣)"},
        {"a;b", "holds a semicolon (;)"},
        {"a--b", "holds the beginning of a comment (--)"},
        {"a/*b", "holds the beginning of a comment (/*)"},
        {"a\tb", "holds a control character (U+0009)"},
        {"a\r\nb", "holds a control character (U+000D)"},
        {std::string_view("a\0b", 3), "holds a control character (U+0000)"},
        {"a\x7f", "holds a control character (U+007F)"},
        {"a\xC2\x85", "holds a control character (U+0085)"},
        {"a\xE2\x80\xA8", "holds a control character (U+2028)"},
        {"a\xED\xA0\x80", "holds a lone surrogate (at byte 2)"},
        {"\xED\xBF\xBF", "holds a lone surrogate (at byte 1)"},
        {"a\xFF", "is not valid UTF-8 (at byte 2)"},
        {"a\xC3", "is not valid UTF-8 (at byte 2)"},
        {"\xC0\xA7", "is not valid UTF-8 (at byte 1)"},
        {"\xE0\x80\xA7", "is not valid UTF-8 (at byte 1)"},
        {"\xF0\x80\x80\xA7", "is not valid UTF-8 (at byte 1)"},
        {"\xF4\x90\x80\x80", "is not valid UTF-8 (at byte 1)"},
        {"\x80", "is not valid UTF-8 (at byte 1)"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Objection(c.value).value_or("none"), c.objection) << c.value;
}

TEST(Objection, IsNotTakenToOrdinaryCodes)
{
    for (const std::string_view value : {"", "A-01", "a - b", "M/8*20", "50%", "存货（大）", "A01..B99",
                                         "a,b", "N[1]", "ΩЖé", "\xEF\xBF\xBD", "😀", "（《书》）"})
        EXPECT_EQ(Objection(value), std::nullopt) << value;
}

TEST(Objection, CountsCharactersNotBytes)
{
    std::string text;
    for (int i = 0; i < 4000; ++i)
        text += "货";
    EXPECT_EQ(Objection(text), std::nullopt);
    EXPECT_EQ(Objection(text + "货"), "is longer than 4,000 characters (4001)");
}

TEST(CheckedValue, NamesTheKeyTheObjectionAndWhatTheFieldTakes)
{
    EXPECT_EQ(
        Refusal(Field(FieldKind::Reference), "O'Brien"),
        "cTest: the value holds a quote ('), and values go into statements as they stand. It takes a code.");
}

TEST(CheckedValue, RefusesAWordWhereANumberBelongs)
{
    EXPECT_EQ(Refusal(Field(FieldKind::Number), "ten"),
              "cTest: \"ten\" is not what it takes, which is a number.");
}

TEST(CheckedValue, TakesWholeNumbersFromTheMinimumOnly)
{
    FilterField field = Field(FieldKind::Number);
    field.whole = true;
    field.minimum = 1;
    EXPECT_EQ(CheckedValue(field, " 10 ", ValuePolicy::Checked), "10");
    EXPECT_EQ(CheckedValue(field, "1", ValuePolicy::Checked), "1");
    for (const std::string_view value :
         {"0", "-1", "1.5", "5.0", "1e3", "0x10", "１０", "1 000", "1,000", "NaN"})
        EXPECT_EQ(Refusal(field, value), "cTest: \"" + std::string(value) +
                                             "\" is not what it takes, which is a whole number from 1.");
}

TEST(CheckedValue, GivesDatesAsYearMonthAndDay)
{
    const FilterField field = Field(FieldKind::Date);
    EXPECT_EQ(CheckedValue(field, "2008-07-31", ValuePolicy::Checked), "2008-07-31");
    EXPECT_EQ(CheckedValue(field, " 2008/7/3 ", ValuePolicy::Checked), "2008-07-03");
    EXPECT_EQ(CheckedValue(field, "2008年7月3日", ValuePolicy::Checked), "2008-07-03");
}

TEST(CheckedValue, RefusesWhatIsNoDay)
{
    for (const std::string_view value :
         {"yesterday", "2008-02-30", "2008-13-01", "14:30", "2008-07-31 14:30", "0001-01-01", "20"})
        EXPECT_EQ(Refusal(Field(FieldKind::Date), value),
                  "cTest: \"" + std::string(value) + "\" is not what it takes, which is a date, YYYY-MM-DD.");
}

TEST(CheckedValue, FindsListEntriesByValueAndByCaptionInAnyCase)
{
    FilterField field = Field(FieldKind::List);
    field.entries = {{"已记账单据", {"已记账单据", "Posted documents"}}, {"A", {"甲", "Class A"}}};
    EXPECT_EQ(CheckedValue(field, "已记账单据", ValuePolicy::Checked), "已记账单据");
    EXPECT_EQ(CheckedValue(field, "posted documents", ValuePolicy::Checked), "已记账单据");
    EXPECT_EQ(CheckedValue(field, "a", ValuePolicy::Checked), "A");
    EXPECT_EQ(
        Refusal(field, "已记单据"),
        "cTest: \"已记单据\" is not what it takes, which is one of 已记账单据, A. Did you mean 已记账单据?");
}

TEST(CheckedValue, GivesFlagsInTheWordsOfTheReports)
{
    for (const std::string_view yes : {"是", "yes", "TRUE", "1"})
        EXPECT_EQ(CheckedValue(Field(FieldKind::Flag), yes, ValuePolicy::Checked), "是") << yes;
    for (const std::string_view no : {"否", "No", "false", "0"})
        EXPECT_EQ(CheckedValue(Field(FieldKind::Flag), no, ValuePolicy::Checked), "否") << no;
    EXPECT_EQ(Refusal(Field(FieldKind::Flag), "maybe"),
              "cTest: \"maybe\" is not what it takes, which is 是 or 否, also yes or no.");
}

TEST(CheckedValue, LeavesTextsAsTheyAreAndTakesBlanksAroundCodesAway)
{
    EXPECT_EQ(CheckedValue(Field(FieldKind::Text), " a ", ValuePolicy::Checked), " a ");
    EXPECT_EQ(CheckedValue(Field(FieldKind::Reference), "0a", ValuePolicy::Checked), "0a");
    EXPECT_EQ(CheckedValue(Field(FieldKind::Reference), " 0a  b ", ValuePolicy::Checked), "0a  b");
    EXPECT_EQ(CheckedValue(Field(FieldKind::Reference), " ", ValuePolicy::Checked), "");
}

TEST(CheckedValue, TakesAnEmptyValueForEveryKind)
{
    for (const FieldKind kind : {FieldKind::Text, FieldKind::Number, FieldKind::Date, FieldKind::Flag})
        EXPECT_EQ(CheckedValue(Field(kind), "", ValuePolicy::Checked), "") << KindName(kind);
}

TEST(CheckedValue, LetsAnObjectionableValueThroughForLegacyHostsAndLogsIt)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(CheckedValue(Field(FieldKind::Text), "O'Brien", ValuePolicy::Legacy), "O'Brien");
    EXPECT_EQ(CheckedValue(Field(FieldKind::Text), "Smith", ValuePolicy::Legacy), "Smith");
    const std::string log = testing::internal::GetCapturedStderr();
    EXPECT_NE(log.find("warning: cTest: the value holds a quote (')"), std::string::npos) << log;
    EXPECT_EQ(log.find('\n'), log.size() - 1) << log;
}

TEST(CheckedValue, RefusesTheWrongKindForLegacyHostsToo)
{
    testing::internal::CaptureStderr();
    EXPECT_THROW(CheckedValue(Field(FieldKind::Number), "1 or 1=1 --", ValuePolicy::Legacy), UsageError);
    testing::internal::GetCapturedStderr();
}

TEST(EditDistance, CountsCharactersWithoutRegardToCase)
{
    const struct {
        std::string_view a, b;
        std::size_t distance;
    } cases[] = {{"", "", 0},
                 {"abc", "", 3},
                 {"cInvCode", "CINVCODE", 0},
                 {"cinvcod", "cinvcode", 1},
                 {"cinvcoed", "cinvcode", 2},
                 {"存货", "存活", 1}};
    for (const auto& c : cases)
        EXPECT_EQ(EditDistance(c.a, c.b), c.distance) << c.a;
}

TEST(DidYouMean, NamesTheNearestOrNothing)
{
    const std::string_view names[] = {"cinvcode", "cwhcode", "imonth"};
    EXPECT_EQ(DidYouMean("cinvcod", names), " Did you mean cinvcode?");
    EXPECT_EQ(DidYouMean("CWCODE", names), " Did you mean cwhcode?");
    EXPECT_EQ(DidYouMean("department", names), "");
}

}  // namespace
}  // namespace kavelin::host
