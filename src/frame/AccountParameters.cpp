#include "frame/AccountParameters.h"

#include "frame/AccountStatements.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"

namespace kavelin {

namespace {

std::unique_ptr<Recordset> OpenForward(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::ForwardOnly, LockType::ReadOnly);
}

}  // namespace

Value GetAccInfoValue(const std::string& cSysID, const std::string& cName)
{
    Value found = "";
    const auto rows = OpenForward(Existing(ModPub().gcnnAccount), SelectParameter(cSysID, cName));
    if (!rows->Eof()) {
        const Value value = rows->Field("cvalue");
        if (!value.IsNull() && !ToText(value).empty()) {
            found = value;
        } else {
            const Value byDefault = rows->Field("cDefault");
            found = byDefault.IsNull() ? Value("") : byDefault;
        }
    }
    rows->Close();
    return found;
}

std::uint8_t GetSysStartMonth(std::string& strSysID)
{
    if (strSysID.empty())
        strSysID = "IA";
    const auto rows = Existing(ModPub().gcnnAccount)
                          .OpenRecordset(SelectStartDate(strSysID), CursorLocation::Client,
                                         CursorType::Static, LockType::Unspecified);
    if (rows->Eof())
        return 0;
    const Value value = rows->Field("cvalue");
    if (value.IsNull() || Trim(ToText(value)).empty())
        return 0;
    return static_cast<std::uint8_t>(MonthOf(ToDate(value)));
}

std::string GetIAStartMonth()
{
    const std::string start = ToText(GetAccInfoValue("IA", "dIAStartDate"));
    if (start.empty())
        return "0";
    if (IsDate(start))
        return std::to_string(MonthOf(ToDate(start)));
    ResourceObject& resources = Resources();
    const std::string before = resources.GetResString("Orvo.IA.CHHSSQL.06609");
    const std::string behind = resources.GetResString("Orvo.IA.CHHSSQL.06610");
    resources.ShowMessage(before + start + behind, kInformation);
    return "0";
}

bool GetPeriodDates(std::int32_t lngPeriod, Value* varBegin, Value* varEnd, std::string& strYear)
{
    LoginContext& login = Existing(ModPub().gobjLogin);
    if (strYear.empty())
        strYear = login.Year();
    const auto rows =
        OpenForward(Existing(ModPub().gcnnSystem), SelectPeriod(login.AccountId(), strYear, lngPeriod));
    if (rows->Eof())
        return false;
    if (varBegin)
        *varBegin = FormatDate(ToDate(rows->Field("dBegin")));
    if (varEnd)
        *varEnd = FormatDate(ToDate(rows->Field("dEnd")));
    return true;
}

void GetInvDefineNames(std::array<std::string, 16>& arrNames)
{
    for (int number = 1; number <= 16; ++number) {
        const auto rows = OpenForward(Existing(ModPub().gcnnAccount), SelectInvDefineName(number));
        for (; !rows->Eof(); rows->MoveNext())
            arrNames[static_cast<std::size_t>(number - 1)] = ToText(rows->Field("cItemName"));
        rows->Close();
    }
}

void InitLedgerObjects()
{
    ModPubState& state = ModPub();
    const std::string connectionText = Existing(state.gobjLogin).ConnectionText();
    const std::string password = Existing(state.gobjLogin).Password();
    if (!state.gobjLedgerLogin)
        state.gobjLedgerLogin = CurrentPlatform().CreateLedgerLogin();
    state.gobjLedgerLogin->Initialise(connectionText, ";PWD=" + password, false, false);
    if (!state.gobjLedgerPub)
        state.gobjLedgerPub = CurrentPlatform().CreateLedgerPub();
    state.gobjLedgerPub->SetLogin(state.gobjLedgerLogin);
    state.gobjLedgerPub->Reload("", "");
}

void InitLedgerParams(const std::string& strYear)
{
    InitLedgerObjects();
    ModPubState& state = ModPub();
    if (!state.gobjLedgerParams)
        state.gobjLedgerParams = CurrentPlatform().CreateLedgerParams();
    state.gobjLedgerPub->GetAccountYearParams(*state.gobjLedgerLogin, strYear, *state.gobjLedgerParams);
}

}  // namespace kavelin
