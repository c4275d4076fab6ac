#include "price/clsIaAnalysis.h"

#include "frame/Guards.h"
#include "frame/TempTables.h"
#include "frame/drilldown/DrillDown.h"
#include "price/AnalysisFilter.h"
#include "price/ModAnalysis.h"

namespace kavelin {

namespace {

constexpr DrillAction kActions[] = {{"Vouch", DrillTarget::Document}};
constexpr ViewerType kViewerTypes[] = {{"01", "直运采购", "25"}};
constexpr DrillTarget kMakesPortal[] = {DrillTarget::Voucher};

// A summary row leaves all of these cells empty.
DrillDownRules Rules()
{
    return {
        .actions = kActions,
        .otherwise = DrillTarget::Voucher,
        .document = {"CvouType", "cvoucode", "cbustype", "iPzid", "autoID"},
        .viewerTypes = kViewerTypes,
        .voucherCell = "cpzid",
        .voucherYears = LedgerVoucherYears(),
        .makesPortal = kMakesPortal,
        .exact = true,
    };
}

}  // namespace

void clsIaAnalysis::GETSQL(ReportCallArgs& e)
{
    RunFrame(FindFrameRow("clsIaAnalysis", FrameEntry::GETSQL), e, objFrame,
             [this] { return MoveDataDetail(); });
}

std::string clsIaAnalysis::MoveDataDetail()
{
    const bool ended = IgnoreErrors([this] {
        const AnalysisConditions conditions = ReadAnalysisFilter(Existing(objFrame.objFilter));
        DropTempdbTable(objFrame.strTable);
        CreateAnalysisTable(objFrame.strTable);
        BuildAnalysisData(objFrame.strTable, conditions);
    });
    return ended ? "" : " ";
}

void clsIaAnalysis::Execute(DrillDownArgs& e)
{
    EarlyRowArguments row(e);
    DrillDown(Rules(), row);
}

}  // namespace kavelin
