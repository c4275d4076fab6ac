#include "frame/VouTypes.h"

#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

struct Forms {
    std::string main, flagged, plain;
};

void ExpectForms(const std::string& list, const Forms& wanted)
{
    const VouTypes types = SplitVouTypes(list);
    EXPECT_EQ(types.strMain, wanted.main) << list;
    EXPECT_EQ(types.strFlagged, wanted.flagged) << list;
    EXPECT_EQ(types.strPlain, wanted.plain) << list;
}

}  // namespace

TEST(QuoteCodeList, QuotesAndTrimsEachPart)
{
    EXPECT_EQ(QuoteCodeList(""), "");
    EXPECT_EQ(QuoteCodeList("01"), "'01'");
    EXPECT_EQ(QuoteCodeList(" 01\t08 \t EX26"), "'01','08','EX26'");
    EXPECT_EQ(QuoteCodeList("01,08"), "'01,08'");
}

TEST(QuoteBusTypeList, TurnsShownTextsIntoCodes)
{
    RecordingHost host;
    EXPECT_EQ(QuoteBusTypeList(" Ordinary \tOther"), "N'code of Ordinary',N'code of Other'");
    EXPECT_EQ(host.Events().Text().find("GetEnumCode IA.Bustype, Ordinary") == std::string::npos, false);
    EXPECT_EQ(QuoteBusTypeList(""), "");
}

TEST(QuoteBusTypeList, BringsInTheShortFormOfConsignmentSales)
{
    RecordingHost host;
    host.Answers().codes = {{"委托代销", "委托代销"}, {"普通销售", "普通销售"}};
    EXPECT_EQ(QuoteBusTypeList("普通销售\t委托代销"), "N'普通销售',N'委托代销',N'委托'");
    EXPECT_EQ(QuoteBusTypes("普通销售\t委托代销"), "N'普通销售',N'委托代销'");
}

TEST(SplitVouTypes, TestsTheFlagOfAHalfThatIsChosenAlone)
{
    ExpectForms("'01'", {"", " (cVouType='01' and bFlag<>1) ", "'01'"});
    ExpectForms("'011'", {"", " (cVouType='01' and bFlag=1) ", "'01'"});
    ExpectForms("'30','701'",
                {"", " (cVouType='30' and bFlag<>1)  OR (cVouType='70' and bFlag=1) ", "'30','70'"});
    ExpectForms(
        "'301','011','70'",
        {"", " (cVouType='01' and bFlag=1)  OR (cVouType='30' and bFlag=1)  OR (cVouType='70' and bFlag<>1) ",
         "'30','01','70'"});
}

TEST(SplitVouTypes, TestsNoFlagWhereBothHalvesAreChosen)
{
    ExpectForms("'01','011'", {"'01','011'", "", "'01','01'"});
    ExpectForms("'70','30','701','301'", {"'70','30','701','301'", "", "'70','30','70','30'"});
}

TEST(SplitVouTypes, TakesAHalfOutTogetherWithACommaBesideIt)
{
    ExpectForms("'01','08'", {"'08'", " (cVouType='01' and bFlag<>1) ", "'01','08'"});
    ExpectForms("'08','01'", {"'08'", " (cVouType='01' and bFlag<>1) ", "'08','01'"});
    ExpectForms("'08','01','09'", {"'08','09'", " (cVouType='01' and bFlag<>1) ", "'08','01','09'"});
}

TEST(SplitVouTypes, WidensTheCodesThatBelongTogether)
{
    ExpectForms("'32'", {"'32','3201'", "", "'32'"});
    ExpectForms("'25','05'", {"'25','2501','05','06'", "", "'25','05','06'"});
}

}  // namespace kavelin::test
