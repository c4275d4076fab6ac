// Filter of the summary: what each key makes of its value, and what stays.
#include "summary/SumFilter.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

#include <functional>

namespace kavelin::test {

namespace {

// The conditions after a filter of these items, on an object that nothing was set on.
SumConditions Translated(const std::vector<FakeField>& fields)
{
    RecordingHost host;
    host.SetFilter(fields);
    SumConditions conditions;
    EXPECT_TRUE(TranslateSummaryFilter(*host.Filter(), conditions));
    return conditions;
}

// The same for one key, on an object that holds `before` already.
SumConditions TranslatedOver(SumConditions before, const std::string& key, const Value& value)
{
    RecordingHost host;
    host.SetFilter({{key, value}});
    EXPECT_TRUE(TranslateSummaryFilter(*host.Filter(), before));
    return before;
}

// Every text that holds some of three words, by which of them: above * 4 + equal * 2 + below.
std::vector<std::string> Mixtures(const std::string& above, const std::string& equal,
                                  const std::string& below)
{
    std::vector<std::string> texts;
    for (int words = 0; words < 8; ++words)
        texts.push_back("x" + (words & 4 ? above + "," : "") + (words & 2 ? equal + "," : "") +
                        (words & 1 ? below + "," : ""));
    return texts;
}

std::string States(const SumConditions& conditions)
{
    return std::string(conditions.BlnAccounted ? "posted " : "") +
           (conditions.BlnUnAccounted ? "unposted " : "") +
           (conditions.bytDirect ? "direct" + std::to_string(conditions.bytDirect) : "");
}

}  // namespace

TEST(TranslateSummaryFilter, LeavesAllAsItWasWithoutItems)
{
    const SumConditions conditions = Translated({});
    EXPECT_EQ(conditions.strDefineSub, " 1=1 ");
    EXPECT_EQ(States(conditions), "");
    EXPECT_TRUE(conditions.varDate(0).IsEmpty());
    EXPECT_TRUE(conditions.varDate(1).IsEmpty());

    SumConditions before;
    before.strInvCCode = "01";
    before.strWhCode = "N'01'";
    before.BlnAccounted = true;
    before.IntThanZero = 5;
    before.strDefineSub = " And cCusCode= N'K'";
    before.blnWhSum = true;
    RecordingHost host;
    host.SetFilter({});
    EXPECT_TRUE(TranslateSummaryFilter(*host.Filter(), before));
    EXPECT_EQ(before.strInvCCode, "01");
    EXPECT_EQ(before.strWhCode, "N'01'");
    EXPECT_TRUE(before.BlnAccounted);
    EXPECT_EQ(before.IntThanZero, 5);
    EXPECT_EQ(before.strDefineSub, " 1=1 ") << "begins anew";
    EXPECT_FALSE(before.blnWhSum) << "begins anew";
}

TEST(TranslateSummaryFilter, TakesTextsAndDatesAsTheyAre)
{
    const DateTime day = std::chrono::sys_days(std::chrono::year(2008) / 7 / 1);
    const SumConditions conditions = Translated({{"cInvCCode", "01%"},
                                                 {"cinvcode", "A'", "B"},
                                                 {"dVouDate", day, "2008/7/31"},
                                                 {"cItemCode", "P1", "P2"},
                                                 {"cItem_Class", "97"}});
    EXPECT_EQ(conditions.strInvCCode, "01%");
    EXPECT_EQ(conditions.strInvCode(0), "A'");
    EXPECT_EQ(conditions.strInvCode(1), "B");
    EXPECT_EQ(conditions.varDate(0), Value(day));
    EXPECT_EQ(conditions.varDate(1), Value("2008/7/31"));
    EXPECT_EQ(conditions.itemCode, "P1");
    EXPECT_EQ(conditions.itemCls, "97");
    EXPECT_EQ(conditions.strDefineSub, " 1=1 ");
}

TEST(TranslateSummaryFilter, MakesAListOfTheWarehouses)
{
    const struct {
        const char *value, *list;
    } cases[] = {
        {"", ""},
        {"01", "N'01'"},
        {"01\t02", "N'01',N'02'"},
        {"01\t02\t03", "N'01',N'02',N'03'"},
        {"01,02", "N'01,02'"},
        {"0'1", "N'0'1'"},
        {"\t", "N'',N''"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Translated({{"cwhcode", c.value}}).strWhCode, c.list) << c.value;
    SumConditions before;
    before.strWhCode = "N'09'";
    EXPECT_EQ(TranslatedOver(before, "cwhcode", "").strWhCode, "") << "an empty one takes the old one away";
}

TEST(TranslateSummaryFilter, TakesTheBalanceCodeOfEveryMixtureOfWords)
{
    const int codes[] = {-1, 4, 2, 3, 0, 5, 1, 6};  // -1: unchanged
    const auto texts = Mixtures("大于零", "等于零", "小于零");
    SumConditions before;
    before.IntThanZero = 11;
    before.IntThanZeroA = 12;
    for (std::size_t words = 0; words < 8; ++words) {
        const bool changes = codes[words] >= 0;
        const SumConditions number = TranslatedOver(before, "EndNum", texts[words]);
        EXPECT_EQ(number.IntThanZero, changes ? codes[words] : 11) << texts[words];
        EXPECT_EQ(number.IntThanZeroA, 12);
        const SumConditions money = TranslatedOver(before, "EndPrice", texts[words]);
        EXPECT_EQ(money.IntThanZeroA, changes ? codes[words] : 12) << texts[words];
        EXPECT_EQ(money.IntThanZero, 11);
    }
}

TEST(TranslateSummaryFilter, TakesAnEmptyBalanceForNoRestrictionAndOneWithoutWordsForNothing)
{
    EXPECT_EQ(Translated({{"EndNum", ""}}).IntThanZero, 6);
    EXPECT_EQ(Translated({{"EndPrice", Value::Null()}}).IntThanZeroA, 6);
    EXPECT_EQ(Translated({{"EndNum", "any"}}).IntThanZero, 0) << "which means above zero";
}

TEST(TranslateSummaryFilter, TakesTheOperatorOfEveryMixtureOfWords)
{
    const char* operators[] = {nullptr, "<", "=", "<=", ">", "<>", ">=", ""};
    const auto texts = Mixtures("入库大于出库", "入库等于出库", "入库小于出库");
    SumConditions before;
    before.strCompareQuantity = "kept";
    for (std::size_t words = 0; words < 8; ++words)
        EXPECT_EQ(TranslatedOver(before, "incompareout", texts[words]).strCompareQuantity,
                  operators[words] ? operators[words] : "kept")
            << texts[words];
    EXPECT_EQ(TranslatedOver(before, "incompareout", "").strCompareQuantity, "");
}

TEST(TranslateSummaryFilter, TakesTheLastOfTheBusinessWords)
{
    const std::vector<std::string> words = {"所有业务", "发生业务", "出库未入库", "入库未出库", "未发生"};
    SumConditions before;
    before.BlnIfOcc = 9;
    for (unsigned set = 0; set < 32; ++set) {
        std::string text = "x";
        int code = 9;
        for (unsigned word = 0; word < words.size(); ++word)
            if (set & (1U << word))
                code = static_cast<int>(word);
        // The order in the text says nothing.
        for (unsigned word = words.size(); word-- > 0;)
            if (set & (1U << word))
                text += words[word] + ",";
        EXPECT_EQ(TranslatedOver(before, "busEstate", text).BlnIfOcc, code) << text;
    }
    EXPECT_EQ(TranslatedOver(before, "busEstate", "").BlnIfOcc, 0);
    EXPECT_EQ(TranslatedOver(before, "busEstate", "发生业务").BlnIfOcc, 1);
    EXPECT_EQ(TranslatedOver(before, "busEstate", "未发生").BlnIfOcc, 4);
}

TEST(TranslateSummaryFilter, SwitchesDocumentStatesOnByWord)
{
    const struct {
        const char *value, *states;
    } cases[] = {
        {"", "posted unposted direct1"},
        {"none of them", ""},
        {"已记账单据", "posted "},
        {"未记账单据", "unposted "},
        {"直运单据", "direct1"},
        {"已记账单据,未记账单据", "posted unposted "},
        {"直运单据,已记账单据", "posted direct1"},
        {"未记账单据;直运单据", "unposted direct1"},
        {"已记账单据,未记账单据,直运单据", "posted unposted direct1"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(States(Translated({{"vouEstate", c.value}})), c.states) << c.value;
}

TEST(TranslateSummaryFilter, NeverSwitchesADocumentStateOff)
{
    SumConditions before;
    before.BlnAccounted = true;
    before.bytDirect = 1;
    EXPECT_EQ(States(TranslatedOver(before, "vouEstate", "未记账单据")), "posted unposted direct1");
}

TEST(TranslateSummaryFilter, ClearsFreeItemsForAYesOnly)
{
    const struct {
        const char* value;
        int flag;
    } cases[] = {{"是", 1}, {"否", 0}, {"", 0}, {"1", 0}, {"是 ", 0}};
    for (const auto& c : cases)
        EXPECT_EQ(Translated({{"byteFree", c.value}}).bytFree, c.flag) << c.value;
    SumConditions before;
    before.bytFree = 1;
    EXPECT_EQ(TranslatedOver(before, "byteFree", "否").bytFree, 0);
}

TEST(TranslateSummaryFilter, TakesNumbersOfTheUnitAndTheGrade)
{
    const struct {
        Value value;
        int number;
    } cases[] = {{"", 0},    {Value(), 0},  {Value::Null(), 0}, {"2", 2},
                 {" 3 ", 3}, {Value(4), 4}, {"-1", -1},         {"2.5", 2}};
    for (const auto& c : cases) {
        const SumConditions conditions = Translated({{"cAssComUnitNum", c.value}, {"rdGrade", c.value}});
        EXPECT_EQ(conditions.cAssComUnitNum, c.number);
        EXPECT_EQ(conditions.intRdGrade, c.number);
    }
}

TEST(TranslateSummaryFilter, ComparesAnyOtherKeyAsAColumn)
{
    const struct {
        FakeField field;
        const char* condition;
    } cases[] = {
        {{"cBusType", "", ""}, ""},
        {{"cBusType", "", "", true}, ""},
        {{"cBusType", Value::Null(), Value()}, ""},
        {{"cBusType", "普通采购"}, " And cBusType= N'普通采购'"},
        {{"cBusType", "a", "b"}, " And cBusType= N'a'"},
        {{"cBusType", "", "b"}, " And cBusType= N''"},
        {{"cDefine7", "1.5", "9", true}, " And cDefine7>= N'1.5' And cDefine7<= N'9'"},
        {{"cDefine7", "1.5", "", true}, " And cDefine7>= N'1.5'"},
        {{"cDefine7", "", "9", true}, " And cDefine7<= N'9'"},
        {{"cVouCode", "a'b"}, " And cVouCode= N'a'b'"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Translated({c.field}).strDefineSub, std::string(" 1=1 ") + c.condition);
    EXPECT_EQ(Translated({{"b", "2"}, {"a", "1"}}).strDefineSub, " 1=1  And b= N'2' And a= N'1'")
        << "in the order of the items";
}

TEST(TranslateSummaryFilter, TellsKeysApartByCase)
{
    const SumConditions conditions =
        Translated({{"cInvCode", "A"}, {"CINVCCODE", "01"}, {"cWhCode", "01"}, {"endnum", ""}});
    EXPECT_EQ(conditions.strInvCode(0), "");
    EXPECT_EQ(conditions.strInvCCode, "");
    EXPECT_EQ(conditions.strWhCode, "");
    EXPECT_EQ(conditions.IntThanZero, 0);
    EXPECT_EQ(conditions.strDefineSub, " 1=1  And cInvCode= N'A' And CINVCCODE= N'01' And cWhCode= N'01'");
}

TEST(TranslateSummaryFilter, PutsTheInventoryBeforeItsUserFields)
{
    EXPECT_EQ(Translated({{"cInvDefine1", "x"}, {"cInvDefine16", "1", "2", true}}).strDefineSub,
              " 1=1  And Inventory.cInvDefine1= N'x'"
              " And Inventory.cInvDefine16>= N'1' And Inventory.cInvDefine16<= N'2'");
    EXPECT_EQ(Translated({{"Inventory.cInvDefine1", "x"}}).strDefineSub,
              " 1=1  And Inventory.Inventory.cInvDefine1= N'x'")
        << "the dialog gives bare names";
    EXPECT_EQ(Translated({{"cInvdefine1", "x"}}).strDefineSub, " 1=1  And cInvdefine1= N'x'");
}

TEST(TranslateSummaryFilter, WritesOneTokenIntoEachItemAndNothingElse)
{
    RecordingHost host;
    host.SetFilter({{"cInvCCode", "01"}, {"cinvcode", "A", "B"}, {"cRdCode", "1", "2", true}});
    SumConditions conditions;
    TranslateSummaryFilter(*host.Filter(), conditions);
    EXPECT_EQ(host.Events().Text(),
              "RawFilter.FilterList\n"
              "FilterList.Count\n"
              "FilterList.Item 1\n"
              "cInvCCode.LngGrouptoken = 1\n"
              "cInvCCode.Name\n"
              "cInvCCode.varValue\n"
              "FilterList.Item 2\n"
              "cinvcode.LngGrouptoken = 1\n"
              "cinvcode.Name\n"
              "cinvcode.varValue\n"
              "cinvcode.varValue2\n"
              "FilterList.Item 3\n"
              "cRdCode.LngGrouptoken = 1\n"
              "cRdCode.Name\n"
              "cRdCode.varValue\n"
              "cRdCode.varValue2\n"
              "cRdCode.RangeInput\n");
}

TEST(TranslateSummaryFilter, ShowsAValueThatIsNoNumberAndGivesFalse)
{
    for (const char* key : {"cAssComUnitNum", "rdGrade"}) {
        for (const char* value : {"abc", "1x", "40000"}) {
            RecordingHost host;
            host.SetFilter({{"cInvCCode", "01"}, {key, value}, {"cItemCode", "P"}});
            SumConditions conditions;
            EXPECT_FALSE(TranslateSummaryFilter(*host.Filter(), conditions)) << key << " " << value;
            EXPECT_NE(host.Events().Text().find("ResourceObject.ShowMessage "), std::string::npos);
            EXPECT_EQ(conditions.strInvCCode, "01") << "as far as it got";
            EXPECT_EQ(conditions.itemCode, "");
        }
    }
}

TEST(TranslateSummaryFilter, ShowsAnyFaultOfTheFilterAndGivesFalse)
{
    const std::vector<FakeField> fields = {
        {"cInvCCode", "01"}, {"cwhcode", "01"}, {"dVouDate", "2008-07-01", "2008-07-31"}, {"cRdCode", "1"}};
    RecordingHost whole;
    whole.SetFilter(fields);
    SumConditions all;
    TranslateSummaryFilter(*whole.Filter(), all);
    const std::vector<std::string> events = whole.Events().Lines();
    for (std::size_t step = 1; step <= events.size(); ++step) {
        RecordingHost host;
        host.SetFilter(fields);
        host.Events().FailAt(step);
        SumConditions conditions;
        EXPECT_FALSE(TranslateSummaryFilter(*host.Filter(), conditions)) << events[step - 1];
        EXPECT_TRUE(host.Events().Lines().back().starts_with("ResourceObject.ShowMessage "))
            << events[step - 1];
    }
}

// ---- the properties themselves

TEST(SumConditions, BeginEmpty)
{
    const SumConditions conditions;
    EXPECT_EQ(conditions.strInvName(0) + conditions.strInvName(1) + conditions.strInvCode(0) +
                  conditions.strInvCode(1) + conditions.strDefineSub + conditions.strCompareQuantity,
              "");
    EXPECT_EQ(conditions.intInvGrade + conditions.intRdGrade + conditions.IntThanZero +
                  conditions.IntThanZeroA + conditions.BlnIfOcc + conditions.cAssComUnitNum,
              0);
    EXPECT_TRUE(conditions.varDate(0).IsEmpty() && conditions.varDate(1).IsEmpty());
    EXPECT_FALSE(conditions.blnWhSum || conditions.BlnAccounted || conditions.BlnUnAccounted);
}

TEST(SumConditions, RaiseASubscriptErrorAboveOne)
{
    SumConditions conditions;
    const std::function<void(std::uint8_t)> accessors[] = {
        [&](std::uint8_t index) { conditions.strInvName(index) = "x"; },
        [&](std::uint8_t index) { conditions.strInvCode(index) = "x"; },
        [&](std::uint8_t index) { conditions.varDate(index) = Value("x"); },
        [&](std::uint8_t index) { std::as_const(conditions).strInvName(index); },
        [&](std::uint8_t index) { std::as_const(conditions).strInvCode(index); },
        [&](std::uint8_t index) { std::as_const(conditions).varDate(index); },
    };
    for (const auto& access : accessors) {
        EXPECT_NO_THROW(access(0));
        EXPECT_NO_THROW(access(1));
        EXPECT_THROW(access(2), Error);
        EXPECT_THROW(access(255), Error);
    }
}

}  // namespace kavelin::test
