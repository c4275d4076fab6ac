#include "demo/check/CheckFacts.h"

#include "frame/Value.h"

#include <string_view>

namespace kavelin::demo {

namespace {

constexpr int kFreeItems = 10;

std::unique_ptr<Recordset> Open(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
}

std::string ParameterOf(Connection& connection, std::string_view name)
{
    const auto rows = Open(connection,
                           "select isnull(cValue, N'') from AccInformation where cSysID = N'IA'"
                           " and cName = N'" +
                               std::string(name) + "'");
    return rows->Eof() ? "" : ToText(rows->Field(0));
}

}  // namespace

CheckFacts ReadFacts(Connection& connection)
{
    CheckFacts facts;
    const std::string style = ParameterOf(connection, "cValueStyle");
    facts.blnByDepartment = style == "按部门核算";
    facts.blnByWarehouse = !facts.blnByDepartment && style != "按存货核算";
    facts.blnGoodsSent = ParameterOf(connection, "bSaleType") == "发出商品";
    facts.strFirstDay = ParameterOf(connection, "dIAStartDate");

    std::string columns;
    for (int number = 1; number <= kFreeItems; ++number)
        columns += (number == 1 ? "" : ", ") + ("sum(case when bCheckFree" + std::to_string(number)) +
                   " = 1 then 1 else 0 end)";
    const auto kept = Open(connection, "select " + columns + " from Inventory");
    for (int number = 1; number <= kFreeItems; ++number)
        if (const Value items = kept->Field(number - 1); !items.IsNull() && ToInt32(items) > 0)
            facts.arrFreeItems.push_back(number);
    return facts;
}

}  // namespace kavelin::demo
