#include "journal/ClsWtInfo.h"

#include "frame/Guards.h"
#include "frame/drilldown/DrillDown.h"
#include "journal/ModWtInfo.h"

namespace kavelin {

namespace {

constexpr DrillAction kActions[] = {{"ActWtInfo", DrillTarget::Document}};

// Purchase invoices of direct business. Older hosts know the second one under its own type.
constexpr ViewerType kViewerTypes[] = {
    {"01", "直运采购", "25"},
    {"02", "直运采购", "2501"},
};
constexpr std::span<const ViewerType> kOldViewerTypes(kViewerTypes, 1);

DrillDownRules Rules(std::span<const ViewerType> viewerTypes)
{
    return {
        .actions = kActions,
        .otherwise = DrillTarget::Voucher,
        .document = {"cVouType", "单据号", "业务类型", "ID", "AutoID"},
        .viewerTypes = viewerTypes,
        .voucherCell = "cPzID",
        .voucherYears = LedgerVoucherYears(),
    };
}

}  // namespace

void ClsWtInfo::GETSQL(ReportCallArgs& e)
{
    RunFrame(FindFrameRow("ClsWtInfo", FrameEntry::GETSQL), e, objFrame, [this] { return MoveDataDetail(); });
}

void ClsWtInfo::GetSqlForOld(LateBound& e)
{
    RunFrame(FindFrameRow("ClsWtInfo", FrameEntry::GetSqlForOld), e, objFrame,
             [this] { return MoveDataDetail(); });
}

std::string ClsWtInfo::MoveDataDetail()
{
    const bool ended = IgnoreErrors([this] {
        TranslateWtFilter(Existing(objFrame.objFilter), objConditions);
        BuildWtTable(objFrame.strTable, objConditions);
    });
    return ended ? "" : " ";
}

void ClsWtInfo::Execute(DrillDownArgs& e)
{
    EarlyRowArguments row(e);
    DrillDown(Rules(kViewerTypes), row);
}

void ClsWtInfo::ExecuteForOld(LateBound& e)
{
    LateRowArguments row(e);
    DrillDown(Rules(kOldViewerTypes), row);
}

}  // namespace kavelin
