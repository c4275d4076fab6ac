// Late-bound objects of the reports on goods in transit.
#include "component/Component.h"
#include "component/Dispatch.h"
#include "component/Factories.h"
#include "frame/host/DrillDownArgs.h"
#include "frame/host/ReportCallArgs.h"
#include "frame/host/ReportFilterObject.h"
#include "goods/ClsFCInventory.h"
#include "goods/ClsFcSumCon.h"
#include "goods/ClsOutDetailInfo.h"
#include "goods/clsFCSumInfo.h"

#include <utility>
#include <vector>

namespace kavelin {

namespace {

// What the two reports by cost item have in common.
template <class Report>
std::vector<Dispatch> CostItemMembers(Report& report)
{
    return {
        TextProperty(
            "sarn_tmpTable", [&report] { return report.sarn_tmpTable(); },
            [&report](const std::string& table) { report.SetTempTable(table); }),
        Method("MoveDataDetail", 0,
               [&report](const auto&) { return Variant(Value(report.MoveDataDetail())); }),
        MethodOn<ReportCallArgs>("GETSQL", [&report](ReportCallArgs& e) { report.GETSQL(e); }),
    };
}

}  // namespace

std::shared_ptr<LateBound> CreateFCSumInfo()
{
    auto report = std::make_shared<clsFCSumInfo>();
    clsFCSumInfo& members = *report;
    std::vector<Dispatch> dispatch = {
        ObjectProperty("ObjreportManager", members.ObjreportManager),
        TextProperty("ReportTitle", members.ReportTitle),
        ObjectProperty("ObjLogin", members.ObjLogin),
        TextProperty("mConnectionString", members.mConnectionString),
        Method("TempTablename", 0,
               [&members](const auto&) { return Variant(Value(members.TempTablename())); }),
        MethodOn<ReportCallArgs>("GETSQL", [&members](ReportCallArgs& e) { members.GETSQL(e); }),
        LateMethod("GetSqlForOld", [&members](LateBound& e) { members.GetSqlForOld(e); }),
        Method("MoveDataDetail", 0,
               [&members](const auto&) { return Variant(Value(members.MoveDataDetail())); }),
        Method("GetViewFilter", 1,
               [&members](const std::vector<Variant>& arguments) {
                   const std::string filter = ToText(ValueOf(arguments[0], "strFilter"));
                   return Variant(Value(members.GetViewFilter(filter)));
               }),
    };
    return MakeLateBound(report, std::move(dispatch));
}

std::shared_ptr<LateBound> CreateFCInventory()
{
    auto report = std::make_shared<ClsFCInventory>();
    return MakeLateBound(report, CostItemMembers(*report));
}

std::shared_ptr<LateBound> CreateOutDetailInfo()
{
    auto report = std::make_shared<ClsOutDetailInfo>();
    ClsOutDetailInfo& members = *report;
    std::vector<Dispatch> dispatch = CostItemMembers(members);
    dispatch.push_back(
        MethodOn<DrillDownArgs>("Execute", [&members](DrillDownArgs& e) { members.Execute(e); }));
    return MakeLateBound(report, std::move(dispatch));
}

std::shared_ptr<LateBound> CreateGoodsTemplate()
{
    auto object = std::make_shared<ClsFcSumCon>();
    ClsFcSumCon& members = *object;
    return MakeLateBound(
        object, {Method("CreateNewTemplate", 2, [&members](const std::vector<Variant>& arguments) {
            const auto filter = automation::As<ReportFilterObject>(arguments[0], "objFilter");
            members.CreateNewTemplate(*filter, ToText(ValueOf(arguments[1], "sTableName")));
            return Variant(Value());
        })});
}

}  // namespace kavelin
