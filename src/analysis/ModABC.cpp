#include "analysis/ModABC.h"

#include "analysis/AbcOptions.h"
#include "frame/Guards.h"
#include "frame/ModPub.h"

namespace kavelin {

namespace {

double Number(const Value& value)
{
    return value.IsNull() ? 0 : ToDouble(value);
}

std::unique_ptr<Recordset> Open(const std::string& sql)
{
    return Existing(ModPub().gcnnAccount)
        .OpenRecordset(sql, CursorLocation::Client, CursorType::ForwardOnly, LockType::ReadOnly);
}

}  // namespace

void ClassifyItems(const AbcRun& run)
{
    const double quantity = Number(Open(SelectTotalQuantity(run))->Field("nums"));
    const auto totals = Open(SelectTotalMoney(run));
    const double money = Number(totals->Field("nums")) + Number(totals->Field("moneys"));

    Connection& account = Existing(ModPub().gcnnAccount);
    account.Execute(SelectItems(run));
    account.Execute(SelectAbcTable(run));
    account.Execute(UpdateShares(run, quantity, money));
    account.Execute(UpdateLargestOf(run, "NumPer"));
    account.Execute(UpdateLargestOf(run, "MoneyPer"));
    account.Execute(UpdateGrades(run, ReadAbcThresholds()));
    account.Execute(UpdateClasses(run));
}

}  // namespace kavelin
