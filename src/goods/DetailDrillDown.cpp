#include "goods/DetailDrillDown.h"

namespace kavelin {

namespace {

constexpr DrillAction kActions[] = {
    {"OutDetailInfo", DrillTarget::Document},
    {"OutDetailPZ", DrillTarget::Voucher},
};

// Credit adjustments have no document in the viewer; the portal shows their list at that number.
constexpr PortalCommand kCreditAdjustmentList = {
    "ID:"
    "IA0214"
    "&&&Name:"
    "发出商品贷方调整单"
    "&&&SubSysID:"
    "IA"
    "&&&AuthID:"
    "IA1007"
    "&&&CmdLine:"
    "\t",
    "\t"
    "V_IA_CreditDifVouchList",
};

constexpr std::string_view kCostAdjustments[] = {"22", "2201"};
constexpr std::string_view kCreditAdjustments[] = {"66"};

constexpr DocumentKind kOwnKinds[] = {
    {kCostAdjustments, ViewerCall::ShowCostJustVouch, &DocumentRow::vouCode},
    {kCreditAdjustments, ViewerCall::RunCommand, &DocumentRow::vouCode, kCreditAdjustmentList},
};

constexpr ViewerType kViewerTypes[] = {{"01", "直运采购", "25"}};

constexpr YearQuery kVoucherYears[] = {
    {"Select iYear From IA_SubSidiary Where cPzID = N'", "' and imonth <>0 order by iyear"},
    {"Select iYear From IA_EnSubSidiary Where cPzID = N'", "' and imonth <>0 order by iyear"},
};

constexpr YearQuery kDifferenceYears[] = {
    {"Select top 1 b.iyear From pl_co_SubSidiary a inner join ia_subsidiary b on a.ia_autoid = b.autoid"
     " Where cDifPzID = N'",
     "' "},
    {"Select top 1 b.iyear From pl_co_ENSubSidiary a inner join ia_ensubsidiary b on a.iIASubID = b.autoid"
     " Where cDifPzID = N'",
     "' "},
};

constexpr DrillTarget kMakesPortal[] = {DrillTarget::Document, DrillTarget::DifferenceVoucher};

}  // namespace

DrillDownRules DetailDrillDownRules()
{
    return {
        .actions = kActions,
        .otherwise = DrillTarget::DifferenceVoucher,
        .document = {"cvoutype", "cvoucode", "cbustype", "ipzid", "autoID"},
        .ownKinds = kOwnKinds,
        .viewerTypes = kViewerTypes,
        .voucherCell = "cPzID",
        .voucherYears = kVoucherYears,
        .differenceCell = "cdifpzid",
        .differenceBusTypeCell = "cbustype",
        .differenceYears = kDifferenceYears,
        .makesPortal = kMakesPortal,
    };
}

}  // namespace kavelin
