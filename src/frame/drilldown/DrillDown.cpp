#include "frame/drilldown/DrillDown.h"

#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/drilldown/DrillDownDocument.h"
#include "frame/drilldown/DrillDownSteps.h"
#include "frame/drilldown/DrillDownVoucher.h"

namespace kavelin {

namespace {

constexpr YearQuery kLedgerVoucherYears[] = {
    {"Select iYear From IA_SubSidiary Where cPzID = N'", "' and imonth <>0 order by iyear"},
    {"Select iYear From IA_ENSubSidiary Where cPzID = N'", "' and imonth <>0 order by iyear"},
};

void OpenAccount(RowArguments& e)
{
    constexpr std::int32_t kNoOptions = -1;
    ModPubState& state = ModPub();
    IgnoreErrors([&] { state.gcnnAccount = CurrentPlatform().CreateConnection(); });
    IgnoreErrors([&] { state.gobjLogin = e.Login(); });
    IgnoreErrors([&] { Existing(state.gcnnAccount).SetCursorLocation(CursorLocation::Client); });
    IgnoreErrors(
        [&] { Existing(state.gcnnAccount).SetConnectionString(Existing(state.gobjLogin).VosDbName()); });
    IgnoreErrors([&] { Existing(state.gcnnAccount).SetConnectionTimeout(0); });
    IgnoreErrors([&] { Existing(state.gcnnAccount).SetCommandTimeout(0); });
    IgnoreErrors([&] { Existing(state.gcnnAccount).Open("", "", kNoOptions); });
}

void CloseAccount()
{
    ModPubState& state = ModPub();
    IgnoreErrors([&] {
        if (Existing(state.gcnnAccount).State() != ConnectionState::Closed)
            state.gcnnAccount->Close();
    });
    state.gcnnAccount.reset();
}

DrillTarget TargetOf(const DrillDownRules& rules, RowArguments& e)
{
    std::string chosen;
    IgnoreErrors([&] { chosen = e.Action(); });
    for (const DrillAction& action : rules.actions)
        if (SameText(rules, chosen, action.action))
            return action.target;
    return rules.otherwise;
}

}  // namespace

std::span<const YearQuery> LedgerVoucherYears()
{
    return kLedgerVoucherYears;
}

void DrillDown(const DrillDownRules& rules, RowArguments& e)
{
    OpenAccount(e);
    bool opened = true;
    switch (TargetOf(rules, e)) {
        case DrillTarget::Document: OpenDocument(rules, e); break;
        case DrillTarget::Voucher: opened = OpenVoucher(rules, e); break;
        case DrillTarget::DifferenceVoucher: opened = OpenDifferenceVoucher(rules, e); break;
    }
    if (opened)
        CloseAccount();
}

}  // namespace kavelin
