#include "filter/AccountMonths.h"

#include "frame/Errors.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/Statement.h"

#include <algorithm>

namespace kavelin {

namespace {

constexpr std::string_view kBetweenEntries = "{#}";
constexpr std::string_view kBetweenBoxes = "{##}";

std::string WithZeros(std::int16_t number, std::size_t digits)
{
    const std::string text = std::to_string(number);
    return std::string(digits - std::min(digits, text.size()), '0') + text;
}

}  // namespace

std::string SelectOpenMonths(const std::string& strAccountId)
{
    // clang-format off
    return JoinLines({
        "select iyear,iid ",
        "from vossystem..ua_period",
        "Inner Join AccInformation ON (vossystem..ua_period.iYear > Year(AccInformation.cValue) OR (vossystem..ua_period.iYear = Year(AccInformation.cValue) And vossystem..ua_period.iId >= Month(AccInformation.cValue)))",
        "And ((select top 1 cValue from accinformation where csysid = N'aa' and cName = N'ArchiveDate') Is Null",
        "    Or VosSystem..UA_Period.iYear > (Select top 1 iYear From VosSystem..UA_Period Where cacc_id =N'" + strAccountId + "' And (select top 1 cValue from accinformation where csysid = N'aa' and cName = N'ArchiveDate') Between dBegin And dEnd))",
        "And AccInformation.cSysID = 'IA' And cName = 'dIAStartDate'",
        "where cacc_id =N'" + strAccountId + "' And iYear < 9999 AND bIsDelete = 0",
        "order by iyear,iid",
    });
    // clang-format on
}

void InitAccMonth()
{
    ModPubState& state = ModPub();
    state.gdicAccMonth.clear();
    const std::string sql = SelectOpenMonths(Existing(state.gobjLogin).AccountId());
    const auto months =
        Existing(state.gcnnAccount)
            .OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::Unspecified);
    for (; !months->Eof(); months->MoveNext()) {
        const std::int16_t year = ToInt16(months->Field("iyear"));
        const std::int16_t month = ToInt16(months->Field("iid"));
        state.gdicAccMonth.emplace(std::to_string(year) + WithZeros(month, 2),
                                   WithZeros(year, 4) + "." + WithZeros(month, 2));
    }
    months->Close();
}

std::string PairedMonthList()
{
    std::string list;
    for (const auto& [key, month] : ModPub().gdicAccMonth) {
        if (!list.empty())
            list += kBetweenEntries;
        list += month;
    }
    if (list.empty())
        throw Error("The account has no month that is open for inventory accounting.");
    return list + std::string(kBetweenBoxes) + list;
}

}  // namespace kavelin
