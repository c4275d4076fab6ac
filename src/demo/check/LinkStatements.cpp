#include "demo/check/LinkStatements.h"

#include "frame/Statement.h"

namespace kavelin::demo {

namespace {

struct Reference {
    std::string_view ledger, column, table, key;
};

constexpr Reference kMasterData[] = {
    {"IA_Subsidiary", "cInvCode", "Inventory", "cInvCode"},
    {"IA_Subsidiary", "cWhCode", "Warehouse", "cWhCode"},
    {"IA_Subsidiary", "cDepCode", "Department", "cDepCode"},
    {"IA_Subsidiary", "cAccDep", "Department", "cDepCode"},
    {"IA_Subsidiary", "cVenCode", "Vendor", "cVenCode"},
    {"IA_Subsidiary", "cCusCode", "Customer", "cCusCode"},
    {"IA_Subsidiary", "cRdCode", "Rd_Style", "cRdCode"},
    {"IA_Subsidiary", "cVouType", "VouchType", "cVouchType"},
    {"IA_EnSubsidiary", "cInvCode", "Inventory", "cInvCode"},
    {"IA_EnSubsidiary", "cWhCode", "Warehouse", "cWhCode"},
    {"IA_EnSubsidiary", "cDepCode", "Department", "cDepCode"},
    {"IA_EnSubsidiary", "cAccDep", "Department", "cDepCode"},
    {"IA_EnSubsidiary", "cCusCode", "Customer", "cCusCode"},
    {"IA_EnSubsidiary", "cPersonCode", "Person", "cPersonCode"},
    {"IA_EnSubsidiary", "cRdCode", "Rd_Style", "cRdCode"},
    {"Inventory", "cInvCCode", "InventoryClass", "cInvCCode"},
    {"Inventory", "cComUnitCode", "ComputationUnit", "cComUnitCode"},
    {"Vendor", "cVCCode", "VendorClass", "cVCCode"},
    {"Customer", "cCCCode", "CustomerClass", "cCCCode"},
};

constexpr Reference kVouchers[] = {
    {"IA_Subsidiary", "cPZID", "gl_AccVouch", "cOutNo_ID"},
    {"IA_EnSubsidiary", "cPZID", "gl_AccVouch", "cOutNo_ID"},
    {"pl_co_SubSidiary", "cDifPZID", "gl_AccVouch", "cOutNo_ID"},
    {"pl_co_EnSubsidiary", "cDifPZID", "gl_AccVouch", "cOutNo_ID"},
};

// The voucher type 3201 is a sales issue that VouchType has as 32.
template <std::size_t Count>
std::string MissingReferences(const Reference (&references)[Count])
{
    std::string text;
    for (const Reference& reference : references) {
        const std::string column = "a." + std::string(reference.column);
        const std::string issue = reference.table == "VouchType" ? " and " + column + " <> N'3201'" : "";
        const std::string begin = text.empty() ? "  from (" : "        ";
        text += text.empty() ? "" : EndLines({"        union all"});
        text += EndLines({
            begin + "select N'" + std::string(reference.ledger) + "' as ofTable, N'" +
                std::string(reference.column) + "' as ofColumn, " + column + " as code",
            "          from " + std::string(reference.ledger) + " a left join " +
                std::string(reference.table) + " m on m." + std::string(reference.key) + " = " + column,
            "         where isnull(" + column + ", N'') <> N'' and m." + std::string(reference.key) +
                " is null" + issue,
        });
    }
    return JoinLines({
        "select top 11 ofTable, ofColumn, code, count(*) as numberOfRows",
        text + "       ) x",
        " group by ofTable, ofColumn, code",
        " order by ofTable, ofColumn, code",
    });
}

constexpr std::string_view kDifferences =
    "isnull(p.fInvPriceDif, 0) + isnull(p.fInvQuanDif, 0) + isnull(p.fLbrPriceDif, 0)"
    " + isnull(p.fLbrQuanDif, 0) + isnull(p.fLbrSemiDif, 0) + isnull(p.fManuFixPriceDif, 0)"
    " + isnull(p.fManuFixQuanDif, 0) + isnull(p.fSemiManuFixDif, 0) + isnull(p.fManuVarPriceDif, 0)"
    " + isnull(p.fManuVarQuanDif, 0) + isnull(p.fSemiManuVarDif, 0) + isnull(p.fOmCostDif, 0)"
    " + isnull(p.fSemiOmDif, 0)";
constexpr std::string_view kStandards =
    "isnull(s.fInvStdPrice, 0) + isnull(s.fLaborStdPrice, 0) + isnull(s.fManuFixPrice, 0)"
    " + isnull(s.fManuVarPrice, 0) + isnull(s.fOmPrice, 0)";

struct CostTables {
    std::string_view ledger, standards, standardKey, differences, differenceKey;
};

constexpr CostTables kStock = {"IA_Subsidiary", "Demo_SubsidiaryStd", "AutoID", "pl_co_SubSidiary",
                               "ia_autoid"};
constexpr CostTables kTransit = {"IA_EnSubsidiary", "IA_EnSubsidiary_STSub", "iIAEnSubID",
                                 "pl_co_EnSubsidiary", "iIASubID"};

std::string StandardAndActual(const CostTables& tables)
{
    return JoinLines({
        "select N'" + std::string(tables.ledger) + "' as ledger, a.AutoID,",
        "               " + std::string(kStandards) + " as standard,",
        "               " + std::string(kDifferences) + " as difference,",
        "               isnull(case when a.bRdFlag = 1 then a.iAInPrice else a.iAOutPrice end, 0) as actual",
        "          from " + std::string(tables.ledger) + " a",
        "               inner join " + std::string(tables.standards) + " s on s." +
            std::string(tables.standardKey) + " = a.AutoID",
        "               left join " + std::string(tables.differences) + " p on p." +
            std::string(tables.differenceKey) + " = a.AutoID",
    });
}

struct SingleRow {
    std::string_view table, key;  // the key's columns, as one text
    std::string_view of;          // what is grouped by
    std::string_view from;
};

constexpr SingleRow kSingleRows[] = {
    {"VouchType", "cVouchType", "cVouchType", "VouchType"},
    {"AA_Enum", "EnumType + N' ' + EnumCode + N' ' + LocaleID", "EnumType, EnumCode, LocaleID", "AA_Enum"},
    {"ComputationUnit", "cGroupCode + N' ' + cast(iNumber as nvarchar(10))", "cGroupCode, iNumber",
     "ComputationUnit"},
    {"IA_EnSubsidiary", "cast(inid as nvarchar(10)) + N' ' + cVouType + N' ' + cast(iYear as nvarchar(4))",
     "inid, cVouType, iYear", "IA_EnSubsidiary"},
    // Items that keep no free item have one planned price.
    {"InvCheckFreeIA870", "f.cInvCode", "f.cInvCode",
     "InvCheckFreeIA870 f inner join Inventory i on i.cInvCode = f.cInvCode"
     " where i.bCheckFree1 = 0 and i.bCheckFree2 = 0 and i.bCheckFree3 = 0 and i.bCheckFree4 = 0"
     " and i.bCheckFree5 = 0 and i.bCheckFree6 = 0 and i.bCheckFree7 = 0 and i.bCheckFree8 = 0"
     " and i.bCheckFree9 = 0 and i.bCheckFree10 = 0"},
    {"NE_FitemssEx_View", "cItem_class", "cItem_class", "NE_FitemssEx_View"},
    {"Vendor", "cVenName", "cVenName", "Vendor"},
    {"Pursettlevouchs", "cast(ID as nvarchar(10))", "ID", "Pursettlevouchs"},
};

}  // namespace

std::string MissingMasterData()
{
    return MissingReferences(kMasterData);
}

std::string MissingVouchers()
{
    return MissingReferences(kVouchers);
}

std::string MissingSettlements()
{
    return JoinLines({
        "select top 11 a.AutoID, a.cVouType, a.cVouCode, a.psvsid",
        "  from IA_Subsidiary a left join Pursettlevouchs p on p.ID = a.psvsid",
        " where a.psvsid is not null and p.ID is null",
        " order by a.AutoID",
    });
}

std::string CountSettlements()
{
    return "select count(*) from IA_Subsidiary where psvsid is not null";
}

std::string StandardCostsThatDiffer()
{
    return JoinLines({
        "select top 11 ledger, AutoID, standard, difference, actual",
        "  from (" + StandardAndActual(kStock),
        "        union all",
        "        " + StandardAndActual(kTransit) + ") x",
        " where standard + difference <> actual",
        " order by ledger, AutoID",
    });
}

std::string CountStandardCosts()
{
    return "select count(*) from (select AutoID from Demo_SubsidiaryStd"
           " union all select iIAEnSubID from IA_EnSubsidiary_STSub) x";
}

std::string DoubleRows()
{
    std::string text;
    for (const SingleRow& row : kSingleRows) {
        const std::string begin = text.empty() ? "  from (" : "        ";
        text += text.empty() ? "" : EndLines({"        union all"});
        text += EndLines({
            begin + "select N'" + std::string(row.table) + "' as ofTable, " + std::string(row.key) +
                " as ofKey,",
            "               count(*) as numberOfRows",
            "          from " + std::string(row.from) + " group by " + std::string(row.of) +
                " having count(*) > 1",
        });
    }
    return JoinLines({
        "select top 11 ofTable, ofKey, numberOfRows",
        text + "       ) x",
        " order by ofTable, ofKey",
    });
}

}  // namespace kavelin::demo
