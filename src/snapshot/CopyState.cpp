#include "snapshot/CopyState.h"

#include "frame/Statement.h"
#include "host/HostErrors.h"
#include "host/HostMachine.h"
#include "snapshot/Literal.h"

#include <utility>

namespace kavelin::snapshot {

namespace {

constexpr std::string_view kWhole = "whole";
constexpr std::string_view kBegun = "begun";
constexpr std::string_view kMark = "(mark)";  // no table's name

std::unique_ptr<Recordset> Open(Connection& connection, const std::string& sql)
{
    return connection.OpenRecordset(sql, CursorLocation::Client, CursorType::ForwardOnly, LockType::ReadOnly);
}

bool HasStateTable(Connection& connection)
{
    return !Open(connection, "select name from sysobjects where name = N'Kavelin_Copy' and xtype = 'U'")
                ->Eof();
}

std::string CreateStateTable()
{
    return JoinLines({
        "create table Kavelin_Copy (",
        "    cTable nvarchar(128) not null,",
        "    cState nvarchar(40)  not null,",
        "    primary key (cTable)",
        ")",
    });
}

}  // namespace

CopyState::CopyState(Connection& target) : cnnTarget(target), blnThere(HasStateTable(target))
{
    if (!blnThere)
        return;
    for (const auto rows = Open(cnnTarget, "select cTable, cState from Kavelin_Copy"); !rows->Eof();
         rows->MoveNext())
        dicStates[ToText(rows->Field(0))] = ToText(rows->Field(1));
}

bool CopyState::IsWhole(const std::string& table) const
{
    const auto found = dicStates.find(table);
    return found != dicStates.end() && found->second == kWhole;
}

void CopyState::Begin(Connection& source)
{
    if (!blnThere)
        cnnTarget.Execute(CreateStateTable());
    const bool wasThere = std::exchange(blnThere, true);
    const std::string mark = host::HexDigits(host::RandomGuid());
    Set(std::string(kMark), mark);
    const std::string seen = HasStateTable(source)
                                 ? "select cState from Kavelin_Copy where cTable = " + Literal(kMark) +
                                       " and cState = " + Literal(mark)
                                 : "";
    if (seen.empty() || Open(source, seen)->Eof())
        return;
    if (!wasThere)
        cnnTarget.Execute("drop table Kavelin_Copy");
    throw host::UsageError("FROM and TO are the same account.");
}

void CopyState::SetBegun(const std::string& table)
{
    Set(table, std::string(kBegun));
}

void CopyState::SetWhole(const std::string& table)
{
    Set(table, std::string(kWhole));
}

// One statement, so that a copy that ends at any moment leaves a table known that holds its rows.
void CopyState::Set(const std::string& table, const std::string& state)
{
    const std::string row = Literal(table), content = Literal(state);
    if (dicStates.contains(table))
        cnnTarget.Execute("update Kavelin_Copy set cState = " + content + " where cTable = " + row);
    else
        cnnTarget.Execute("insert into Kavelin_Copy (cTable, cState) values (" + row + ", " + content + ")");
    dicStates[table] = state;
}

}  // namespace kavelin::snapshot
