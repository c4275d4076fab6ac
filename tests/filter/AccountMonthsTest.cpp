// The list of open fiscal months, and the texts made of months.
#include "filter/AccountMonths.h"
#include "filter/Dialog.h"
#include "filter/FilterIdentities.h"
#include "filter/LedgerYears.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

using Months = std::vector<std::pair<std::string, std::string>>;

Months Held()
{
    return {ModPub().gdicAccMonth.begin(), ModPub().gdicAccMonth.end()};
}

void Prepare(RecordingHost& host, const std::vector<std::vector<Value>>& rows)
{
    host.OpenAccount();
    ModPub().gobjLogin = host.Login();
    host.Script().rows[SelectOpenMonths("001")] = {{"iyear", "iid"}, rows};
}

}  // namespace

TEST(InitAccMonth, KeepsTheRowsOfTheQuery)
{
    RecordingHost host;
    Prepare(host, {{2007, 12}, {2008, 1}, {"2008", "2"}});
    clsFilterControl().InitAccMonth();
    EXPECT_EQ(Held(), (Months{{"200712", "2007.12"}, {"200801", "2008.01"}, {"200802", "2008.02"}}));
    EXPECT_EQ(host.Events().Lines().at(1).rfind("#1.OpenRecordset @1 location=3 type=3 lock=-1 ", 0), 0U);
    EXPECT_EQ(host.Events().Lines().back(), "@1.Close");
}

TEST(InitAccMonth, WritesYearsOfFourPlacesIntoTheItemsOnly)
{
    RecordingHost host;
    Prepare(host, {{998, 3}});
    InitAccMonth();
    EXPECT_EQ(Held(), (Months{{"99803", "0998.03"}}));
}

TEST(InitAccMonth, LeavesExactlyTheRowsOfTheQueryAtASecondCall)
{
    RecordingHost host;
    Prepare(host, {{2007, 1}, {2007, 2}});
    InitAccMonth();
    Prepare(host, {{2007, 2}});
    InitAccMonth();
    EXPECT_EQ(Held(), (Months{{"200702", "2007.02"}}));
}

TEST(InitAccMonth, LeavesNoOldMonthsBehindAFailure)
{
    RecordingHost host;
    Prepare(host, {{2007, 1}});
    InitAccMonth();
    host.Script().failures[SelectOpenMonths("001")] = "no such table";
    EXPECT_THROW(InitAccMonth(), DatabaseError);
    EXPECT_EQ(Held(), Months{});
}

TEST(InitAccMonth, RefusesAYearThatNoSmallIntegerHolds)
{
    RecordingHost host;
    Prepare(host, {{40000, 1}});
    EXPECT_THROW(InitAccMonth(), OverflowError);
}

TEST(PairedMonthList, StandsTwiceForTheTwoBoxes)
{
    RecordingHost host;
    Prepare(host, {{2008, 1}});
    InitAccMonth();
    EXPECT_EQ(PairedMonthList(), "2008.01{##}2008.01");
}

TEST(ADialogWithAPairOfMonths, DoesNotOpenOnAnAccountWithoutAnOpenMonth)
{
    for (const char* key : {"iMonth", "avgPrice"}) {
        RecordingHost host;
        Dialog dialog(host, kJournal, {{key}, {"vouEstate"}});
        try {
            dialog.Open();
            ADD_FAILURE() << "it opened";
        } catch (const Error& error) {
            EXPECT_STREQ(error.what(), "The account has no month that is open for inventory accounting.");
        }
        EXPECT_EQ(dialog.Made(), Changes{});
    }
}

TEST(ADialogWithAPairOfMonths, AsksForThemOncePerField)
{
    RecordingHost host;
    Prepare(host, {{2008, 1}});
    Dialog dialog(host, kJournal, {{"iMonth"}, {"avgPrice"}});
    dialog.Open();
    EXPECT_EQ(host.Sent().size(), 2U);
}

TEST(BuildMonthList, EndsEachMonthWithAComma)
{
    EXPECT_EQ(BuildMonthList({1, 12}), "1月,2月,3月,4月,5月,6月,7月,8月,9月,10月,11月,12月,");
    EXPECT_EQ(BuildMonthList({7, 7}), "7月,");
    EXPECT_EQ(BuildMonthList({8, 7}), "");
}

TEST(GetAccYearList, ListsTheYearsAndKeepsTheLogins)
{
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{}, ""}, {{"2008"}, "2008"}, {{"2007", "2008", "2009"}, "2007,2008,2009"}};
    for (const auto& [years, list] : cases) {
        RecordingHost host;
        Prepare(host, {});
        host.Answers().accountYears = years;
        DialogState state;
        state.strCurYear = "1999";
        EXPECT_EQ(GetAccYearList(state), list);
        EXPECT_EQ(state.strCurYear, "2008");
        EXPECT_EQ(host.Events().Text(),
                  "Login.ConnectionText\nLogin.Password\nnew LedgerLogin\n"
                  "LedgerLogin.Initialise 'connection text', ';PWD=login password', False, False\n"
                  "new LedgerPub\nLedgerPub.SetLogin gobjLedgerLogin\nLedgerPub.Reload '', ''\n"
                  "Login.Year\nLedgerPub.GetAccountYears 2008\nLogin.Year\n");
    }
}

}  // namespace kavelin::test
