#include "journal/AreaStockStatements.h"

#include "frame/Statement.h"

namespace kavelin {

namespace {

std::string FromTempTables(const std::string& dataTable, const std::string& areaTable)
{
    return " from tempdb.." + dataTable + " ia inner join (select distinct autoid from tempdb.." + areaTable +
           ") area on ia.autoid=area.autoid "
           " inner join inventory inv on inv.cinvcode=ia.cinvcode"
           " left join warehouse wh on wh.cwhcode=ia.cwhcode ";
}

std::string FromAccountTables()
{
    return " from ia_data_subsidiary ia inner join (select distinct autoid from ia_accountarea"
           ") area on ia.autoid=area.autoid "
           " inner join inventory inv on inv.cinvcode=ia.cinvcode"
           " left join warehouse wh on wh.cwhcode=ia.cwhcode ";
}

}  // namespace

std::string SelectAreaRows(const std::string& table, const std::string& dataTable,
                           const std::string& areaTable)
{
    const bool tablesGiven = !dataTable.empty() && !areaTable.empty();

    return EndLines({
               "select inv.cinvcode",
               Numbered(1, 10, ",ia.cfree{}"),
               ",ia.cbatchia",
               ",wh.cwhcode,wh.cwhname",
               ",inv.cInvStd,inv.cInvAddCode,inv.cinvname",
               ",case when ia.brdflag=1 then isnull(ia.iquantity,0) else 0 end"
               " as iinquantity",
               ",case when ia.brdflag=0 then isnull(ia.iquantity,0) else 0 end"
               " as ioutquantity",
               ",case when ia.brdflag=1 then isnull(ia.iprice,0) else 0 end"
               " as iinprice",
               ",case when ia.brdflag=0 then isnull(ia.iprice,0) else 0 end"
               " as ioutprice",
               ",case when ia.brdflag=0 then isnull(ia.iunitcost,0) else 0 end"
               " as ioutcost",
               ",case when ia.brdflag=1 then isnull(ia.iunitcost,0) else 0 end"
               " as iincost"
               " into " +
                   table,
           }) +
           (tablesGiven ? FromTempTables(dataTable, areaTable) : FromAccountTables());
}

}  // namespace kavelin
