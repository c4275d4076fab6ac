#include "filter/ReferenceLookups.h"

#include "frame/AccountParameters.h"
#include "frame/DataPermission.h"
#include "frame/Errors.h"
#include "frame/ModPub.h"
#include "frame/PermissionColumns.h"
#include "frame/Statement.h"

namespace kavelin {

// clang-format off
const ReferenceLookup kWarehouses = {
    .kind        = "仓库",
    .selectCode  = "SELECT WareHouse.cWhCode as [",
    .codeCaption = {"IA.FltField", "仓库编码"},
    .selectName  = "] ,WareHouse.cWhName as [",
    .nameCaption = {"IA.Field", "仓库名称"},
    .from        = "]  FROM WareHouse "
                   "where isnull(warehouse.bincost,0)<>0 ",
    .orderBy     = " ORDER BY WareHouse.cWhCode",
};

const ReferenceLookup kDepartments = {
    .kind        = "部门",
    .selectCode  = "SELECT Distinct Department.cDepCode as [",
    .codeCaption = {"IA.Field", "部门编码"},
    .selectName  = "],Department.cDepName as  [",
    .nameCaption = {"IA.Field", "部门名称"},
    .from        = JoinLines({
                   "]  FROM WareHouse ",
                   "inner join Department ON Department.cDepCode = WareHouse.cDepCode",
                   "where isnull(warehouse.bincost,0)<>0 ",
                   }),
    .orderBy     = " ORDER BY Department.cDepCode",
};

const ReferenceLookup kJournalWarehouses = {
    .kind        = "仓库",
    .selectCode  = "SELECT distinct WareHouse.cWhCode as [",
    .codeCaption = {"IA.FltField", "仓库编码"},
    .selectName  = "]"
                   ",WareHouse.cWhName as [",
    .nameCaption = {"IA.FltField", "仓库名称"},
    .from        = "] FROM WareHouse"
                   " where isnull(warehouse.bincost,0)<>0  ",
    .orderBy     = " ORDER BY WareHouse.cWhCode",
};

const ReferenceLookup kJournalDepartments = {
    .kind        = "部门",
    .selectCode  = "SELECT Distinct Department.cDepCode as [",
    .codeCaption = {"IA.FltField", "部门编码"},
    .selectName  = "]"
                   ",Department.cDepName as [",
    .nameCaption = {"IA.FltField", "部门名称"},
    .from        = "] FROM WareHouse "
                   " inner join Department ON Department.cDepCode = WareHouse.cDepCode"
                   " where isnull(warehouse.bincost,0)<>0 ",
    .orderBy     = " ORDER BY Department.cDepCode",
};

const ReferenceLookup kSummaryWarehouses = {
    .kind        = "仓库",
    .selectCode  = "SELECT distinct WareHouse.cWhCode as [",
    .codeCaption = {"IA.FltField", "仓库编码"},
    .selectName  = "] ,WareHouse.cWhName as [",
    .nameCaption = {"IA.FltField", "仓库名称"},
    .from        = "]  FROM WareHouse where isnull(bincost,0)<>0  ",
    .orderBy     = " ORDER BY WareHouse.cWhCode",
};

const VoucherTypeLists kVoucherTypes = {
    .industrial = " and cvouchtype in ('05','06','08','09','10','11','20','21','22','25','24','26','27','28','29','32','35','EX26','EX27')",
    .other      = " and cvouchtype in ('05','06','08','09','20','21','22','24','25','26','27','28','29','32','35','EX26','EX27')",
};

const VoucherTypeLists kVoucherTypesOfStandardCost = {
    .industrial = " and cvouchtype in ('05','06','08','09','10','11','20','21','22','25','24','26','27','28','29','32','EX26','EX27')",
    .other      = " and cvouchtype in ('05','06','08','09','20','21','22','24','25','26','27','28','29','32','EX26','EX27')",
};

const std::string_view kVoucherTypesOfPriceAnalysis =
    " and cvouchtype in ('05','06','08','09','10','11','24','26','27','28','29','32','EX26','EX27')";

namespace {

// Receipts that are shown by the way they are posted: settled or estimated.
constexpr struct {
    const char* code;
    Caption caption;
} kPostedTwoWays[] = {
    {"01",  {"IA.BillforVch", "采购入库单(报销记账)"}},
    {"011", {"IA.BillforVch", "采购入库单(暂估记账)"}},
    {"30",  {"IA.BillforVch", "蓝字回冲单(报销)"}},
    {"301", {"IA.BillforVch", "蓝字回冲单(暂估)"}},
    {"70",  {"IA.BillforVch", "代管挂账确认单(报销记账)"}},
    {"701", {"IA.BillforVch", "代管挂账确认单(暂估记账)"}},
};
// clang-format on

constexpr Caption kVoucherTypeCode = {"IA.FltField", "单据编码"};
constexpr Caption kVoucherTypeName = {"IA.FltField", "单据类型"};

std::string TextOf(const Caption& caption)
{
    return Resources().GetEnumName(std::string(caption.enumType), std::string(caption.code));
}

std::string PermissionOn(std::string_view kind)
{
    for (const PermissionColumn& column : PermissionColumnsOf("clsFilterControl"))
        if (column.kind == kind)
            return GetDataPermissionClause(std::string(column.field), column.kind, column.forWrite,
                                           column.noCostLimit);
    throw Error("The dialogs know no permission of the kind " + std::string(kind) + ".");
}

}  // namespace

std::string SelectReferences(const ReferenceLookup& lookup, const std::string& condition)
{
    const std::string code = TextOf(lookup.codeCaption);
    const std::string name = TextOf(lookup.nameCaption);
    const std::string permission = PermissionOn(lookup.kind);

    return std::string(lookup.selectCode) + code + std::string(lookup.selectName) + name + lookup.from +
           condition + (permission.empty() ? "" : " AND " + permission) + std::string(lookup.orderBy);
}

std::string SelectVoucherTypes(const VoucherTypeLists& lists, std::string_view furtherCondition)
{
    const std::string code = TextOf(kVoucherTypeCode);
    const std::string type = TextOf(kVoucherTypeName);
    const bool industrial = ToText(GetAccInfoValue("AA", "cSysVersion")) == "工业";

    std::string postedTwoWays;
    for (const auto& row : kPostedTwoWays)
        postedTwoWays += (postedTwoWays.empty() ? "" : "' ") + std::string(" Union select '") + row.code +
                         "','" + TextOf(row.caption);

    // clang-format off
    return "select cVouchType as [" + code + "] ,EnumName  As [" + type + "]"
           " from VouchType inner join aa_enum on cVouchName=EnumCode"
           " where LocaleID='" + ModPub().gstrLanguage + "' and EnumType='IA.BillforVch' " +
           std::string(industrial ? lists.industrial : lists.other) + std::string(furtherCondition) +
           postedTwoWays + "' Order By [" + code + "]";
    // clang-format on
}

}  // namespace kavelin
