#include "summary/EstimateResult.h"

#include "frame/Statement.h"

#include <string_view>

namespace kavelin {

namespace {

// Names that a master has too are those of the ledger line.
constexpr std::string_view kIdentity =
    " Ia_Subsidiary.ID,Ia_Subsidiary.cVouCode,Ia_Subsidiary.cWhCode,cWhName,Inventory.cInvCCode,cInvCName,"
    "ia_subsidiary.cInvCode,Inventory.cInvName,Inventory.cInvAddCode,Inventory.cInvStd,"
    "Inventory.cComUnitCode,";
constexpr std::string_view kVoucher =
    " Ia_Subsidiary.cVouType,aa_enum.enumname as cVouTypeName,"
    "cast(Ia_Subsidiary.cBusType as nvarchar(200)) as cBusType,Ia_Subsidiary.cRdCode,cRdName,"
    "Vendor.cVCCode,cVCName,Ia_Subsidiary.cVenCode,cVenName,Ia_Subsidiary.caccdep as cdepcode,cDepName,";
constexpr std::string_view kReferences =
    " Ia_Subsidiary.dKeepDate,Ia_Subsidiary.dVouDate,Ia_Subsidiary.dtAudit,Ia_Subsidiary.cItem_class,"
    "Ia_Subsidiary.cItemCName,Ia_Subsidiary.cItemCode,Ia_Subsidiary.cName,Ia_Subsidiary.cPurOrderCode,"
    "Ia_Subsidiary.centrustordercode,Ia_Subsidiary.cBatchIA,";
constexpr std::string_view kBalance =
    " Ia_Subsidiary.cMemo,QcQuantity,QcMoney,InQuantity,InMoney,Outquantity,OutMoney,QmQuantity,QmMoney";

constexpr std::string_view kKeptFree =
    " Case When Inventory.bCheckFree{} =1 Then Ia_Subsidiary.cFree{} Else N'' End As N'cFree{}',";
constexpr std::string_view kFree = " Ia_Subsidiary.cFree{},";

}  // namespace

std::string DropEstimateResult(const std::string& table)
{
    return "If Exists (select ID From sysobjects Where id = object_id('" + table + "')) Drop Table " + table;
}

std::string SelectEstimateResult(const std::string& table, const std::string& sumTable,
                                 const EstimateConditions& conditions, const std::string& language)
{
    const std::string withMoney = conditions.blnDisZero ? "" : " where Ia_Sub.QmMoney <> 0 ";
    return JoinLines({
        "select",
        kIdentity,
        kVoucher,
        kReferences,
        Numbered(1, 16, " Ia_Subsidiary.cDefine{},") + Numbered(22, 37, " Ia_Subsidiary.cDefine{},"),
        Numbered(1, 16, " Inventory.cInvDefine{},"),
        Numbered(1, 10, conditions.blnFreeOnly ? kKeptFree : kFree),
        kBalance,
        " into " + table,
        "From [" + sumTable + "] Ia_Sub inner join Ia_Subsidiary on Ia_Sub.AutoID=Ia_Subsidiary.AutoID",
        " left join VouchType on IA_Subsidiary.cVouType=VouchType.cVouchType",
        " left join aa_enum on enumtype=N'ia.VchType' and VouchType.cVouchName=aa_enum.enumcode"
        " and aa_enum.LocaleID=N'" +
            language + "'",
        " left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode",
        " left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode",
        " left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode",
        " left join Department on Department.cDepCode=Ia_Subsidiary.caccdep",
        " left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode",
        " left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode",
        " left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode" + withMoney,
    });
}

std::string DeleteUnmoved(const std::string& table)
{
    return "delete from " + table +
           " where isnull(QcQuantity,0)=0 and isnull(QcMoney,0)=0 and isnull(InQuantity,0)=0"
           " and isnull(InMoney,0)=0 and isnull(Outquantity,0)=0 and isnull(OutMoney,0)=0";
}

std::string UpdateBusTypeNames(const std::string& table, const std::string& language)
{
    return JoinLines({
        "Update " + table + " set cBustype=AA.EnumName from " + table + " Wt inner join aa_enum AA on ",
        " Wt.cBustype=AA.EnumCode where AA.EnumType='IA.BusType' and AA.LocaleID=N'" + language + "'",
    });
}

}  // namespace kavelin
