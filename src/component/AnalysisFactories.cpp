// Late-bound objects of the capital share, the turnover and the ABC analysis.
#include "analysis/ClsABC.h"
#include "analysis/clsCinTurnRep.h"
#include "analysis/clsProPortion.h"
#include "component/Dispatch.h"
#include "component/Factories.h"
#include "frame/host/DrillDownArgs.h"
#include "frame/host/ReportCallArgs.h"

#include <utility>
#include <vector>

namespace kavelin {

namespace {

// GETSQL, by what its class takes: the ABC analysis alone reads every member of its argument by name.
template <class Report>
Dispatch EntryOf(Report& report)
{
    return MethodOn<ReportCallArgs>("GETSQL", [&report](ReportCallArgs& e) { report.GETSQL(e); });
}

Dispatch EntryOf(ClsABC& report)
{
    return LateMethod("GETSQL", [&report](LateBound& e) { report.GETSQL(e); });
}

// What the three have in common.
template <class Report>
std::vector<Dispatch> AnalysisMembers(Report& report)
{
    return {
        TextProperty("ReportTitle", report.ReportTitle),
        ObjectProperty("ObjLogin", report.ObjLogin),
        TextProperty("mConnectionString", report.mConnectionString),
        TextProperty(
            "TempTablename", [&report] { return report.TempTablename(); },
            [&report](const std::string& table) { report.SetTempTablename(table); }),
        EntryOf(report),
        Method("MoveDataDetail", 0,
               [&report](const auto&) { return Variant(Value(report.MoveDataDetail())); }),
    };
}

// And the two that the older hosts call too.
template <class Report>
std::vector<Dispatch> OlderMembers(Report& report)
{
    std::vector<Dispatch> dispatch = AnalysisMembers(report);
    dispatch.push_back(ObjectProperty("ObjreportManager", report.ObjreportManager()));
    dispatch.push_back(LateMethod("GetSqlForOld", [&report](LateBound& e) { report.GetSqlForOld(e); }));
    return dispatch;
}

}  // namespace

std::shared_ptr<LateBound> CreateProPortion()
{
    auto report = std::make_shared<clsProPortion>();
    std::vector<Dispatch> dispatch = AnalysisMembers(*report);
    dispatch.push_back(ObjectProperty("ObjreportManager", report->ObjreportManager));
    return MakeLateBound(report, std::move(dispatch));
}

std::shared_ptr<LateBound> CreateCinTurnRep()
{
    auto report = std::make_shared<clsCinTurnRep>();
    return MakeLateBound(report, OlderMembers(*report));
}

std::shared_ptr<LateBound> CreateABC()
{
    auto report = std::make_shared<ClsABC>();
    ClsABC& members = *report;
    std::vector<Dispatch> dispatch = OlderMembers(members);
    dispatch.push_back(
        MethodOn<DrillDownArgs>("Execute", [&members](DrillDownArgs& e) { members.Execute(e); }));
    dispatch.push_back(LateMethod("ExecuteForOld", [&members](LateBound& e) { members.ExecuteForOld(e); }));
    return MakeLateBound(report, std::move(dispatch));
}

}  // namespace kavelin
