#include "goods/ClsFCInventory.h"

#include "frame/Guards.h"
#include "frame/ModPub.h"
#include "frame/TempTables.h"
#include "goods/CostItemChoice.h"
#include "goods/GoodsClauses.h"
#include "goods/InventoryFilter.h"
#include "goods/InventoryStatements.h"

namespace kavelin {

void ClsFCInventory::GETSQL(ReportCallArgs& e)
{
    RunFrame(FindFrameRow("ClsFCInventory", FrameEntry::GETSQL), e, objFrame,
             [this] { return MoveDataDetail(); });
}

std::string ClsFCInventory::MoveDataDetail()
{
    return IgnoreErrors([this] { Run(); }) ? "" : " ";
}

void ClsFCInventory::Run()
{
    const InventoryConditions conditions = ReadCostFilter(Existing(objFrame.objFilter));
    Connection& account = Existing(ModPub().gcnnAccount);

    const std::string name = GetClientTableName("FCSFCItem");
    const std::string table = InTempdb(name);
    account.Execute(DropGoodsWorkTable(name));
    account.Execute(CreateInventoryTable(table));

    account.Execute(InsertInventoryOpening(table, conditions.lngUnitNumber, conditions.strOpenWhere));
    account.Execute(InsertInventoryMovement(table, conditions.lngUnitNumber, conditions.strMoveWhere));
    account.Execute(UpdateInventoryEnd(table));
    account.Execute(UpdateInventoryTotals(table));

    account.Execute(SelectInventorySums(table));
    account.Execute(SelectInventoryResult(objFrame.strTable, conditions.strYear,
                                          ChooseCostColumns(conditions.strCostItem)));
}

}  // namespace kavelin
