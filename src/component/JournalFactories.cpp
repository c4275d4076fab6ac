// Late-bound objects of the journals and the area table.
#include "component/Dispatch.h"
#include "component/Factories.h"
#include "frame/Value.h"
#include "frame/host/DrillDownArgs.h"
#include "frame/host/ReportCallArgs.h"
#include "journal/ClsWtInfo.h"
#include "journal/clsAreaStockReport.h"
#include "journal/clsStaCostacc.h"

#include <utility>
#include <vector>

namespace kavelin {

namespace {

// What the two have in common.
template <class Report>
std::vector<Dispatch> JournalMembers(Report& report)
{
    return {
        TextProperty(
            "sarn_tmpTable", [&report] { return report.sarn_tmpTable(); },
            [&report](const std::string& table) { report.SetTempTable(table); }),
        Method("MoveDataDetail", 0,
               [&report](const auto&) { return Variant(Value(report.MoveDataDetail())); }),
        MethodOn<ReportCallArgs>("GETSQL", [&report](ReportCallArgs& e) { report.GETSQL(e); }),
        LateMethod("GetSqlForOld", [&report](LateBound& e) { report.GetSqlForOld(e); }),
        MethodOn<DrillDownArgs>("Execute", [&report](DrillDownArgs& e) { report.Execute(e); }),
    };
}

Variant CreateCostInfoTable(clsStaCostacc& report, const std::vector<Variant>& arguments)
{
    const auto value = [&](std::size_t position) -> const Value& {
        return ValueOf(arguments[position], "CreateCostInfoTable");
    };
    const auto text = [&](std::size_t position) { return ToText(value(position)); };
    return Value(report.CreateCostInfoTable(ToBoolean(value(0)), ToBoolean(value(1)), text(2), text(3),
                                            text(4), text(5), text(6), ToInt32(value(7))));
}

}  // namespace

std::shared_ptr<LateBound> CreateWtInfo()
{
    auto report = std::make_shared<ClsWtInfo>();
    ClsWtInfo& members = *report;
    std::vector<Dispatch> dispatch = JournalMembers(members);
    dispatch.push_back(Method("TempTablename", 0,
                              [&members](const auto&) { return Variant(Value(members.TempTablename())); }));
    dispatch.push_back(LateMethod("ExecuteForOld", [&members](LateBound& e) { members.ExecuteForOld(e); }));
    return MakeLateBound(report, std::move(dispatch));
}

std::shared_ptr<LateBound> CreateStaCostacc()
{
    auto report = std::make_shared<clsStaCostacc>();
    clsStaCostacc& members = *report;
    std::vector<Dispatch> dispatch = JournalMembers(members);
    // The ninth argument has no part in anything, and hosts may leave it out.
    Dispatch create = Method("CreateCostInfoTable", 9, [&members](const std::vector<Variant>& arguments) {
        return CreateCostInfoTable(members, arguments);
    });
    create.optional = 1;
    dispatch.push_back(std::move(create));
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

}  // namespace kavelin
