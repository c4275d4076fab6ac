#include "journal/WtColumns.h"

#include "frame/Statement.h"
#include "frame/Text.h"

namespace kavelin {

namespace {

// ---- the same in both lists

constexpr std::string_view kProduction =
    ",NoSub.cHandler,NoSub.strContractCode,NoSub.cProOrderCode,NoSub.iProOrderIDs,NoSub.cWorkProCodeDis"
    ",NoSub.cWorkCenterName";
constexpr std::string_view kOrders =
    ",NoSub.cSaleOrderCode,NoSub.iSaleOrderIDs,NoSub.exoCode,NoSub.iExRowNo"
    ",NoSub.cEntrustOrderCode,NoSub.cPurOrderCode,NoSub.cImOrderCode";
constexpr std::string_view kProject = ",NoSub.cItem_class,NoSub.cItemCName,NoSub.cItemCode,NoSub.cName";

constexpr std::string_view kUnits = ",unit1.cComUnitName,isnull(unit2.cComUnitName,''),unit2.iChangRate";

constexpr std::string_view kDefine = ",NoSub.cDefine{} as cdefine{}";
constexpr std::string_view kFree = ",NoSub.cFree{}";

constexpr std::string_view kOutside =
    ",NoSub.cPzID,NoSub.cDemandCode,NoSub.cDemandMemo,NoSub.imaterialfee,NoSub.iProcessFee";

// ---- planned prices

constexpr std::string_view kByInventory = "按存货核算";
constexpr std::string_view kByDepartment = "按部门核算";

// Whether goods are valued at a planned or retail price: by the item, or by the warehouse, which the ledger's
// list knows as WH and the documents' as Warehouse.
std::string IsPlanned(std::string_view valueStyle, const std::string& warehouse)
{
    if (EqualsNoCase(valueStyle, kByInventory))
        return "Inventory.cvaluetype=N'计划价法' or Inventory.cvaluetype=N'售价法'";
    const std::string column = EqualsNoCase(valueStyle, kByDepartment) ? ".cDepCode" : ".cWhCode";
    return "NoSub" + column + " =" + warehouse + column + " and (" + warehouse +
           ".cwhvaluestyle=N'计划价法' or " + warehouse + ".cwhvaluestyle=N'售价法')";
}

std::string WherePlanned(const std::string& planned, std::string_view value)
{
    return ",case when " + planned + " then " + std::string(value) + " else cast(null as float) end";
}

}  // namespace

std::string SelectPosted(std::string_view strValueStyle)
{
    const std::string planned = IsPlanned(strValueStyle, "WH");

    return EndLines({
        " SELECT dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest",
        ",NoSub.cBusType,NoSub.cBusCode,WH.cWhCode,WH.cWhName,Dep.cDepName,RD.cRdName",
        ",Customer.cCCCode,Customer.cCusCode,Customer.cCusName,Vendor.cVCCode,Vendor.cVenCode,Vendor.cVenName",
        kProduction,
        kOrders,
        kProject,
        ",Inventory.cInvCCode,Inventory.cInvCode,Inventory.cInvName,Inventory.cInvAddCode,Inventory.cInvStd",
        ",NoSub.cBatchIA,NoSub.cProCode",
        kUnits,
        ",iAInQuantity"
        ",case when NoSub.cVouType in (N'20',N'21') then cast(null as nvarchar(4)) else iInCost end"
        ",iAInPrice",
        ",iAOutQuantity"
        ",case when NoSub.cVouType in (N'20',N'21') then cast(null as nvarchar(4)) else iOutCost end"
        ",iAOutPrice",
        WherePlanned(planned, "InvCheckFreeIA870.fInvRCost"),
        WherePlanned(planned,
                     "(case when bflag = 0 then InvCheckFreeIA870.fInvRCost * iAOutQuantity"
                     " else InvCheckFreeIA870.fInvRCost * iAInQuantity end)"),
        ",iDebitDifCost,iCreditDifCost",
        Numbered(1, 16, kDefine),
        Numbered(22, 37, kDefine),
        Numbered(1, 16, ",Inventory.cInvDefine{}"),
        Numbered(1, 10, kFree),
        ",NoSub.cMemo,NoSub.AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType",
        kOutside,
        ",AA_Enum.EnumName as costsource",
    });
}

std::string SelectUnposted(std::string_view strValueStyle)
{
    const std::string planned = IsPlanned(strValueStyle, "Warehouse");

    return EndLines({
        " SELECT distinct NoSub.dVouDate,NoSub.cVouCode,NoSub.dKeepDate,NoSub.cAccounter,null,NoSub.cPZdigest",
        ",NoSub.cBusType,NoSub.cBusCode,NoSub.cWhCode,NoSub.cWhName,NoSub.cDepName,NoSub.cRdName",
        ",NoSub.cCCCode,NoSub.cCusCode,NoSub.cCusName,NoSub.cVCCode,NoSub.cVenCode,NoSub.cVenName",
        kProduction,
        kOrders,
        kProject,
        ",NoSub.cInvCCode,NoSub.cInvCode,NoSub.cInvName,NoSub.cInvAddCode,NoSub.cInvStd",
        ",NoSub.cBatchIA,NoSub.cProCode",
        kUnits,
        ",(case when NoSub.bRdFlag=1 then NoSub.iQuantity else cast(null as float) end)"
        ",(case when NoSub.bRdFlag=1 then NoSub.iUnitCost else cast(null as float) end)"
        ",(case when NoSub.bRdFlag=1 then NoSub.iPrice  else cast(null as float) end)",
        ",(case when NoSub.bRdFlag=0 then NoSub.iQuantity else cast(null as float) end)"
        ",(case when NoSub.bRdFlag=0 then NoSub.iUnitCost else cast(null as float) end)"
        ",(case when NoSub.bRdFlag=0 then NoSub.iPrice  else cast(null as float) end)",
        WherePlanned(planned, "InvCheckFreeIA870.fInvRCost"),
        WherePlanned(planned, "InvCheckFreeIA870.fInvRCost* NoSub.iquantity"),
        ",cast(null as float),cast(null as float)",
        Numbered(1, 16, kDefine),
        Numbered(22, 37, kDefine),
        Numbered(1, 16, ",NoSub.cInvDefine{}"),
        Numbered(1, 10, kFree),
        ",NoSub.cMemo,NoSub.ID as AutoID,NoSub.iPzID,NoSub.bRdFlag,NoSub.cVouType",
        kOutside,
        ",null as costsource",
    });
}

}  // namespace kavelin
