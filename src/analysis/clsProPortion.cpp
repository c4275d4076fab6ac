#include "analysis/clsProPortion.h"

#include "analysis/ProPortionFilter.h"
#include "analysis/ProPortionStatements.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/PermissionColumns.h"

namespace kavelin {

namespace {

std::string BuildPermissionWhere()
{
    return BuildPermissionClauses(PermissionColumnsOf("clsProPortion"));
}

std::unique_ptr<Recordset> OpenStatic(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
}

// The grand total of an empty ledger is null.
bool IsNotZero(const Value& total)
{
    return !total.IsNull() && ToDouble(total) != 0;
}

}  // namespace

void clsProPortion::GETSQL(ReportCallArgs& e)
{
    RunFrame(FindFrameRow("clsProPortion", FrameEntry::GETSQL), e, objFrame,
             [this] { return MoveDataDetail(); });
}

bool clsProPortion::MoveDataDetail()
{
    BuildRangeWhere(Existing(objFrame.objFilter));  // the build makes the clause again; this one is not used
    Connection& connection = Existing(objFrame.cnnOwn);

    connection.Execute(DropIfExists(kLedgerRows));
    const std::string year = Existing(ModPub().gobjLogin).Year();
    const std::string range = BuildRangeWhere(Existing(objFrame.objFilter));
    connection.Execute(SelectLedgerRows(year, range, BuildPermissionWhere()));
    const auto total = OpenStatic(connection, SelectGrandTotal());

    connection.Execute(DropIfExists(kItemSums));
    connection.Execute(SelectItemSums());
    connection.Execute(DropIfExists(kRankedItems));
    connection.Execute(SelectRankedItems());
    const auto ranked = OpenStatic(connection, SelectRankedAmounts());

    // The largest share takes what rounding left over, so that the shares sum to exactly 100.00.
    if (ranked->RecordCount() > 1 && IsNotZero(total->Field(0)))
        connection.Execute(UpdateLargestShare());
    ranked->Close();
    total->Close();

    connection.Execute(SelectResult(objFrame.strTable, BuildRankWhere(Existing(objFrame.objFilter))));
    for (const std::string_view table : {kLedgerRows, kItemSums, kRankedItems})
        connection.Execute(DropIfExists(table));
    return true;
}

}  // namespace kavelin
