#include "summary/estimate/EstimateAccount.h"

#include "frame/Statement.h"
#include "frame/Text.h"
#include "summary/clsLastRep.h"

namespace kavelin::test {

namespace {

const std::string kTables[] = {
    "create table AccInformation (cSysID nvarchar(10) not null, cName nvarchar(60) not null,"
    " cValue nvarchar(255) null, cDefault nvarchar(255) null)",
    "create table VouchType (cVouchType nvarchar(4) not null, cVouchName nvarchar(60) null)",
    "create table AA_Enum (EnumType nvarchar(60) not null, EnumCode nvarchar(60) not null,"
    " LocaleID nvarchar(10) not null, EnumName nvarchar(200) null)",
    "create table Warehouse (cWhCode nvarchar(10) not null, cWhName nvarchar(60) null, bInCost bit not null,"
    " cWhValueStyle nvarchar(12) null)",
    "create table Department (cDepCode nvarchar(20) not null, cDepName nvarchar(120) null)",
    "create table Rd_Style (cRdCode nvarchar(12) not null, cRdName nvarchar(12) null)",
    "create table Vendor (cVenCode nvarchar(20) not null, cVenName nvarchar(98) null,"
    " cVCCode nvarchar(24) null)",
    "create table VendorClass (cVCCode nvarchar(24) not null, cVCName nvarchar(120) null)",
    "create table InventoryClass (cInvCCode nvarchar(24) not null, cInvCName nvarchar(120) null)",
    "create table Inventory (cInvCode nvarchar(60) not null, cInvCCode nvarchar(24) null,"
    " cInvName nvarchar(255) null, cInvAddCode nvarchar(255) null, cInvStd nvarchar(255) null,"
    " iid nvarchar(60) null, cComUnitCode nvarchar(20) null, cValueType nvarchar(20) null,"
    " bCheckBatch bit not null default (0)" +
        Numbered(1, 10, ", bCheckFree{} bit not null default (0)") +
        Numbered(1, 16, ", cInvDefine{} nvarchar(120) null") + ")",
    "create table IA_Subsidiary (AutoID int identity(1,1) not null, ID int null, iYear smallint not null,"
    " iMonth tinyint not null, dVouDate datetime null, dKeepDate datetime null, dtAudit datetime null,"
    " cVouCode nvarchar(30) null, cVouType nvarchar(4) not null, cSrcVouType nvarchar(4) null,"
    " cBusType nvarchar(60) null, bFlag tinyint not null, cWhCode nvarchar(10) null,"
    " cAccDep nvarchar(20) null, cDepCode nvarchar(20) null, cRdCode nvarchar(12) null,"
    " cVenCode nvarchar(20) null, cEntrustOrderCode nvarchar(30) null, cPurOrderCode nvarchar(60) null,"
    " cItem_class nvarchar(10) null, cItemCName nvarchar(120) null, cItemCode nvarchar(60) null,"
    " cName nvarchar(255) null, cInvCode nvarchar(60) not null, cBatchIA nvarchar(60) null,"
    " iAInQuantity float null, iAOutQuantity float null, iInCost float null, iAInPrice money null,"
    " iDebitDifCost money null, iCreditDifCost money null, iMaterialFee money null, psvsid int null,"
    " cMemo nvarchar(255) null" +
        Numbered(1, 10, ", cFree{} nvarchar(20) null") + Numbered(1, 16, ", cDefine{} nvarchar(120) null") +
        Numbered(22, 37, ", cDefine{} nvarchar(120) null") + ")",
    "create table IA_Summary (AutoID int identity(1,1) not null, iYear smallint not null,"
    " iMonth tinyint not null, cInvCode nvarchar(60) not null, cWhCode nvarchar(10) null,"
    " cDepCode nvarchar(20) null, cBatchIA nvarchar(60) null, iDirect tinyint null, iPeriod tinyint null" +
        Numbered(1, 10, ", cFree{} nvarchar(20) null") + ")",
    "create table Pursettlevouchs (ID int not null, iSVQuantity float null, iSVPrice money null,"
    " MaterialFee money null)",
    "create table rdrecord01 (ID int not null, cBusType nvarchar(60) null)",
    "create table rdrecords01 (AutoID int not null, ID int not null, iQuantity float null,"
    " iAPrice money null, iMaterialFee money null, FaCost float null)",
    "create table PU_v_VMIUsedVouchs (AutoID int not null, iConfirmQuantity float null, iAPrice money null,"
    " iaCost float null)",
};

const std::string kMasters[] = {
    "insert into Warehouse values (N'01', N'主仓', 1, N'移动平均法'), (N'02', N'副仓', 1, N'计划价法'),"
    " (N'09', N'代管仓', 0, N'移动平均法')",
    "insert into Department values (N'1', N'采购部'), (N'2', N'生产部')",
    "insert into Inventory (cInvCode, cInvName, iid, cValueType) values (N'A', N'钢板', N'1', N'计划价法')",
    "insert into Inventory (cInvCode, cInvName, iid, cValueType, bCheckBatch, bCheckFree1)"
    " values (N'B', N'铜线', N'2', N'移动平均法', 1, 1)",
};

// A text of SQL; null for an empty one.
std::string Quoted(const std::string& text)
{
    return text.empty() ? "null" : "N'" + text + "'";
}

std::string Joined(std::initializer_list<std::string> values)
{
    std::string list;
    for (const std::string& value : values)
        list += (list.empty() ? "" : ", ") + value;
    return "(" + list + ")";
}

}  // namespace

EstimateAccount::EstimateAccount()
{
    for (const std::string& sql : kTables)
        objHost.Run(sql);
    for (const std::string& sql : kMasters)
        objHost.Run(sql);
    SetParameter("AA", "iStrsQuanDecDgt", "2");
    SetParameter("AA", "cSysVersion", "商业");
    objHost.Answers().sql = "EstimateResult";
}

void EstimateAccount::Use(const std::string& method, const std::string& valueStyle)
{
    SetParameter("IA", "cEstimate", method);
    SetParameter("IA", "cValueStyle", valueStyle);
}

void EstimateAccount::SetParameter(const std::string& system, const std::string& name,
                                   const std::string& value)
{
    objHost.Run("delete from AccInformation where cSysID = '" + system + "' and cName = '" + name + "'");
    objHost.Run("insert into AccInformation (cSysID, cName, cValue) values " +
                Joined({Quoted(system), Quoted(name), Quoted(value)}));
}

void EstimateAccount::Add(const LedgerLine& line)
{
    const std::string settlement = line.settlement == 0 ? "null" : std::to_string(line.settlement);
    objHost.Run(
        "insert into IA_Subsidiary (ID, iYear, iMonth, cVouType, cSrcVouType, cBusType, bFlag, cWhCode,"
        " cAccDep, cDepCode, cInvCode, cBatchIA, cFree1, iAInQuantity, iAInPrice, iInCost, iDebitDifCost,"
        " iCreditDifCost, iMaterialFee, psvsid) values " +
        Joined({std::to_string(line.id),
                std::to_string(line.year),
                std::to_string(line.month),
                Quoted(line.type),
                Quoted(line.source),
                Quoted(line.business),
                std::to_string(line.flag),
                Quoted(line.warehouse),
                Quoted(line.department),
                Quoted(line.department),
                Quoted(line.item),
                Quoted(line.batch),
                Quoted(line.free1),
                line.quantity,
                line.money,
                line.cost,
                line.debit,
                line.credit,
                line.fee,
                settlement}));
}

void EstimateAccount::Add(const SummaryRow& row)
{
    objHost.Run(
        "insert into IA_Summary (iYear, iMonth, cInvCode, cWhCode, cDepCode, cBatchIA, cFree1, iDirect,"
        " iPeriod) values " +
        Joined({std::to_string(row.year), std::to_string(row.month), Quoted(row.item), Quoted(row.warehouse),
                Quoted(row.department), Quoted(row.batch), Quoted(row.free1), std::to_string(row.direct),
                std::to_string(row.period)}));
}

void EstimateAccount::AddSettlement(int number, const std::string& quantity, const std::string& price,
                                    const std::string& fee)
{
    objHost.Run("insert into Pursettlevouchs values " +
                Joined({std::to_string(number), quantity, price, fee}));
}

void EstimateAccount::AddReceipt(int line, const std::string& quantity, const std::string& price,
                                 const std::string& unitCost, const std::string& business,
                                 const std::string& fee)
{
    const std::string head = std::to_string(1000 + line);
    objHost.Run("insert into rdrecord01 values " + Joined({head, Quoted(business)}));
    objHost.Run("insert into rdrecords01 values " +
                Joined({std::to_string(line), head, quantity, price, fee, unitCost}));
}

void EstimateAccount::AddConfirmation(int line, const std::string& quantity, const std::string& price,
                                      const std::string& unitCost)
{
    objHost.Run("insert into PU_v_VMIUsedVouchs values " +
                Joined({std::to_string(line), quantity, price, unitCost}));
}

bool EstimateAccount::Report(int month, const std::vector<FakeField>& filter)
{
    std::vector<FakeField> fields = {{"ia_subsidiary.iyear", "2008"},
                                     {"ia_subsidiary.iMonth", std::to_string(month) + "月"}};
    fields.insert(fields.end(), filter.begin(), filter.end());
    objHost.SetFilter(fields);
    objHost.Filter()->whereByToken = {{1, "ia_subsidiary.iyear = 2008"}, {2, strVouTypes}};
    clsLastRep().GETSQL(*objHost.LateArgument());
    return ConnectionsLeft() == "gcnnAccount=nothing gcnnSystem=nothing gobjLogin=nothing";
}

std::string EstimateAccount::Balance(int month, const std::vector<FakeField>& filter)
{
    if (!Report(month, filter))
        return "the report failed";
    const std::string rows = objHost.Query(
        "select ID, QcQuantity, QcMoney, InQuantity, InMoney, OutQuantity, OutMoney, QmQuantity,"
        " QmMoney from EstimateResult order by ID");
    std::string text;
    for (const std::string& row : Split(rows, "\n")) {
        const std::vector<std::string> fields = Split(row, ",");
        if (fields.size() != 9 || fields[0] == "ID")
            continue;
        const auto shown = [&](std::size_t field) { return fields[field].empty() ? "-" : fields[field]; };
        text += fields[0] + ":";
        for (std::size_t field = 1; field < 9; field += 2)
            text += (field == 1 ? " " : ", ") + shown(field) + " " + shown(field + 1);
        text += "\n";
    }
    return text;
}

}  // namespace kavelin::test
