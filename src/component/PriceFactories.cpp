// Late-bound objects of the price analysis.
#include "component/Dispatch.h"
#include "component/Factories.h"
#include "frame/Value.h"
#include "frame/host/DrillDownArgs.h"
#include "frame/host/ReportCallArgs.h"
#include "price/clsIaAnalysis.h"

#include <utility>
#include <vector>

namespace kavelin {

std::shared_ptr<LateBound> CreateIaAnalysis()
{
    auto report = std::make_shared<clsIaAnalysis>();
    clsIaAnalysis& members = *report;
    std::vector<Dispatch> dispatch = {
        TextProperty(
            "sarn_tmpTable", [&members] { return members.sarn_tmpTable(); },
            [&members](const std::string& table) { members.SetTempTable(table); }),
        Method("MoveDataDetail", 0,
               [&members](const auto&) { return Variant(Value(members.MoveDataDetail())); }),
        MethodOn<ReportCallArgs>("GETSQL", [&members](ReportCallArgs& e) { members.GETSQL(e); }),
        MethodOn<DrillDownArgs>("Execute", [&members](DrillDownArgs& e) { members.Execute(e); }),
    };
    return MakeLateBound(report, std::move(dispatch));
}

}  // namespace kavelin
