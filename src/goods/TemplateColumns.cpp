#include "goods/TemplateColumns.h"

#include "frame/Statement.h"

namespace kavelin {

namespace {

std::string Named(const std::string& expression, const std::string& name)
{
    return "," + expression + " AS N'" + name + "'";
}

// The three columns of one direction: pieces, quantity, amount.
std::string Measures(const std::string& name, const std::string& direction, const std::string& quantity,
                     const std::string& amount)
{
    return JoinLines({
        Named(InPieces(quantity), name + "_件数" + direction),
        Named(quantity, name + "_数量" + direction),
        Named(amount, name + "_金额" + direction),
    });
}

std::string Zeros(const std::string& name, const std::string& direction)
{
    return JoinLines({
        ZeroColumn(name + "_件数" + direction),
        ZeroColumn(name + "_数量" + direction),
        ZeroColumn(name + "_金额" + direction),
    });
}

std::string Signed(const std::string& in, const std::string& out)
{
    return "(case Ia_Ensubsidiary.bRdFlag when 1 then Isnull(Ia_Ensubsidiary." + in +
           ",0) else -1*Isnull(Ia_Ensubsidiary." + out + ",0) end)";
}

std::string OfDirection(const std::string& flag, const std::string& column)
{
    return "(case Ia_Ensubsidiary.bRdFlag when " + flag + " then Isnull(Ia_Ensubsidiary." + column +
           ",0) else 0 end)";
}

std::string InventoryColumns()
{
    return EndLines({
        ",Ia_Ensubsidiary.cInvCode AS N'存货_编码',Inventory.cInvAddCode AS N'存货_代码'",
        ",Inventory.cInvName AS N'存货_名称'",
    });
}

std::string InventoryAttributes()
{
    return EndLines({
        ",Inventory.cInvStd AS N'存货_规格',UnitBase.CComUnitName AS N'存货_单位'",
        ",Inventory.iInvWeight AS N'存货_重量'",
        ",ComputationUnit.cComUnitName AS N'存货_辅计量单位'",
        ",ComputationUnit.iChangRate AS N'存货_辅计量换算率'",
        Numbered(1, 16, ",Inventory.cInvDefine{}"),
    });
}

// There are no user fields 17 to 21.
std::string LineAttributes()
{
    return EndLines({
        ",v_aa_enum_cbustype.enumname AS N'业务类型'",
        ",Ia_Ensubsidiary.dVouDate AS N'单据日期',Ia_Ensubsidiary.dKeepDate AS N'记账日期'",
        ",DispatchList.cDlCode AS N'发货单号',rdrecord32.cCode AS N'出库单号'",
        ",CustomerClass.cCCCode AS N'客户分类编码',CustomerClass.cCCName AS N'客户分类名称'",
        ",Customer.cCusCode AS N'客户编码',Customer.cCusAbbName AS N'客户简称'",
        ",Department.cDepCode AS N'部门编码',Department.cDepName AS N'部门名称'",
        ",StDep.cDepCode AS N'所属部门编码',StDep.cDepName AS N'所属部门名称'",
        ",Person.cPersonCode AS N'业务员编码',Person.cPersonName AS N'业务员名称'",
        ",Ia_Ensubsidiary.cItem_class,Ia_Ensubsidiary.cItemcName",
        ",Ia_Ensubsidiary.cItemCode,Ia_Ensubsidiary.cName",
        ",isnull(Ia_Ensubsidiary.cBatchia,'') AS N'批号'",
        Numbered(1, 10, ",Ia_Ensubsidiary.cFree{}"),
        Numbered(1, 16, ",Ia_Ensubsidiary.cDefine{}"),
        Numbered(22, 37, ",Ia_Ensubsidiary.cDefine{}"),
    });
}

}  // namespace

std::string InPieces(const std::string& strQuantity)
{
    return "case when Isnull(ComputationUnit.iChangRate,0)>0 then " + strQuantity +
           "/ComputationUnit.iChangRate else 0 end";
}

std::string ZeroColumn(const std::string& strName)
{
    return ",cast(0 as float) AS N'" + strName + "'";
}

std::string BuildDimensionColumns(std::int32_t lngInvCGrade)
{
    const bool byInventory = lngInvCGrade == 0;

    return EndLines({"Ia_Ensubsidiary.cWhCode AS N'仓库_编码',Warehouse.cWhName AS N'仓库_名称'"}) +
           (byInventory ? InventoryColumns() : "") +
           EndLines({
               ",InventoryClass.cInvCCode AS N'存货大类_编码',InventoryClass.cInvCName AS N'存货大类_名称'",
           }) +
           (byInventory ? InventoryAttributes() : "") + LineAttributes();
}

std::string BuildOpeningColumns(TemplatePass pass)
{
    if (pass == TemplatePass::Movement)
        return EndLines({Zeros("期初", "入")});
    return EndLines(
        {Measures("期初", "入", Signed("iAInQuantity", "iAOutQuantity"), Signed("iAInPrice", "iAOutPrice"))});
}

std::string BuildPlainMovementColumns(TemplatePass pass)
{
    if (pass == TemplatePass::Opening)
        return EndLines({Zeros("收入", "入"), Zeros("发出", "出")});
    return EndLines({
        Measures("收入", "入", OfDirection("1", "iAInQuantity"), OfDirection("1", "iAInPrice")),
        Measures("发出", "出", OfDirection("0", "iAOutQuantity"), OfDirection("0", "iAOutPrice")),
    });
}

}  // namespace kavelin
