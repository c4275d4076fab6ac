#include "filter/LedgerYears.h"

#include "frame/AccountParameters.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"

#include <tuple>

namespace kavelin {

std::string GetAccYearList(DialogState& state)
{
    InitLedgerObjects();
    LoginContext& login = Existing(ModPub().gobjLogin);
    std::string list;
    for (const std::string& year :
         Existing(ModPub().gobjLedgerPub).GetAccountYears(login.Year(), Existing(ModPub().gcnnAccount)))
        list += (list.empty() ? "" : ",") + year;
    state.strCurYear = login.Year();
    return list;
}

MonthRange GetMonthsOfYear(const std::string& year)
{
    // A template without a year field in front of its month has made no ledger objects yet.
    if (!ModPub().gobjLedgerPub)
        InitLedgerObjects();
    MonthRange months;
    std::tie(months.first, months.last) =
        Existing(ModPub().gobjLedgerPub).GetYearMonthRange(year, Existing(ModPub().gcnnAccount));
    return months;
}

std::string MonthText(int month)
{
    return std::to_string(month) + "月";
}

std::string BuildMonthList(MonthRange months)
{
    std::string list;
    for (int month = months.first; month <= months.last; ++month)
        list += MonthText(month) + ",";
    return list;
}

}  // namespace kavelin
