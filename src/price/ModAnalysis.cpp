#include "price/ModAnalysis.h"

#include "frame/AccountParameters.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/TempTables.h"
#include "frame/VouTypes.h"
#include "price/AnalysisCondition.h"
#include "price/AnalysisResultStatements.h"
#include "price/AnalysisTableStatements.h"
#include "price/ReferencePriceStatements.h"

namespace kavelin {

namespace {

void Execute(const std::string& sql)
{
    Existing(ModPub().gcnnAccount).Execute(sql);
}

std::int16_t ReadRatioScale()
{
    constexpr std::int16_t kUsual = 2;
    std::int16_t scale = 0;
    IgnoreErrors([&] { scale = ToInt16(GetAccInfoValue("AA", "iExchRateDecDgt")); });
    return scale == 0 ? kUsual : scale;
}

// "200801"
std::string ReadStartMonth()
{
    const std::string start = FormatDate(ToDate(GetAccInfoValue("IA", "dIAStartDate")));
    return start.substr(0, 4) + start.substr(5, 2);
}

std::string BuildVouTypeWhere(const std::string& strVouTypes)
{
    const VouTypes types = SplitVouTypes(strVouTypes);
    if (types.strMain.empty())
        return "(" + types.strFlagged + ")";
    const std::string halves = types.strFlagged.empty() ? "" : " OR " + types.strFlagged;
    return "(cVouType in (" + types.strMain + ")" + halves + ")";
}

std::string BuildWhere(const AnalysisConditions& conditions)
{
    std::string where = conditions.strWhere;
    if (!conditions.strVouTypes.empty())
        where += " And " + BuildVouTypeWhere(conditions.strVouTypes);
    if (!conditions.strBusTypes.empty())
        where += " And (cBusType in (" + conditions.strBusTypes + "))";
    return where;
}

void FillWorkTable(const std::string& strWorkTable, const AnalysisCondition& condition,
                   const std::string& strWhere)
{
    const bool lines = condition.strShowType != "2";
    const bool summaries = condition.strShowType != "1" && !condition.blnVoucherLevel;
    if (lines)
        Execute(FillAnalysisLines(strWorkTable, strWhere));
    if (summaries)
        Execute(FillAnalysisSummary(strWorkTable, strWhere));
}

void FindLastCosts(const PriceTables& tables)
{
    Execute(CopyLedger());
    Execute(ClearBatchesOfOtherItems());
    Execute(ClearBatchesOfOtherMethods(tables.key));
    for (const LastCost& last : {kLastReceipt, kLastIssue}) {
        Execute(SelectLastLines(tables.key, last));
        Execute(SelectLastCosts(tables.key, last));
    }
    Execute(AddLastCosts(tables));
    for (const LastCost& last : {kLastReceipt, kLastIssue})
        Execute(UpdateLastCosts(tables, last));
}

void FindAverages(const PriceTables& tables, const AnalysisCondition& condition)
{
    Execute(SelectSummary(tables, condition.strAvgRange));
    Execute(AddAverage(tables));
    Execute(SelectAverages(tables.key, condition.dblAvgKind));
    Execute(UpdateAverages(tables));
}

void FindBalances(const PriceTables& tables, const AnalysisCondition& condition,
                  const std::string& strStartMonth)
{
    const std::string year = std::to_string(condition.intYear);
    const bool atStart = year + condition.strMonth <= strStartMonth;
    Execute(SelectBalances(tables, atStart ? AtOpening(year) : BeforeMonth(year, condition.strMonth)));
    Execute(UpdateBalancePrices(tables));
}

void WriteResult(const std::string& strTable, const std::string& strWorkTable,
                 const AnalysisCondition& condition)
{
    Execute(UpdateReferenceCosts(strWorkTable));
    Execute(UpdateBasePrices(strWorkTable, condition.dblBasePrice));
    for (const std::string& statement : UpdateRatios(strWorkTable))
        Execute(statement);
    Execute(InsertResult(strTable, strWorkTable, condition.strOutputFilter));
}

// In Chinese the stored texts stand as they are.
void TranslateAnalysisNames(const std::string& strTable)
{
    const std::string& language = ModPub().gstrLanguage;
    if (language == "zh-CN")
        return;
    Execute(TranslateBusTypes(strTable, language));
    Execute(TranslateVouTypes(strTable, language));
}

}  // namespace

void CreateAnalysisTable(const std::string& strTable)
{
    const std::int16_t scale = ReadRatioScale();
    IgnoreErrors([&] { Execute(CreateResult(strTable, scale)); });
    IgnoreErrors([&] { Execute(AlterResult(strTable)); });
}

void BuildAnalysisData(const std::string& strTable, const AnalysisConditions& conditions)
{
    const auto document = CurrentPlatform().CreateXmlDocument();
    document->loadXML(conditions.strConditionXml);
    const auto root = document->documentElement();
    if (!root)
        return;
    const std::string startMonth = ReadStartMonth();
    const AnalysisCondition condition = ReadCondition(*root);

    const std::string workTable = "Tempdb..iA_Anlysis" + CreateGuidText("");
    Execute(DropIfThere(workTable));
    Execute(CreateWorkTable(workTable, strTable));
    FillWorkTable(workTable, condition, BuildWhere(conditions));

    const CostingKey& key = CostingKeyOf(ToText(GetAccInfoValue("IA", "cValueStyle")));
    const PriceTables tables = {workTable, "Tempdb..IA_Stype" + CreateGuidText(""), key};
    Execute(DropIfThere(tables.strKeyTable));
    Execute(SelectKeys(tables));
    FindLastCosts(tables);
    FindAverages(tables, condition);
    Execute(UpdateRowPrices(tables));
    FindBalances(tables, condition, startMonth);
    Execute(DropLedgerTables());
    Execute(DropSummaryTables());

    WriteResult(strTable, workTable, condition);
    TranslateAnalysisNames(strTable);
    Execute(DropIfThere(workTable));
    Execute(DropIfThere(tables.strKeyTable));
}

}  // namespace kavelin
