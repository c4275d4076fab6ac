#include "goods/GoodsAccount.h"

#include "frame/Text.h"
#include "support/GoldenFile.h"

namespace kavelin::test {

namespace {

// clang-format off
constexpr const char* kScripts[] = {
    "01-settings", "02-master-data", "03-ledgers", "05-documents", "06-costs", "07-functions", "08-lookup-views",
    "09-document-views",
};
// clang-format on

constexpr const char* kMasterData[] = {
    "insert into Department (cDepCode, cDepName) values ('03', N'销售部'), ('04', N'仓储部')",
    "insert into Warehouse (cWhCode, cWhName, cDepCode, bInCost) values"
    " ('01', N'成品库', '04', 1), ('02', N'外库', null, 1), ('09', N'代管库', '04', 0)",
    "insert into InventoryClass (cInvCCode, cInvCName) values"
    " ('01', N'泵'), ('0101', N'水泵'), ('02', N'阀')",
    "insert into ComputationGroup (cGroupCode, iGroupType) values ('G1', 1), ('G2', 1)",
    "insert into ComputationUnit (cComUnitCode, cComUnitName, cGroupCode, iNumber, bMainUnit, iChangRate) values"
    " ('kg', N'千克', 'G1', 0, 1, 1), ('box', N'箱', 'G1', 1, 0, 10), ('pallet', N'托', 'G1', 2, 0, 40),"
    " ('piece', N'件', null, null, 1, null), ('m', N'米', 'G2', 0, 1, 1), ('roll', N'卷', 'G2', 2, 0, 0)",
    "insert into Inventory (cInvCode, cInvCCode, cInvName, cInvAddCode, cInvStd, iid, cComUnitCode,"
    " cSTComUnitCode, cGroupCode, cInvDefine1, iInvWeight) values"
    " ('A', '0101', N'甲泵', 'A-1', 'DN50', '1', 'kg', 'box', 'G1', N'红', 2.5),"
    " ('B', '02', N'乙阀', null, null, '2', 'piece', null, null, null, null),"
    " ('C', '02', N'丙阀', 'C-1', '', '3', 'm', 'roll', 'G2', null, null)",
    "insert into CustomerClass (cCCCode, cCCName) values ('01', N'内销')",
    "insert into Customer (cCusCode, cCusName, cCusAbbName, cCCCode) values ('K1', N'客户甲公司', N'甲', '01')",
    "insert into Person (cPersonCode, cPersonName) values ('P1', N'张三')",
    "insert into Rd_Style (cRdCode, cRdName) values ('202', N'销售出库')",
    "insert into VouchType (cVouchType, cVouchName) values ('05', N'发货单'), ('32', N'销售出库单')",
    "insert into AA_Enum (EnumType, EnumCode, LocaleID, EnumName) values"
    " ('IA.VchType', N'发货单', 'zh-CN', N'发货单'), ('IA.VchType', N'销售出库单', 'zh-CN', N'销售出库单'),"
    " ('IA.BusType', N'普通销售', 'zh-CN', N'普通销售'), ('IA.BusType', N'委托代销', 'zh-CN', N'委托代销'),"
    " ('IA.BusType', N'分期收款', 'zh-CN', N'分期收款')",
};

}  // namespace

GoodsAccount::GoodsAccount()
{
    for (const char* script : kScripts) {
        const std::string text =
            ReadFile(std::string(KAVELIN_SOURCE_DIR) + "/src/demo/data/schema/" + script + ".sql");
        for (const std::string& batch : Split(text, "\nGO\n"))
            Run(batch);
    }
    for (const char* sql : kMasterData)
        Run(sql);
}

void GoodsAccount::Add(const GoodsLine& line)
{
    const auto number = [](int value) { return std::to_string(value); };
    const std::string in = line.in ? line.quantity : "null", out = line.in ? "null" : line.quantity;
    const std::string inAmount = line.in ? line.amount : "null", outAmount = line.in ? "null" : line.amount;

    Run("insert into IA_EnSubsidiary (iSrcID, cSrcVouType, inid, cVouType, bRdFlag, iAInQuantity, iAOutQuantity,"
        " iAInPrice, iAOutPrice, iMonth, dVouDate, dKeepDate, iYear, cInvCode, cWhCode, cBusType, cAccounter,"
        " iDLsID, OutID, cFree1, cVouCode, cAccDep, cCusCode, cPersonCode, cRdCode) values (" +
        number(line.source) + "," + line.sourceType + "," +
        number(line.document == 0 ? line.source : line.document) + "," + line.type + "," +
        (line.in ? "1" : "0") + "," + in + "," + out + "," + inAmount + "," + outAmount + "," + line.month +
        "," + line.date + "," + line.keepDate + "," + number(line.year) + "," + line.item + "," +
        line.warehouse + "," + line.businessType + "," + line.accounter + "," + line.dispatchLine + "," +
        line.invoiceLine + "," + line.free1 + ",'D" +
        number(line.document == 0 ? line.source : line.document) + "','03','K1','P1','202')");
}

void GoodsAccount::AddDocument(const std::string& kind, const std::string& type, int line,
                               const std::string& code, int dispatchLine)
{
    const std::string head = std::to_string(HeadOf(line));
    Run("insert into Demo_Document (DocID, Kind, cVouType, cVouCode, dVouDate) values (" + head + ",'" +
        kind + "','" + type + "','" + code + "','2008-07-10')");
    Run("insert into Demo_DocumentLine (LineID, DocID, cInvCode, bRdFlag, iDLsID) values (" +
        std::to_string(line) + "," + head + ",'A',0," +
        (dispatchLine == 0 ? "null" : std::to_string(dispatchLine)) + ")");
}

}  // namespace kavelin::test
