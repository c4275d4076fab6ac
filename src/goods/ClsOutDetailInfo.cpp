#include "goods/ClsOutDetailInfo.h"

#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/TempTables.h"
#include "goods/CostItemChoice.h"
#include "goods/DetailDrillDown.h"
#include "goods/DetailFilter.h"
#include "goods/DetailStatements.h"
#include "goods/GoodsClauses.h"

namespace kavelin {

namespace {

// Captions of the rows that are no ledger lines.
constexpr const char* kOpeningCaption = "Orvo.IA.CHHSSQL.05360";
constexpr const char* kMonthCaption = "Orvo.IA.CHHSSQL.00676";    // behind the month's number
constexpr const char* kRunningCaption = "Orvo.IA.CHHSSQL.00675";  // of all months up to one

std::string CreateTable(Connection& account)
{
    const std::string name = GetClientTableName("LSZ");
    const std::string table = InTempdb(name);
    account.Execute(DropGoodsWorkTable(name));
    account.Execute(CreateDetailTable(table));
    return table;
}

void FillOpening(Connection& account, const std::string& table, const std::string& where)
{
    account.Execute(InsertDetailOpening(table, Resources().GetResString(kOpeningCaption), where));
    account.Execute(UpdateOpeningUnits(table));
    account.Execute(UpdateOpeningTotals(table));
    account.Execute(UpdateOpeningTotalUnits(table));
}

void FillLines(Connection& account, const std::string& table, const std::string& where)
{
    account.Execute(InsertDetailLines(table, ModPub().gstrLanguage, where));
    account.Execute(UpdateRunningBalance(table));
    account.Execute(UpdateLineUnits(table));
    account.Execute(UpdateLineTotals(table));
    account.Execute(UpdateLineTotalUnits(table));
}

void FillRunningRows(Connection& account, const std::string& table)
{
    const auto months = account.OpenRecordset(SelectMonths(table), CursorLocation::Client,
                                              CursorType::ForwardOnly, LockType::ReadOnly);
    const std::string caption = Resources().GetResString(kRunningCaption);
    for (; !months->Eof(); months->MoveNext())
        account.Execute(InsertRunningRow(table, caption, ToText(months->Field("iMonth"))));
    months->Close();

    account.Execute(UpdateMonthUnits(table));
    account.Execute(UpdateMonthTotals(table));
    account.Execute(UpdateMonthTotalUnits(table));
}

}  // namespace

void ClsOutDetailInfo::GETSQL(ReportCallArgs& e)
{
    RunFrame(FindFrameRow("ClsOutDetailInfo", FrameEntry::GETSQL), e, objFrame,
             [this] { return MoveDataDetail(); });
}

std::string ClsOutDetailInfo::MoveDataDetail()
{
    return IgnoreErrors([this] { Run(); }) ? "" : " ";
}

void ClsOutDetailInfo::Run()
{
    const DetailConditions conditions = ReadDetailFilter(Existing(objFrame.objFilter));
    Connection& account = Existing(ModPub().gcnnAccount);

    const std::string table = CreateTable(account);
    FillOpening(account, table, conditions.strOpenWhere);
    FillLines(account, table, conditions.strMoveWhere);
    account.Execute(InsertMonthRows(table, Resources().GetResString(kMonthCaption)));
    FillRunningRows(account, table);

    account.Execute(UpdateDetailVoucher(table));
    account.Execute(UpdateDetailDifVoucher(table));
    account.Execute(SelectDetailResult(table, objFrame.strTable, conditions.strYear,
                                       conditions.strResultMonths,
                                       ChooseCostColumns(conditions.strCostItem)));
}

void ClsOutDetailInfo::Execute(DrillDownArgs& e)
{
    EarlyRowArguments row(e);
    DrillDown(DetailDrillDownRules(), row);
}

}  // namespace kavelin
