#include "filter/clsFilterControl.h"

#include "filter/AccountMonths.h"
#include "filter/FilterDispatch.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"

namespace kavelin {

namespace {

constexpr std::int32_t kNoOptions = -1;

// Connects to the account of the login and keeps what the routines read of it.
void InitFilterEnvironment(ReportFilterObject& filter, DialogState& state)
{
    ModPubState& module = ModPub();
    module.gcnnAccount = CurrentPlatform().CreateConnection();
    module.gcnnAccount->SetCursorLocation(CursorLocation::Client);
    const std::shared_ptr<LoginContext> login = filter.Login();
    module.gcnnAccount->SetConnectionString(Existing(login).VosDbName());
    module.gcnnAccount->SetConnectionTimeout(0);
    module.gcnnAccount->SetCommandTimeout(0);
    module.gcnnAccount->Open("", "", kNoOptions);

    module.gobjLogin = login;
    Resources().SetLogin(login);
    state.strCurYear = login->Year();
    const int month = login->Month();
    module.gstrCurrentPeriod = login->Year() + (month < 10 ? ".0" : ".") + std::to_string(month);
}

}  // namespace

Value clsFilterControl::CallBack_FilterInit(ReportFilterObject& objFilter)
{
    InitFilterEnvironment(objFilter, objState);
    if (const auto open = RoutinesOf(objFilter.FilterID()).open)
        open(objFilter, objState);
    return {};
}

void clsFilterControl::CallBack_ValueChange(const std::string& sKey, ReportFilterObject& flt)
{
    if (const auto change = RoutinesOf(flt.FilterID()).change)
        change(sKey, flt);
}

Value clsFilterControl::CallBack_FilterClick(ReportFilterObject& objFilter, bool& Cancel)
{
    const FilterRoutines& routines = RoutinesOf(objFilter.FilterID());
    Cancel = routines.check && !routines.check(objFilter, objState);
    if (routines.handsViewOver)
        objFilter.ContextArgs()->Add(Value(objState.strViewClass), "ViewClass");
    return {};
}

void clsFilterControl::CallBack_ReportViewChange(const std::string& sKey, ReportFilterObject& flt,
                                                 Value& ReturnViewClass)
{
    if (const auto viewChange = RoutinesOf(flt.FilterID()).viewChange)
        viewChange(sKey, flt, objState, ReturnViewClass);
}

void clsFilterControl::CallBack_ReportViewInit(ReportFilterObject& flt, Value& ReturnViewClass)
{
    if (const auto firstView = RoutinesOf(flt.FilterID()).firstView)
        firstView(flt, objState, ReturnViewClass);
}

void clsFilterControl::InitAccMonth()
{
    kavelin::InitAccMonth();
}

}  // namespace kavelin
