#include "analysis/ClsABC.h"

#include "analysis/AbcFilter.h"
#include "analysis/FrmOpt.h"
#include "analysis/ModABC.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/PermissionColumns.h"
#include "frame/TempTables.h"

namespace kavelin {

namespace {

constexpr std::string_view kReportForm = "ABC成本分析";

void ShowOptions()
{
    const auto host = CurrentPlatform().CreateFormHost();
    FrmOpt form(host);
    host->ShowModal(form);
}

void Redraw(LateBound& e)
{
    const auto arguments = ObjectOf<LateBound>(e.Get("FltArgs"), "FltArgs");
    const auto manager = ObjectOf<LateBound>(arguments->Get("ObjreportManager"), "ObjreportManager");
    const auto form = ObjectOf<LateBound>(manager->Call("ReportListFormByName", {Value(kReportForm)}),
                                          "ReportListFormByName");
    form->Call("RefreshList", {});
}

}  // namespace

void ClsABC::GETSQL(LateBound& e)
{
    RunFrame(FindFrameRow("ClsABC", FrameEntry::GETSQL), e, objFrame, [this] {
        if (ToText(objFrame.dicArgs[FrameRead::ArgABC]) == "1")
            blnFromDialog = true;
        return MoveDataDetail();
    });
}

void ClsABC::GetSqlForOld(LateBound& e)
{
    blnFromDialog = true;
    RunFrame(FindFrameRow("ClsABC", FrameEntry::GetSqlForOld), e, objFrame,
             [this] { return MoveDataDetail(); });
}

bool ClsABC::MoveDataDetail()
{
    const AbcConditions conditions = ReadAbcFilter(Existing(objFrame.objFilter), blnFromDialog);
    LedgerParams& params = Existing(ModPub().gobjLedgerParams);
    AbcRun run;
    run.strPeriod = conditions.strPeriod;
    run.strWhere =
        conditions.strWhere + BuildPermissionClauses(PermissionColumnsOf("ClsABC"), params.ValueStyle());
    const std::string tail = CreateGuidText("");
    run.strInvTable = "tempdb..IA_InvABC" + tail;
    run.strABCTable = "tempdb..IA_InvABCRe" + tail;
    run.strQualifier = params.InventoryQualifier();

    ClassifyItems(run);

    Connection& account = Existing(ModPub().gcnnAccount);
    account.Execute(DropAbcResult(objFrame.strTable));
    if (blnActA == blnActB && blnActB == blnActC)
        blnActA = blnActB = blnActC = true;
    const AbcClasses shown{conditions.blnIncludeA && blnActA, conditions.blnIncludeB && blnActB,
                           conditions.blnIncludeC && blnActC};
    account.Execute(SelectAbcResult(run, shown, objFrame.strTable));
    DropTableQuiet(account, run.strInvTable);
    DropTableQuiet(account, run.strABCTable);
    return true;
}

void ClsABC::Execute(DrillDownArgs& e)
{
    EarlyRowArguments arguments(e);
    Act(arguments, e);
}

void ClsABC::ExecuteForOld(LateBound& e)
{
    LateRowArguments arguments(e);
    Act(arguments, e);
}

void ClsABC::Act(RowArguments& arguments, LateBound& e)
{
    IgnoreErrors([] { CurrentPlatform().CreateObject("OrvoClassicReport.ClsFilterArgs"); });
    std::string action;
    IgnoreErrors([&] { action = ToLower(arguments.Action()); });
    if (action == "actoption") {
        IgnoreErrors([] { ShowOptions(); });
    } else if (action == "acta" || action == "actb" || action == "actc") {
        blnActA = action == "acta";
        blnActB = action == "actb";
        blnActC = action == "actc";
        IgnoreErrors([&] { Redraw(e); });
    }
}

}  // namespace kavelin
