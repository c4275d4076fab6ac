#include "analysis/clsCinTurnRep.h"

#include "analysis/ModCinTurn.h"
#include "analysis/TurnoverFilter.h"
#include "analysis/TurnoverFormat.h"
#include "analysis/TurnoverStatements.h"
#include "frame/AccountParameters.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/PermissionColumns.h"
#include "frame/TempTables.h"

namespace kavelin {

namespace {

TurnoverRun RunOf(const TurnoverConditions& conditions)
{
    TurnoverRun run;
    run.groups = conditions.groups;
    run.strWhere = conditions.strWhere;
    run.strBusWhere = conditions.strBusWhere;
    run.strDateFrom = conditions.strDateFrom;
    run.strDateTo = conditions.strDateTo;
    run.blnByAmount = conditions.blnByAmount;
    return run;
}

void DropWorkingTables(const TurnoverTables& tables)
{
    for (const std::string& table : {tables.detail, tables.average, tables.rows, tables.rates})
        DropTableQuiet(Existing(ModPub().gcnnAccount), table);
}

}  // namespace

void clsCinTurnRep::GETSQL(ReportCallArgs& e)
{
    RunFrame(FindFrameRow("clsCinTurnRep", FrameEntry::GETSQL), e, objFrame,
             [this] { return MoveDataDetail(); });
}

void clsCinTurnRep::GetSqlForOld(LateBound& e)
{
    RunFrame(FindFrameRow("clsCinTurnRep", FrameEntry::GetSqlForOld), e, objFrame,
             [this] { return MoveDataDetail(); });
}

bool clsCinTurnRep::MoveDataDetail()
{
    const std::string decimals = std::to_string(ToInt16(GetAccInfoValue("AA", "iStrsQuanDecDgt")));
    TurnoverRun run = RunOf(ReadTurnoverFilter(Existing(objFrame.objFilter)));
    run.strWhere += BuildPermissionClauses(PermissionColumnsOf("clsCinTurnRep"));
    run.tables = TurnoverTablesOf(GetClientSuffix());

    ComputeTurnover(run);

    run.strQuanDec = decimals;
    DropTableQuiet(Existing(ModPub().gcnnAccount), objFrame.strTable);
    Existing(ModPub().gcnnAccount).Execute(SelectTurnover(run, objFrame.strTable));
    HideEmptyColumns(objFrame.objReportManager, run.groups, run.blnByAmount);
    DropWorkingTables(run.tables);
    return true;
}

}  // namespace kavelin
