// Filter of the goods-in-transit template, alone.
#include "frame/Errors.h"
#include "goods/TemplateFilter.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <vector>

namespace kavelin::test {

namespace {

const std::string kOpening = "(Isnull(imonth,0)=0 )";
const std::string kMovement = "Isnull(imonth,0)<>0";

struct Read {
    std::string where;
    TemplateChoices choices;
    std::vector<std::int32_t> tokens;
};

class TemplateFilter : public testing::Test {
  protected:
    TemplateFilter() { ModPub().gobjLogin = host.Login(); }

    Read ReadFilter(const std::vector<FakeField>& fields, TemplatePass pass, const std::string& token = "")
    {
        FakeFilter filter(std::make_shared<EventLog>(), fields);
        filter.whereByToken[0] = token;
        Read read;
        read.where = BuildTemplateWhere(filter, pass, read.choices);
        read.tokens = filter.Tokens();
        return read;
    }
    std::string Opening(const std::vector<FakeField>& fields, const std::string& token = "")
    {
        return ReadFilter(fields, TemplatePass::Opening, token).where;
    }
    std::string Movement(const std::vector<FakeField>& fields, const std::string& token = "")
    {
        return ReadFilter(fields, TemplatePass::Movement, token).where;
    }

    RecordingHost host;
};

}  // namespace

TEST_F(TemplateFilter, HasOnlyTheTestOfTheMonthWhereNoDateIsGiven)
{
    EXPECT_EQ(Opening({}), "Where " + kOpening);
    EXPECT_EQ(Movement({}), "Where " + kMovement);
    for (const char* key : {"Ia_Ensubsidiary.dVouDate", "Ia_Ensubsidiary.dKeepDate"}) {
        EXPECT_EQ(Opening({{key, "", ""}}), "Where " + kOpening);
        EXPECT_EQ(Movement({{key, "", ""}}), "Where " + kMovement);
    }
}

// Two dates stand in a Between; the second quote of the posting dates is a plain one.
TEST_F(TemplateFilter, OpensWithTheDaysBeforeThePeriodAndMovesWithin)
{
    const struct {
        const char *key, *from, *to, *opening, *movement;
    } cases[] = {
        {"Ia_Ensubsidiary.dVouDate", "F", "T", "Or Ia_Ensubsidiary.dVouDate < 'F'",
         " Ia_Ensubsidiary.dVouDate Between N'F' And N'T'  And "},
        {"Ia_Ensubsidiary.dVouDate", "F", "", "Or Ia_Ensubsidiary.dVouDate < 'F'",
         "Ia_Ensubsidiary.dVouDate >= N'F' And "},
        {"Ia_Ensubsidiary.dVouDate", "", "T", "", "Ia_Ensubsidiary.dVouDate <= N'T' And "},
        {"Ia_Ensubsidiary.dKeepDate", "F", "T", "Or Ia_Ensubsidiary.dKeepDate < 'F'",
         " Ia_Ensubsidiary.dKeepDate Between N'F' And 'T'  And "},
        {"Ia_Ensubsidiary.dKeepDate", "F", "", "Or Ia_Ensubsidiary.dKeepDate < 'F'",
         "Ia_Ensubsidiary.dKeepDate >= N'F' And "},
        {"Ia_Ensubsidiary.dKeepDate", "", "T", "", "Ia_Ensubsidiary.dKeepDate <= N'T' And "},
    };
    for (const auto& c : cases) {
        const std::string alternative = *c.opening ? "  " + std::string(c.opening) : " ";
        EXPECT_EQ(Opening({{c.key, c.from, c.to}}), "Where (Isnull(imonth,0)=0" + alternative + ")");
        EXPECT_EQ(Movement({{c.key, c.from, c.to}}), "Where " + std::string(c.movement) + kMovement);
    }
}

TEST_F(TemplateFilter, OffersBothDatesAsAlternativesOfTheOpening)
{
    EXPECT_EQ(
        Opening({{"Ia_Ensubsidiary.dVouDate", "V"}, {"Ia_Ensubsidiary.dKeepDate", "K"}}),
        "Where (Isnull(imonth,0)=0  Or Ia_Ensubsidiary.dVouDate < 'V' Or Ia_Ensubsidiary.dKeepDate < 'K')");
}

TEST_F(TemplateFilter, JoinsItsConditionsWithAnd)
{
    EXPECT_EQ(Movement({{"Inventory.cInvCCode", "01"},
                        {"Ia_Ensubsidiary.cBustype", "普通销售"},
                        {"iYear", "2008"},
                        {"Ia_Ensubsidiary.dVouDate", "F", "T"}}),
              "Where Inventory.cInvCCode Like N'01%' And Ia_Ensubsidiary.cBustype= N'普通销售'"
              " And  iyear =2008 And  Ia_Ensubsidiary.dVouDate Between N'F' And N'T'  And " +
                  kMovement);
}

TEST_F(TemplateFilter, MatchesAllInventoryClassesByAnEmptyOne)
{
    EXPECT_EQ(Opening({{"Inventory.cInvCCode", ""}}), "Where Inventory.cInvCCode Like N'%' And " + kOpening);
}

TEST_F(TemplateFilter, TakesBothNamesOfConsignmentForOneType)
{
    EXPECT_EQ(
        Opening({{"Ia_Ensubsidiary.cBustype", "委托代销"}}),
        "Where (Ia_Ensubsidiary.cBustype= N'委托代销' OR Ia_Ensubsidiary.cBustype= N'委托') And " + kOpening);
    EXPECT_EQ(Opening({{"Ia_Ensubsidiary.cBustype", "委托"}}),
              "Where Ia_Ensubsidiary.cBustype= N'委托' And " + kOpening);
    EXPECT_EQ(Opening({{"Ia_Ensubsidiary.cBustype", ""}}),
              "Where Ia_Ensubsidiary.cBustype= N'' And " + kOpening);
}

TEST_F(TemplateFilter, AddsNoConditionForAllBusinessTypesAndKeepsTheItemForItself)
{
    const Read read = ReadFilter({{"Ia_Ensubsidiary.cBustype", "全部"}}, TemplatePass::Opening);
    EXPECT_EQ(read.where, "Where " + kOpening);
    EXPECT_EQ(read.tokens, std::vector<std::int32_t>{1});
}

TEST_F(TemplateFilter, LeavesUnknownKeysToTheFilterAndPutsTheirConditionLast)
{
    const Read read = ReadFilter({{"Ia_Ensubsidiary.cWhCode", "01"},
                                  {"Inventory.cInvCCode", "01"},
                                  {"Ia_Ensubsidiary.cBustype", "普通销售"},
                                  {"iUnitNumber", "1"},
                                  {"Ia_Ensubsidiary.dVouDate", ""},
                                  {"Ia_Ensubsidiary.dKeepDate", ""},
                                  {"iYear", ""},
                                  {"IsMerge", "1"},
                                  {"InvCGrade", "1"},
                                  {"RdGrade", "0"}},
                                 TemplatePass::Opening, "Ia_Ensubsidiary.cWhCode = N'01'");
    EXPECT_EQ(read.tokens, (std::vector<std::int32_t>{0, 1, 1, 1, 1, 1, 1, 1, 0, 0}));
    EXPECT_TRUE(read.where.ends_with(kOpening + " And Ia_Ensubsidiary.cWhCode = N'01'")) << read.where;
}

// Here case counts, other than in the report.
TEST_F(TemplateFilter, ComparesItsKeysExactly)
{
    const Read read = ReadFilter({{"iyear", "2008"}, {"ia_ensubsidiary.dVouDate", "F"}, {"isMerge", "1"}},
                                 TemplatePass::Opening);
    EXPECT_EQ(read.where, "Where " + kOpening);
    EXPECT_EQ(read.tokens, (std::vector<std::int32_t>{0, 0, 0}));
    EXPECT_EQ(read.choices.strIsMerge, "");
}

TEST_F(TemplateFilter, TellsTheUnitNumberAndTheMergeValue)
{
    const Read read = ReadFilter({{"iUnitNumber", "2"}, {"IsMerge", "1"}}, TemplatePass::Opening);
    EXPECT_EQ(read.choices.lngUnitNumber, 2);
    EXPECT_EQ(read.choices.strIsMerge, "1");
    EXPECT_EQ(read.where, "Where " + kOpening);
    for (const char* none : {"", "-"})
        EXPECT_EQ(ReadFilter({{"iUnitNumber", none}}, TemplatePass::Opening).choices.lngUnitNumber, 0);
}

// The account's options of the year are read, also those of no year, and have no part in the text.
TEST_F(TemplateFilter, ReadsTheAccountOptionsOfTheYear)
{
    for (const char* year : {"2008", ""}) {
        host.Events().Clear();
        const std::string where = Opening({{"iYear", year}});
        EXPECT_EQ(where, *year ? "Where  iyear =2008 And " + kOpening : "Where " + kOpening);
        const std::string asked = "LedgerPub.GetAccountYearParams " + std::string(year);
        EXPECT_TRUE(std::ranges::any_of(host.Events().Lines(), [&](const std::string& line) {
            return line.starts_with(asked);
        })) << host.Events().Text();
    }
}

TEST_F(TemplateFilter, TakesTheGradeOfTheLastItemOfTheName)
{
    const auto grade = [](const std::vector<FakeField>& fields) {
        FakeFilter filter(std::make_shared<EventLog>(), fields);
        return GetGrade(filter, "InvCGrade");
    };
    EXPECT_EQ(grade({}), 0);
    EXPECT_EQ(grade({{"RdGrade", "3"}}), 0);
    EXPECT_EQ(grade({{"InvCGrade", "2"}, {"RdGrade", "3"}}), 2);
    EXPECT_EQ(grade({{"InvCGrade", "2"}, {"InvCGrade", 5}}), 5);
    EXPECT_EQ(grade({{"InvCGrade", "2"}, {"InvCGrade", ""}}), 0);
    EXPECT_EQ(grade({{"invcgrade", "2"}}), 0);
    EXPECT_EQ(grade({{"InvCGrade", Value::Null()}}), 0);
    EXPECT_THROW(grade({{"InvCGrade", "all"}}), ConversionError);
}

}  // namespace kavelin::test
