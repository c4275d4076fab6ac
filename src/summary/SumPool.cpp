#include "summary/SumPool.h"

#include "frame/Statement.h"

namespace kavelin {

namespace {

// The pool without what is filled in later.
constexpr std::string_view kColumns =
    " (cinvcode,cInvCCode,cfree1,cfree2,cfree3,cfree4,cfree5,cfree6,cfree7,cfree8,cfree9,cfree10,"
    "cinvAddCode,cinvname,cinvstd,cComUnitName,iinvweight,"
    "qcquantity,qcprice,qcdif,inquantity,inprice,indif,outquantity,outprice,outdif,"
    "id,bacc,cbustype,cwhcode,crdcode,cvoutype, brdflagtext,crdname ,cComunitCode,cGroupCode,iNumber)";

// ---- where lines come from and what they count for

struct LineSource {
    std::string_view table;
    std::string_view amounts;  // the nine columns of balances; those called price are money
    std::string_view id;       // null for a ledger line
    std::string_view bacc;     // 1 for a line of a document that is not posted
};

constexpr LineSource kOpening = {
    "IA_Subsidiary",
    ",cast(ISNULL(iAInQuantity,0) -ISNULL(iAOutQuantity,0) as float) as QcQuantity"
    ",cast(ISNULL(iAInPrice,0)-ISNULL(iAOutPrice,0) as decimal(20,2)) as QcPrice"
    ",cast(isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0) as decimal(20,2)) as qcDif"
    ",cast(0 as float) as InQuantity"
    ",cast(0 as decimal(20,2)) as InPrice"
    ",cast(0 as decimal(20,2)) as InDif"
    ",cast(0 as float) as OutQuantity"
    ",cast(0 as decimal(20,2)) as OutPrice"
    ",cast(0 as decimal(20,2)) as OutDif",
    "null",
    "0",
};

// The difference changes its sign between the sides: that of an issue is positive when it was credited.
constexpr LineSource kMovement = {
    "IA_Subsidiary",
    ",0 as QcQuantity"
    ",0 as QcPrice"
    ",0 as qcDif"
    ",case when brdflag=1 then isnull(iAInQuantity,0) else 0 end as InQuantity"
    ",case when brdflag=1 then isnull(cast(iAInPrice as decimal(20,2)),0) else 0 end as InPrice"
    ",case when brdflag=1 then isnull(iDebitDifCost,0)-isnull(iCreditDifCost,0) else 0 end as InDif"
    ",case when brdflag=0 then isnull(iAOutQuantity,0) else 0 end as OutQuantity"
    ",case when brdflag=0 then isnull(cast(iAOutPrice as decimal(20,2)),0) else 0 end as OutPrice"
    ",case when brdflag=0 then isnull(iCreditDifCost,0)-isnull(iDebitDifCost,0) else 0 end as OutDif",
    "null",
    "0",
};

std::string DocumentAmounts(bool hasDifference)
{
    const std::string inDif = hasDifference ? "case when brdflag=1 then isnull(idif,0) else 0 end" : "0";
    const std::string outDif = hasDifference ? "case when brdflag=0 then isnull(idif,0) else 0 end" : "0";

    return ",0 as QcQuantity"
           ",0 as QcPrice"
           ",0 as qcDif"
           ",case when brdflag=1 then isnull(iquantity,0) else 0 end as InQuantity"
           ",case when brdflag=1 then isnull(cast(iprice as decimal(20,2)),0) else 0 end as InPrice"
           "," +
           inDif +
           " as InDif"
           ",case when brdflag=0 then isnull(iquantity,0) else 0 end as OutQuantity"
           ",case when brdflag=0 then isnull(cast(iprice as decimal(20,2)),0) else 0 end as OutPrice"
           "," +
           outDif + " as OutDif";
}

// ---- the one select

// All that is taken over or computed of a line, up to its voucher type.
std::string LineColumns(const SumPool& pool, const LineSource& source)
{
    const std::string table(source.table);
    return table + ".cInvCode,Inventory.cInvCCode" + Numbered(1, 10, "," + table + ".cfree{}") +
           ",Inventory.cInvAddCode,Inventory.cInvName,Inventory.cInvStd"
           ",ComputationUnit.CComUnitName,Inventory.iInvWeight" +
           std::string(source.amounts) + "," + std::string(source.id) + " as id," + std::string(source.bacc) +
           " as bacc,cbustype,cwhcode,left(cRdCode," + std::to_string(pool.lngRdLength) +
           ") as cRdCode,cvoutype";
}

std::string FromSource(std::string_view table)
{
    const std::string source(table);
    return " from " + source + " left join Inventory on " + source +
           ".cInvCode=Inventory.cInvCode"
           " left join ComputationUnit ON inventory.cComunitCode = ComputationUnit.ccomunitcode ";
}

std::string InsertLines(const SumPool& pool, const LineSource& source, const std::string& where)
{
    return "insert into " + pool.strTable + std::string(kColumns) + " select " + LineColumns(pool, source) +
           ",case when brdflag=0 then N'" + pool.strIssueText + "' else N'" + pool.strReceiptText +
           "' end as brdflagtext,null as crdname,"
           "ComputationUnit.cComunitCode,ComputationUnit.cGroupCode,ComputationUnit.iNumber" +
           FromSource(source.table) + where;
}

}  // namespace

std::string DropPool(const SumPool& pool)
{
    return "if exists(select * from  tempdb..sysobjects where name='" + pool.strTable + "') drop table " +
           pool.strTable;
}

std::string CreatePool(const SumPool& pool)
{
    return "select top 0 " + LineColumns(pool, kOpening) +
           ",cast(null as nvarchar(100)) as brdflagtext"
           ",cast(null as nvarchar(100)) as crdname"
           ",cast(null as nvarchar(100)) as cComunitCode"
           ",cast(null as float) as rate"
           ",cast(null as nvarchar(100)) as cGroupCode"
           ",null as iNumber"
           ",cast(null as nvarchar(100)) as cwhname"
           ",cast(null as nvarchar(20)) as cFComUnitName"
           " into " +
           pool.strTable + FromSource(kOpening.table);
}

std::string InsertOpening(const SumPool& pool, const std::string& where)
{
    return InsertLines(pool, kOpening, where);
}

std::string InsertMovement(const SumPool& pool, const std::string& where)
{
    return InsertLines(pool, kMovement, where);
}

std::string InsertUnposted(const SumPool& pool, std::string_view source, bool hasDifference,
                           const std::string& where)
{
    const std::string id = std::string(source) + ".id";
    const std::string amounts = DocumentAmounts(hasDifference);
    return InsertLines(pool, {source, amounts, id, "1"}, where);
}

std::string UpdateClassNames(const SumPool& pool)
{
    return "update sfc set sfc.crdname = sty.crdname  from " + pool.strTable +
           " sfc inner join rd_style sty on sfc.crdcode=sty.crdcode";
}

std::string UpdateWarehouseNames(const SumPool& pool)
{
    return "update sfc set sfc.cwhname = ware.cwhname  from " + pool.strTable +
           " sfc inner join warehouse ware on ware.cwhcode=sfc.cwhcode ";
}

std::string UpdateSecondUnit(const SumPool& pool, std::int16_t unitNumber)
{
    return "update sfc set sfc.rate=com.iChangRate ,sfc.cFComUnitName = com.ccomunitname from " +
           pool.strTable +
           " sfc inner join ComputationUnit com on sfc.cGroupCode=com.cGroupCode  and  com.iNumber=" +
           std::to_string(unitNumber);
}

std::string ClearUnusedFreeItems(const SumPool& pool)
{
    const auto kept = [](int first, int last, const std::string& before) {
        return Numbered(
            first, last,
            before + "sfc.cfree{}=case when inventory.bCheckFree{}=1 then sfc.cfree{} else null end");
    };
    return "update sfc set " + kept(1, 1, "") + kept(2, 10, ",") + " from " + pool.strTable +
           " sfc inner join inventory on inventory.cinvcode=sfc.cinvcode ";
}

}  // namespace kavelin
