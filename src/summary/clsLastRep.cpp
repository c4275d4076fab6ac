#include "summary/clsLastRep.h"

#include "frame/AccountParameters.h"
#include "frame/DataPermission.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/PermissionColumns.h"
#include "frame/TempTables.h"
#include "frame/Text.h"
#include "summary/EstimateResult.h"
#include "summary/ModLast.h"

namespace kavelin {

namespace {

constexpr std::string_view kClass = "clsLastRep";

bool HasOutsourcing()
{
    return IsIndustrial() && IsDate(GetAccInfoValue("OM", "dOMFirstDate"));
}

// The list of items stands in a query of its own.
std::string BuildPermissionWhere()
{
    std::string where;
    for (const PermissionColumn& column : PermissionColumnsOf(kClass)) {
        const std::string clause = GetDataPermissionClause(std::string(column.field), column.kind,
                                                           column.forWrite, column.noCostLimit);
        if (clause.empty())
            continue;
        where += column.kind == "存货"
                     ? " and ia_subsidiary.cinvcode in (select cinvcode from inventory where " + clause + ")"
                     : " and " + clause;
    }
    return where;
}

EstimateRun RunOf(const EstimateConditions& conditions, bool bOM)
{
    EstimateRun run;
    run.strVouCond = conditions.strVouCond;
    run.strYear = conditions.strYear;
    run.strMonth = conditions.strMonth;
    run.strWhere = "and " + conditions.strGroupWhere + BuildPermissionWhere();
    run.strBusTypes = conditions.strBusTypes;
    run.blnEntrust = conditions.blnEntrust;
    run.bOM = bOM;
    run.strZgTable = GetClientTableName("Ia_ZgTmpTable");
    run.strZgSumTable = GetClientTableName("Ia_ZgSumTmpTable");
    return run;
}

}  // namespace

void clsLastRep::GetSqlForOld(LateBound& e)
{
    RunFrame(FindFrameRow(kClass, FrameEntry::GetSqlForOld), e, objFrame,
             [this] { return MoveDataDetail(); });
}

void clsLastRep::GETSQL(LateBound& e)
{
    RunFrame(FindFrameRow(kClass, FrameEntry::GETSQL), e, objFrame, [this] { return MoveDataDetail(); });
}

bool clsLastRep::MoveDataDetail()
{
    const bool bOM = HasOutsourcing();
    return IgnoreErrors([&] {
        TranslateEstimateFilter(Existing(objFrame.objFilter), objConditions);
        EstimateRun run = RunOf(objConditions, bOM);

        CreateZgTable(run);
        FillZgTable(run, ToText(GetAccInfoValue("IA", "cEstimate")));
        FinishZgTable(run);
        Createsql(run.strZgSumTable, run.bOM);
        LocalizeBusType(TempTablename());
        DropZgTables(run);
    });
}

bool clsLastRep::Createsql(const std::string& sSumTable, bool /*bOM*/)
{
    Connection& connection = Existing(ModPub().gcnnAccount);
    connection.Execute(DropEstimateResult(TempTablename()));
    connection.Execute(
        SelectEstimateResult(TempTablename(), sSumTable, objConditions, ModPub().gstrLanguage));
    connection.Execute(DeleteUnmoved(TempTablename()));
    return false;
}

bool clsLastRep::LocalizeBusType(const std::string& strTable)
{
    const std::string& language = ModPub().gstrLanguage;
    if (EqualsNoCase(language, "zh-CN"))
        return true;
    return IgnoreErrors(
        [&] { Existing(ModPub().gcnnAccount).Execute(UpdateBusTypeNames(strTable, language)); });
}

}  // namespace kavelin
