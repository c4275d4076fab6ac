#include "goods/GoodsClauses.h"

#include "frame/FilterWalk.h"
#include "frame/Statement.h"
#include "frame/TempTables.h"
#include "frame/Text.h"

#include <algorithm>

namespace kavelin {

namespace {

// Each condition up to its value. Between two dates stands `between`: the posting date's second quote is a
// plain one.
struct DateKey {
    std::string_view key, before, both, between, from, to;
};

// clang-format off
constexpr DateKey kDates[] = {
    {"Ia_Ensubsidiary.dVouDate",  "Ia_Ensubsidiary.dVouDate < '",
     " and Ia_Ensubsidiary.dVouDate Between N'",  "' And N'",
     " And Ia_Ensubsidiary.dVouDate >= N'",       " And Ia_Ensubsidiary.dVouDate <= N'" },
    {"Ia_Ensubsidiary.dKeepDate", "Ia_Ensubsidiary.dKeepDate < '",
     " And Ia_Ensubsidiary.dKeepDate Between N'", "' And '",
     " And Ia_Ensubsidiary.dKeepDate >= N'",      " And Ia_Ensubsidiary.dKeepDate <= N'"},
};
// clang-format on

std::string Between(const DateKey& date, const std::string& from, const std::string& to)
{
    if (!from.empty() && !to.empty())
        return std::string(date.both) + from + std::string(date.between) + to + "' ";
    if (!from.empty())
        return std::string(date.from) + from + "'";
    return to.empty() ? "" : std::string(date.to) + to + "'";
}

struct BusinessType {
    std::string_view value, clause;
};

// Consignment stands in the ledger by its long or by its short name.
constexpr BusinessType kBusinessTypes[] = {
    {"委托代销",
     " and (Ia_Ensubsidiary.cBustype= N'委托代销'"
     " OR Ia_Ensubsidiary.cBustype= N'委托') "},
    {"普通销售", "  and (Ia_Ensubsidiary.cBustype= N'普通销售') "},
    {"分期收款", "  and (Ia_Ensubsidiary.cBustype= N'分期收款') "},
};

}  // namespace

bool IsGoodsDate(std::string_view strKey)
{
    return std::ranges::any_of(kDates, [&](const DateKey& date) { return EqualsNoCase(strKey, date.key); });
}

void AddGoodsDates(GoodsPeriod& period, std::string_view strKey, const std::string& strFrom,
                   const std::string& strTo)
{
    for (const DateKey& date : kDates) {
        if (!EqualsNoCase(strKey, date.key))
            continue;
        if (!strFrom.empty())
            period.strOpening += " or " + std::string(date.before) + strFrom + "'";
        period.strMovement += Between(date, strFrom, strTo);
    }
}

std::string GoodsBusinessClause(std::string_view strValue)
{
    for (const BusinessType& type : kBusinessTypes)
        if (strValue == type.value)
            return std::string(type.clause);
    return " ";
}

std::int32_t GoodsUnitNumber(const Value& varValue)
{
    const std::string text = FilterText(varValue);
    return text.empty() || text == "-" ? 0 : ToInt32(varValue);
}

std::string JoinGoodsLookups()
{
    return EndLines({
        " left join Rd_Style on IA_EnSubsidiary.cRdCode=Rd_Style.cRdCode",
        " left join Warehouse on IA_EnSubsidiary.cWhCode=Warehouse.cWhCode",
        " left join inventory on IA_EnSubsidiary.cInvCode=inventory.cInvCode",
        " left join InventoryClass on inventory.cInvCCode=InventoryClass.cInvCCode",
        " left join Customer on IA_EnSubsidiary.cCusCode=Customer.cCusCode",
        " left join CustomerClass on Customer.cCCCode=CustomerClass.cCCCode",
        " left join Department on IA_EnSubsidiary.cAccDep=Department.cDepCode",
    });
}

std::string JoinGoodsUnit(std::int32_t lngUnitNumber)
{
    if (lngUnitNumber == 0)
        return "Left join ComputationUnit on Inventory.cSTComUnitCode=ComputationUnit.cComunitcode ";
    return "Left join ComputationUnit on  Inventory.cGroupCode=ComputationUnit.cGroupcode"
           " and ComputationUnit.bmainunit=0 and ComputationUnit.inumber=" +
           std::to_string(lngUnitNumber);
}

std::string DropGoodsWorkTable(const std::string& strName)
{
    return "if exists(select name from Tempdb..sysobjects where name = N'" + strName + "')  drop table " +
           InTempdb(strName);
}

}  // namespace kavelin
