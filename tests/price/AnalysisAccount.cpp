#include "price/AnalysisAccount.h"

#include "frame/Text.h"
#include "price/clsIaAnalysis.h"
#include "support/GoldenFile.h"

#include <algorithm>

namespace kavelin::test {

namespace {

constexpr const char* kScripts[] = {"01-settings", "02-master-data", "03-ledgers", "12-ledger-views"};

constexpr const char* kRows[] = {
    "insert into AccInformation (cSysID, cName, cValue) values ('IA', 'dIAStartDate', '2008-01-01'),"
    " ('IA', 'cValueStyle', N'按仓库核算'), ('AA', 'iExchRateDecDgt', '2')",
    "insert into Warehouse (cWhCode, cWhName, bInCost, cWhValueStyle) values"
    " ('01', N'原料库', 1, N'全月平均法'), ('02', N'外库', 1, N'计划价法'), ('09', N'代管库', 0, N'全月平均法')",
    "insert into InventoryClass (cInvCCode, cInvCName) values ('01', N'泵')",
    "insert into Inventory (cInvCode, cInvCCode, cInvName, cValueType, bCheckBatch, iInvSPrice) values"
    " ('A', '01', N'甲泵', N'先进先出法', 0, 6), ('B', '01', N'乙泵', N'全月平均法', 1, 2.5),"
    " ('C', '01', N'丙泵', null, 0, null)",
    "insert into VouchType (cVouchType, cVouchName) values ('01', N'采购入库单'), ('32', N'销售出库单')",
    "insert into AA_Enum (EnumType, EnumCode, LocaleID, EnumName) values"
    " ('IA.BusType', N'普通采购', 'en-US', 'Purchase'), ('IA.VchType', N'采购入库单', 'en-US', 'Receipt'),"
    " ('IA.BusType', N'普通采购', 'zh-CN', N'普通采购')",
};

}  // namespace

AnalysisAccount::AnalysisAccount()
{
    for (const char* script : kScripts) {
        const std::string text =
            ReadFile(std::string(KAVELIN_SOURCE_DIR) + "/src/demo/data/schema/" + script + ".sql");
        for (const std::string& batch : Split(text, "\nGO\n"))
            Run(batch);
    }
    for (const char* sql : kRows)
        Run(sql);
    Answers().sql = "tempdb..analysis";
}

void AnalysisAccount::Add(const LedgerLine& line)
{
    const bool received = std::string(line.outCost) == "null";
    Run("insert into IA_Subsidiary (iYear, iMonth, dVouDate, dKeepDate, cAccounter, cVouCode, cVouType, cBusType,"
        " bRdFlag, cWhCode, cDepCode, cInvCode, cBatchIA, cFree1, iInCost, iOutCost) values (" +
        std::to_string(line.year) + ", " + std::to_string(line.month) + ", " + line.date + ", " + line.date +
        ", 'demo', N'" + line.code + "', " + line.type + ", " + line.busType + ", " + (received ? "1" : "0") +
        ", " + line.warehouse + ", " + line.department + ", " + line.item + ", " + line.batch + ", " +
        line.free1 + ", " + line.inCost + ", " + line.outCost + ")");
}

void AnalysisAccount::Add(const SummaryRow& row)
{
    Run("insert into IA_Summary (iYear, iMonth, cInvCode, cWhCode, cDepCode, cBatchIA, cFree1, iDirect, iPeriod,"
        " iINum, iIMoney, iONum, iOMoney, iNum, iMoney) values (" +
        std::to_string(row.year) + ", " + std::to_string(row.month) + ", " + row.item + ", " + row.warehouse +
        ", " + row.department + ", " + row.batch + ", " + row.free1 + ", " + std::to_string(row.direct) +
        ", " + std::to_string(row.period) + ", " + row.in + ", " + row.out + ", " + row.left + ")");
}

void AnalysisAccount::SetStyle(const std::string& valueStyle)
{
    Run("update AccInformation set cValue = N'" + valueStyle + "' where cName = 'cValueStyle'");
}

bool AnalysisAccount::Analyse(const std::vector<FakeField>& fields)
{
    std::vector<FakeField> filter = {{"iMonth", "2008.03"},
                                     {"ShowType", "1"},
                                     {"Base Price", "3"},
                                     {"avgPrice", "2008.01", "2008.03", true},
                                     {"avgPrices", "1"}};
    for (const FakeField& field : fields) {
        std::erase_if(filter, [&](const FakeField& usual) { return usual.name == field.name; });
        filter.push_back(field);
    }
    SetFilter(filter);
    clsIaAnalysis().GETSQL(*EarlyArgument());
    return !ModPub().gcnnAccount;
}

std::string AnalysisAccount::Rows(const std::string& columns)
{
    const std::string text = Query("select " + columns + " from tempdb..analysis order by cVouCode, autoid");
    return text.substr(text.find('\n') + 1);
}

}  // namespace kavelin::test
