#include "summary/EstimateTable.h"

#include "frame/Statement.h"

namespace kavelin {

std::string JoinMasters()
{
    return JoinLines({
        "",
        " left join Inventory on Inventory.cInvCode=Ia_Subsidiary.cInvCode",
        " left join InventoryClass on InventoryClass.cInvCCode=Inventory.cInvCCode",
        " left join Warehouse on Warehouse.cWhCode=Ia_Subsidiary.cWhCode",
        " left join Department on Department.cDepCode=Ia_Subsidiary.cDepCode",
        " left join Rd_Style on Rd_Style.cRdCode=Ia_Subsidiary.cRdCode",
        " left join Vendor on Vendor.cVenCode=Ia_Subsidiary.cVenCode",
        " left join VendorClass on VendorClass.cVCCode=Vendor.cVCCode",
    });
}

std::string DropWorkTable(const std::string& table)
{
    return "If Exists (select ID From sysobjects Where id = object_id('" + table +
           "') And Xtype = 'U' ) Drop Table [" + table + "]";
}

std::string CreateWorkTable(const EstimateRun& run, const std::string& digits)
{
    const std::string quantity = "cast(null as decimal(34," + digits + "))";
    const std::string money = "cast(null as decimal(34,2))";
    return JoinLines({
        "select top 0 Ia_Subsidiary.AutoID,Ia_Subsidiary.ID,Ia_Subsidiary.cVouType,",
        " " + quantity + " as QcQuantity," + money + " as QcMoney,",
        " " + quantity + " as InQuantity," + money + " as InMoney,",
        " " + quantity + " as OutQuantity," + money + " as OutMoney,",
        " " + quantity + " as QmQuantity," + money + " as QmMoney,",
        " cast(null as integer) as CalMethod",
        " into [" + run.strZgTable + "]",
        " from ia_subsidiary" + JoinMasters(),
        " where 1=2",
    });
}

std::string UpdateClosing(const EstimateRun& run)
{
    return JoinLines({
        "update [" + run.strZgTable + "]",
        " set  QmQuantity=isnull(QcQuantity,0)+isnull(InQuantity,0)-isnull(outQuantity,0),"
        "QmMoney=isnull(QcMoney,0)+isnull(InMoney,0)- isnull(outMoney,0)",
        " where calmethod<>0",
    });
}

std::string UpdateIssue(const EstimateRun& run)
{
    return JoinLines({
        "update [" + run.strZgTable + "]",
        " set outQuantity=isnull(QcQuantity,0)+isnull(InQuantity,0)-isnull(QmQuantity,0),"
        "outMoney=isnull(QcMoney,0)+isnull(InMoney,0)- isnull(QmMoney,0)",
        " where calmethod=0",
    });
}

std::string SelectDocumentLines(const EstimateRun& run)
{
    return JoinLines({
        "select min(AutoID) as AutoID,ID,cVouType,",
        " sum(QcQuantity) as QcQuantity,sum(InQuantity) as InQuantity,",
        " sum(outQuantity) as outQuantity,sum(QmQuantity) as QmQuantity,",
        " sum(QcMoney) as QcMoney,sum(InMoney) as InMoney,",
        " sum(outMoney) as outMoney,sum(QmMoney) as QmMoney",
        " into [" + run.strZgSumTable + "]",
        " from [" + run.strZgTable + "]",
        " group by ID,cVouType",
    });
}

std::string DeleteWithoutQuantity(const EstimateRun& run)
{
    return "delete from [" + run.strZgSumTable +
           "] where QcQuantity=0 and InQuantity=0 and outQuantity=0 and QmQuantity=0";
}

}  // namespace kavelin
