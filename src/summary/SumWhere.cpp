#include "summary/SumWhere.h"

#include "frame/FilterWalk.h"
#include "frame/PermissionColumns.h"

#include <string_view>

namespace kavelin {

namespace {

// A text that is no date stays as it is.
std::string DateText(const Value& value)
{
    return IsDate(value) ? FormatDate(ToDate(value)) : FilterText(value);
}

std::string DayOf(const Value& value)
{
    return IsDate(value) ? DateText(value) : "";
}

std::string Joined(const std::string& first, std::string_view joint, const std::string& second)
{
    return first.empty() ? second : first + std::string(joint) + second;
}

// Lines without a warehouse pass any choice of warehouses.
std::string InventoryFilter(const SumArguments& arguments)
{
    const struct {
        std::string_view joint, head;
        const std::string& value;
        std::string_view tail;
    } conditions[] = {
        {" And ", " Inventory.cInvCCode Like N'", arguments.strInvCCode, "%'"},
        {" And ", " Inventory.cInvCode>= N'", arguments.strInvStart, "'"},
        {" And ", " Inventory.cInvCode<= N'", arguments.strInvEnd, "'"},
        {" And ", "( cwhcode in (", arguments.strWhDepCode, " ) or cwhcode is  null) "},
        {" AND ", " cItemCode= N'", arguments.itemCode, "'"},
        {" AND ", " cItem_Class= N'", arguments.itemCls, "'"},
    };
    std::string filter;
    for (const auto& condition : conditions)
        if (!condition.value.empty())
            filter = Joined(filter, condition.joint,
                            std::string(condition.head) + condition.value + std::string(condition.tail));
    return filter;
}

// What the user may see. With direct business and no choice of warehouses, only direct business without a
// warehouse is read, whatever the user's warehouses are.
std::string Permissions(const SumArguments& arguments, std::string_view report, std::string_view directOnly)
{
    const auto columns = PermissionColumnsOf(report);
    const std::string warehouse = BuildPermissionClauses(columns.first(1));
    const bool onlyDirect = arguments.strWhDepCode.empty() && arguments.bytDirect == 1;
    return (onlyDirect ? " AND " + std::string(directOnly) : warehouse) +
           BuildPermissionClauses(columns.subspan(1));
}

}  // namespace

SumPeriod PeriodOf(const SumArguments& arguments, const std::string& moduleStart)
{
    const std::string start = DateText(arguments.varDateStart);
    const bool fromModuleStart = start.empty() || start < moduleStart;
    return {moduleStart, DayOf(fromModuleStart ? Value(moduleStart) : arguments.varDateStart),
            DayOf(arguments.varDateEnd)};
}

LedgerWheres BuildLedgerWheres(const SumArguments& arguments, const SumPeriod& period)
{
    const std::string where =
        "where cVouType<> N'33' " +
        Permissions(arguments, "clsIASFCReport", " cwhcode is null and left(cbustype,2) =N'直运' ");
    const std::string filter = InventoryFilter(arguments);

    std::string opening, movement;
    if (!period.strStart.empty()) {
        movement = Joined(filter, " And ", " dKeepDate>= N'" + period.strStart + "' and imonth<> 0 ");
        opening = Joined(filter, " And ", " (dKeepDate< N'" + period.strStart + "' or imonth=0) ");
    }
    if (!period.strEnd.empty())
        movement = Joined(movement, " And ", " dKeepDate<= N'" + period.strEnd + " '");

    const auto whole = [&](const std::string& dates) {
        return where + " and " + dates + " and cVouType<> N'33' and " + arguments.strDefineSub;
    };
    return {whole(opening), whole(movement)};
}

// A document dated before the module's start can't reach the ledger's opening any more: it moves in every
// period.
std::string BuildUnpostedWhere(const SumArguments& arguments, const SumPeriod& period)
{
    std::string where =
        "where  isnull(caccounter,'')=''  " +
        Permissions(arguments, "clsIASFCReport unposted", " cwhcode is null  and left(cbustype,2) =N'直运'");
    if (!period.strStart.empty())
        where += " and " + Joined(InventoryFilter(arguments), " And ",
                                  " ( dVouDate>= N'" + period.strStart + "' or dVouDate< N'" +
                                      period.strModuleStart + "' ) ");
    if (!period.strEnd.empty())
        where += " And  dVouDate<= N'" + period.strEnd + "'";
    return where + " and " + arguments.strDefineSub;
}

}  // namespace kavelin
