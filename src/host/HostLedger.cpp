#include "host/HostLedger.h"

#include "frame/Errors.h"
#include "frame/Text.h"
#include "frame/Value.h"

#include <algorithm>

namespace kavelin::host {

namespace {

constexpr std::string_view kPasswordMark = ";PWD=";

std::unique_ptr<Recordset> Read(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
}

std::string FromPeriods(const std::string& accountId)
{
    return " from VosSystem..UA_Period where cAcc_ID = N'" + ReplaceAll(accountId, "'", "''") +
           "' and iYear <> 9999 and isnull(bIsDelete, 0) = 0";
}

bool IsDigits(std::string_view text)
{
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

void HostLedgerLogin::Initialise(const std::string& connectionText, const std::string& passwordText, bool,
                                 bool)
{
    strConnectionText = connectionText;
    strPassword = passwordText.starts_with(kPasswordMark) ? passwordText.substr(kPasswordMark.size()) : "";
    cnnLedger.reset();
}

std::shared_ptr<Connection> HostLedgerLogin::DbConnection()
{
    if (!cnnLedger)
        cnnLedger = objConnections.Open("ledger", strConnectionText, strPassword);
    return cnnLedger;
}

std::string HostLedgerPub::Periods() const
{
    return FromPeriods(strAccountId);
}

std::pair<int, int> HostLedgerPub::GetYearMonthRange(const std::string& year, Connection& account)
{
    const std::string number(Trim(year));
    if (!IsDigits(number))
        throw Error("\"" + year + "\" is no accounting year.");
    const auto rows = Read(account, "select min(iID), max(iID)" + Periods() + " and iYear = " + number);
    if (rows->Eof() || rows->Field(0).IsNull())
        throw Error("The account has no accounting year " + number + ".");
    return {ToInt32(rows->Field(0)), ToInt32(rows->Field(1))};
}

std::vector<std::string> HostLedgerPub::GetAccountYears(const std::string&, Connection& account)
{
    std::vector<std::string> years;
    for (const auto rows = Read(account, "select distinct iYear" + Periods() + " order by iYear");
         !rows->Eof(); rows->MoveNext())
        years.push_back(ToText(rows->Field(0)));
    return years;
}

void HostLedgerParams::Set(std::string year, std::string valueStyle)
{
    strYear = std::move(year);
    strValueStyle = std::move(valueStyle);
}

void HostLedgerPub::GetAccountYearParams(LedgerLogin& login, const std::string& year, LedgerParams& params)
{
    const auto rows =
        Read(*login.DbConnection(),
             "select cValue, cDefault from AccInformation where cSysID = N'IA' and cName = N'cValueStyle'");
    std::string style;
    if (!rows->Eof())
        for (const int field : {0, 1})
            if (const Value value = rows->Field(field); style.empty() && !value.IsNull())
                style = ToText(value);
    dynamic_cast<HostLedgerParams&>(params).Set(year, style);
}

PeriodDays DaysOfPeriods(Connection& account, const std::string& accountId, const std::string& from,
                         const std::string& to)
{
    const auto limit = [](const std::string& comparison, const std::string& period) {
        return period.empty() ? ""
                              : " and iYear * 100 + iID " + comparison + " " + ReplaceAll(period, ".", "");
    };
    const auto rows = Read(account, "select min(dBegin), max(dEnd)" + FromPeriods(accountId) +
                                        limit(">=", from) + limit("<=", to));
    if (rows->Eof() || rows->Field(0).IsNull() || rows->Field(1).IsNull())
        throw Error("The account has no accounting months " + from + ".." + to + ".");
    return {FormatDate(ToDate(rows->Field(0))), FormatDate(ToDate(rows->Field(1)))};
}

}  // namespace kavelin::host
