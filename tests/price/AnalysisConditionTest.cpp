#include "price/AnalysisCondition.h"

#include "frame/Errors.h"
#include "support/RecordingXml.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

std::shared_ptr<XmlNode> Load(const std::string& text)
{
    const auto document = MakeRecordingXml(std::make_shared<EventLog>());
    document->loadXML(text);
    return document->documentElement();
}

ConditionValues July()
{
    ConditionValues values;
    values.strMonth = "2008.07";
    return values;
}

// A text that is a document.
AnalysisCondition ReadBack(const ConditionValues& values)
{
    const auto root = Load(WriteCondition(values));
    if (!root)
        throw Error("no document");
    return ReadCondition(*root);
}

}  // namespace

TEST(WriteCondition, WritesEveryElementInItsOrderWithItsBlanks)
{
    ConditionValues values;
    values.strShowType = "1";
    values.strMonth = "2008.07";
    values.blnVoucherLevel = true;
    values.strBasePrice = "3";
    values.strAvgFrom = "2008.01";
    values.strAvgTo = "2008.06";
    values.strAvgKind = "2";
    values.dblDiffRatio = 12.5;
    EXPECT_EQ(WriteCondition(values),
              "<condition><ShowType> 1 </ShowType><iMonth> 2008.07 </iMonth><isJc> 1 </isJc><BP> 3 </BP>"
              "<avgMonth value = '2008.01' value1 = '2008.06'> s </avgMonth> "
              "<avgPrices> 2 </avgPrices><DiffRatio> 12.5 </DiffRatio></condition>");
}

TEST(WriteCondition, WritesWhatNobodyAskedForAsEmptyAndNumbersAsZero)
{
    EXPECT_EQ(WriteCondition({}),
              "<condition><ShowType>  </ShowType><iMonth>  </iMonth><isJc> 0 </isJc><BP>  </BP>"
              "<avgMonth value = '' value1 = ''> s </avgMonth> "
              "<avgPrices>  </avgPrices><DiffRatio> 0 </DiffRatio></condition>");
}

TEST(ReadCondition, ReadsBackWhatWasWritten)
{
    ConditionValues values = July();
    values.strShowType = "2";
    values.blnVoucherLevel = true;
    values.strBasePrice = "5";
    values.strAvgFrom = "2008.01";
    values.strAvgTo = "2008.06";
    values.strAvgKind = "3";
    values.dblDiffRatio = 10;
    const AnalysisCondition condition = ReadBack(values);
    EXPECT_EQ(condition.strShowType, "2");
    EXPECT_EQ(condition.intYear, 2008);
    EXPECT_EQ(condition.strMonth, "07");
    EXPECT_TRUE(condition.blnVoucherLevel);
    EXPECT_EQ(condition.dblBasePrice, 5);
    EXPECT_EQ(condition.dblAvgKind, 3);
    EXPECT_EQ(condition.strAvgRange,
              " and  ( s.iYear >=  2008 and  s.iMonth >= 01 and s.iYear <=  2008 and  s.iMonth <= 06)");
    EXPECT_EQ(condition.strOutputFilter, " where abs(DiffRatio) >= 10");
}

TEST(ReadCondition, TakesAMonthWithOneDigitToo)
{
    ConditionValues values;
    values.strMonth = "2008.7";
    EXPECT_EQ(ReadBack(values).strMonth, "07");
}

TEST(ReadCondition, HasNoOutputFilterForADeviationOf0)
{
    const struct {
        double ratio;
        const char* filter;
    } cases[] = {
        {0, ""},
        {10, " where abs(DiffRatio) >= 10"},
        {0.5, " where abs(DiffRatio) >= 0.5"},
        {-5, " where abs(DiffRatio) >= -5"},
    };
    for (const auto& c : cases) {
        ConditionValues values = July();
        values.dblDiffRatio = c.ratio;
        EXPECT_EQ(ReadBack(values).strOutputFilter, c.filter) << c.ratio;
    }
}

TEST(ReadCondition, LimitsYearAndMonthOfTheAverageEachByItself)
{
    const struct {
        const char *from, *to, *range;
    } cases[] = {
        {"", "", ""},
        {"2007.11", "2008.02",
         " and  ( s.iYear >=  2007 and  s.iMonth >= 11 and s.iYear <=  2008 and  s.iMonth <= 02)"},
        {"2008.01", "", " and  ( s.iYear >=  2008 and  s.iMonth >= 01"},
        {"", "2008.06", " and s.iYear <=  2008 and  s.iMonth <= 06)"},
    };
    for (const auto& c : cases) {
        ConditionValues values = July();
        values.strAvgFrom = c.from;
        values.strAvgTo = c.to;
        EXPECT_EQ(ReadBack(values).strAvgRange, c.range) << c.from << " to " << c.to;
    }
}

TEST(ReadCondition, FailsWithoutAMonth)
{
    for (const char* month : {"", "2008", "07"}) {
        ConditionValues values;
        values.strMonth = month;
        EXPECT_THROW(ReadBack(values), Error) << month;
    }
    ConditionValues values;
    values.strMonth = "2008.x";
    EXPECT_THROW(ReadBack(values), ConversionError);
}

TEST(ReadCondition, TakesAKindThatIsNoNumberFor0)
{
    ConditionValues values = July();
    values.strBasePrice = "average";
    EXPECT_EQ(ReadBack(values).dblBasePrice, 0);
    EXPECT_EQ(ReadBack(values).dblAvgKind, 0);
}

TEST(ReadCondition, PassesElementsOfOtherNamesOver)
{
    const auto root = Load(
        "<condition><bp> 1 </bp><other/><iMonth> 2008.07 </iMonth> text <!-- note -->"
        "<avgPrices> 2 </avgPrices></condition>");
    ASSERT_NE(root, nullptr);
    const AnalysisCondition condition = ReadCondition(*root);
    EXPECT_EQ(condition.dblBasePrice, 0);
    EXPECT_EQ(condition.dblAvgKind, 2);
    EXPECT_EQ(condition.strShowType, "");
}

// Values stand in the text as they are, so that some end it and some become XML.
TEST(TheConditionText, IsNoDocumentForAValueThatBreaksIt)
{
    const struct {
        const char* value;
        bool document;
    } cases[] = {
        {"1", true},    {"a'b", true},          {"a\"b", true}, {"a&lt;b", true}, {"a<b", false},
        {"a&b", false}, {"</ShowType>", false}, {"a>b", true},  {"<b/>", true},
    };
    for (const auto& c : cases) {
        ConditionValues values = July();
        values.strShowType = c.value;
        EXPECT_EQ(Load(WriteCondition(values)) != nullptr, c.document) << c.value;
    }
    ConditionValues values = July();
    values.strShowType = "a&lt;b";
    EXPECT_EQ(ReadBack(values).strShowType, "a<b");
    values.strShowType = "1<b/>";
    EXPECT_EQ(ReadBack(values).strShowType, "1");
}

TEST(TheConditionText, LosesAnAverageMonthWithAQuote)
{
    const struct {
        const char* from;
        bool document;
    } cases[] = {{"2008.01", true}, {"2008.0'1", false}, {"2008.\"01", true}, {"2008.<1", false}};
    for (const auto& c : cases) {
        ConditionValues values = July();
        values.strAvgFrom = c.from;
        EXPECT_EQ(Load(WriteCondition(values)) != nullptr, c.document) << c.from;
    }
}

}  // namespace kavelin::test
