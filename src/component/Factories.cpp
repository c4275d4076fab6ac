#include "component/Factories.h"

#include "analysis/clsProPortion.h"
#include "component/Dispatch.h"
#include "frame/ClsBusiness.h"
#include "frame/host/ReportCallArgs.h"
#include "journal/clsAreaStockReport.h"

#include <utility>
#include <vector>

namespace kavelin {

std::shared_ptr<LateBound> CreateProPortion()
{
    auto report = std::make_shared<clsProPortion>();
    clsProPortion& members = *report;
    std::vector<Dispatch> dispatch = {
        ObjectProperty("ObjreportManager", members.ObjreportManager),
        TextProperty("ReportTitle", members.ReportTitle),
        ObjectProperty("ObjLogin", members.ObjLogin),
        TextProperty("mConnectionString", members.mConnectionString),
        TextProperty(
            "TempTablename", [&members] { return members.TempTablename(); },
            [&members](const std::string& table) { members.SetTempTablename(table); }),
        MethodOn<ReportCallArgs>("GETSQL", [&members](ReportCallArgs& e) { members.GETSQL(e); }),
        Method("MoveDataDetail", 0,
               [&members](const auto&) { return Variant(Value(members.MoveDataDetail())); }),
    };
    return MakeLateBound(report, std::move(dispatch));
}

std::shared_ptr<LateBound> CreateAreaStockReport()
{
    auto report = std::make_shared<clsAreaStockReport>();
    clsAreaStockReport& members = *report;
    std::vector<Dispatch> dispatch = {
        MethodOn<ReportCallArgs>("GETSQL", [&members](ReportCallArgs& e) { members.GETSQL(e); }),
    };
    return MakeLateBound(report, std::move(dispatch));
}

std::shared_ptr<LateBound> CreateBusiness()
{
    std::vector<Dispatch> dispatch = {
        Method("Init", 1,
               [](const std::vector<Variant>& arguments) {
                   ClsBusiness().Init(ObjectOf<LateBound>(arguments[0], "oBusiness"));
                   return Variant(Value());
               }),
    };
    return MakeLateBound(nullptr, std::move(dispatch));
}

}  // namespace kavelin
