#include "journal/clsStaCostacc.h"

#include "frame/AccountParameters.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/drilldown/DrillDown.h"
#include "journal/CostStatements.h"
#include "journal/ModWtInfo.h"
#include "journal/WtCodes.h"

namespace kavelin {

namespace {

constexpr DrillAction kActions[] = {
    {"Vouch", DrillTarget::Document},
    {"DifPZ", DrillTarget::DifferenceVoucher},
};

constexpr ViewerType kViewerTypes[] = {{"01", "直运采购", "25"}};

// Both ask the differences of the inventory ledger.
constexpr YearQuery kDifferenceYears[] = {
    {"Select top 1 b.iyear From pl_co_SubSidiary a inner join ia_subsidiary b on a.ia_autoid = b.autoid"
     " Where cDifPzID = N'",
     "' "},
    {"Select top 1 b.iyear From pl_co_SubSidiary a inner join ia_ensubsidiary b on a.ia_autoid = b.autoid"
     " Where cDifPzID = N'",
     "' "},
};

constexpr DrillTarget kMakesPortal[] = {DrillTarget::Voucher, DrillTarget::DifferenceVoucher};

// The result lacks CvouType, iPzid and ID, so that its own rows leave them empty.
DrillDownRules Rules()
{
    return {
        .actions = kActions,
        .otherwise = DrillTarget::Voucher,
        .document = {"CvouType", "cvoucode", "cbustype", "iPzid", "ID"},
        .viewerTypes = kViewerTypes,
        .voucherCell = "cpzid",
        .voucherYears = LedgerVoucherYears(),
        .differenceCell = "cdifpzid",
        .differenceBusTypeCell = "cbustype",
        .differenceYears = kDifferenceYears,
        .makesPortal = kMakesPortal,
    };
}

std::string InVouTypes(const std::string& list)
{
    if (list.empty())
        return "";
    const VouTypes types = SplitVouTypes(list);
    if (types.strMain.empty())
        return "  (" + types.strFlagged + ")";
    const std::string halves = types.strFlagged.empty() ? "" : " OR " + types.strFlagged;
    return "  (cVouType in (" + types.strMain + ")" + halves + ")";
}

bool CopyRows(const std::string& table, const std::string& where, const std::string& vouTypes,
              const std::string& busTypes)
{
    return ShowErrors([&] {
        const std::string ofBusTypes = busTypes.empty() ? "" : " And (  cBusType in (" + busTypes + "))";
        const std::string firstDate = ToText(GetAccInfoValue("ia", "dIAFirstDate"));
        Existing(ModPub().gcnnAccount)
            .Execute(SelectCostRows(table, where + " And   dKeepDate>='" + firstDate + "'",
                                    InVouTypes(vouTypes), ofBusTypes));
    });
}

bool FillVouchers(const std::string& table)
{
    return ShowErrors([&] {
        Existing(ModPub().gcnnAccount).Execute(UpdateCostVoucher(table));
        Existing(ModPub().gcnnAccount).Execute(UpdateCostDifVoucher(table));
    });
}

}  // namespace

void clsStaCostacc::GETSQL(ReportCallArgs& e)
{
    RunFrame(FindFrameRow("clsStaCostacc", FrameEntry::GETSQL), e, objFrame,
             [this] { return MoveDataDetail(); });
}

void clsStaCostacc::GetSqlForOld(LateBound& e)
{
    RunFrame(FindFrameRow("clsStaCostacc", FrameEntry::GetSqlForOld), e, objFrame,
             [this] { return MoveDataDetail(); });
}

std::string clsStaCostacc::MoveDataDetail()
{
    const bool ended = IgnoreErrors([this] {
        TranslateCostFilter(Existing(objFrame.objFilter), objConditions);
        CreateCostInfoTable(false, false, objFrame.strTable, objConditions.strWhere,
                            objConditions.strVouTypes, objConditions.strBusTypes, ModPub().gstrLanguage,
                            objConditions.lngAssUnitNo);
    });
    return ended ? "" : " ";
}

bool clsStaCostacc::CreateCostInfoTable(bool, bool, const std::string& WtTableName,
                                        const std::string& sConditionWhere, const std::string& sVouTypeWhere,
                                        const std::string& sBusTypeWhere, const std::string&, std::int32_t)
{
    DropWtTable(WtTableName);
    return CopyRows(WtTableName, sConditionWhere, sVouTypeWhere, sBusTypeWhere) && FillVouchers(WtTableName);
}

void clsStaCostacc::Execute(DrillDownArgs& e)
{
    EarlyRowArguments row(e);
    DrillDown(Rules(), row);
}

}  // namespace kavelin
