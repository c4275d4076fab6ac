#include "goods/TemplateJoins.h"

#include "frame/Statement.h"

namespace kavelin {

namespace {

constexpr std::string_view kNone = "1=2";
constexpr std::string_view kByInvoice = "Ia_Ensubsidiary.OutID=salebillvouchs.autoid";
constexpr std::string_view kByInvoiceLine = "salebillvouchs.sBVID=salebillvouch.sBVID";
constexpr std::string_view kByInvoiceDispatch = "salebillvouchs.idlsid=DispatchLists.idlsid";
constexpr std::string_view kBySource = "Ia_Ensubsidiary.iSrcID = DispatchLists.idlsid";
constexpr std::string_view kByDispatch = "Ia_Ensubsidiary.idlsid = DispatchLists.idlsid";
constexpr std::string_view kByIssue = "rdrecordS32.AutoID=Ia_Ensubsidiary.iSrcID";
constexpr std::string_view kByIssueOnly =
    "rdrecordS32.AutoID=Ia_Ensubsidiary.iSrcID and Ia_Ensubsidiary.cSrcVouType='3201'";

// clang-format off
//                               sale line   sale            dispatch line       issue line
constexpr JoinSet kInvoices    = {kByInvoice, kByInvoiceLine, kByInvoiceDispatch, kByIssueOnly};
constexpr JoinSet kDispatches  = {kNone,      kNone,          kBySource,          kByIssue    };
constexpr JoinSet kIssues      = {kNone,      kNone,          kByDispatch,        kByIssueOnly};
constexpr JoinSet kAdjustments = {kNone,      kNone,          kBySource,          kByIssueOnly};

constexpr VoucherGroup kVoucherGroups[] = {
    {kInvoices,    " And  Ia_Ensubsidiary.cvoutype In (N'26', N'27', N'28', N'29')",         TemplateForm::Every },
    {kDispatches,  " And Ia_Ensubsidiary.cvoutype In (N'05', N'5', N'06', N'6')",            TemplateForm::Merged},
    {kIssues,      " And Ia_Ensubsidiary.cvoutype In (N'3201')",                             TemplateForm::Merged},
    {kIssues,      " And Ia_Ensubsidiary.cvoutype In (N'05', N'5', N'06', N'6',N'3201')",    TemplateForm::Other },
    {kAdjustments, " And Ia_Ensubsidiary.cvoutype In (N'65', N'66')",                        TemplateForm::Every },
};
// clang-format on

std::string Left(std::string_view table, std::string_view condition)
{
    return " left join " + std::string(table) + " on " + std::string(condition);
}

}  // namespace

std::span<const VoucherGroup> VoucherGroups()
{
    return kVoucherGroups;
}

bool Takes(const VoucherGroup& group, std::string_view strIsMerge)
{
    const TemplateForm form = strIsMerge == "1" ? TemplateForm::Merged : TemplateForm::Other;
    return group.form == TemplateForm::Every || group.form == form;
}

std::string JoinTemplate(const JoinSet& joins, std::int32_t lngUnitNumber)
{
    return EndLines({
        " From Ia_Ensubsidiary",
        " left join Inventory on Ia_Ensubsidiary.cInvCode=Inventory.cInvCode",
        " left join InventoryClass on Inventory.cInvCCode=InventoryClass.cInvCCode",
        " left join Warehouse on Ia_Ensubsidiary.cWhCode=Warehouse.cWhCode",
        " left join Customer on Ia_Ensubsidiary.cCusCode=Customer.cCusCode",
        " left join CustomerClass on Customer.cCCCode=CustomerClass.cCCCode",
        " left join Department on Department.cDepCode=Ia_Ensubsidiary.cAccDep",
        " left join Department StDep on StDep.cDepCode=Warehouse.cDepCode",
        " left join Person on Ia_Ensubsidiary.cPersonCode=Person.cPersonCode",
        " left join ComputationGroup on Inventory.cGroupCode=ComputationGroup.cGroupCode",
        " left join ComputationUnit on (ComputationGroup.iGroupType = N'1'"
        " and Inventory.cGroupCode = ComputationUnit.cGroupCode and ComputationUnit.iNumber = " +
            std::to_string(lngUnitNumber) + ") ",
        " left join ComputationUnit UnitBase on UnitBase.cComunitCode = Inventory.cComUnitCode",
        Left("salebillvouchs", joins.saleLine),
        Left("salebillvouch", joins.sale),
        Left("DispatchLists", joins.dispatchLine),
        " left join DispatchList on DispatchLists.DLID=DispatchList.DLID",
        Left("rdrecordS32", joins.issueLine),
        " left join rdrecord32 on rdrecordS32.ID=rdrecord32.ID",
        " left join v_aa_enum v_aa_enum_cbustype on"
        " v_aa_enum_cbustype.enumcode=Case When isnull(Ia_Ensubsidiary.cbustype,'')='委托' Then '委托代销'"
        " Else Ia_Ensubsidiary.cbustype End and v_aa_enum_cbustype.enumtype=N'ia.bustype'",
    });
}

}  // namespace kavelin
