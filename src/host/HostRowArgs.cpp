#include "host/HostRowArgs.h"

#include "frame/Errors.h"
#include "frame/Value.h"

#include <utility>

namespace kavelin::host {

namespace {

[[noreturn]] void ThrowNoMember(std::string_view object, std::string_view member)
{
    throw Error("The " + std::string(object) + " has no member " + std::string(member) + ".");
}

// What a report finds as FltArgs.
class ReportArguments : public LateBound {
  public:
    explicit ReportArguments(HostObjectPtr manager) : objManager(std::move(manager)) {}

    Variant Get(std::string_view member) override
    {
        if (!EqualsNoCase(member, "ObjreportManager"))
            ThrowNoMember("report's arguments", member);
        return objManager;
    }
    void Put(std::string_view member, const Variant&) override
    {
        ThrowNoMember("report's arguments", member);
    }
    Variant Call(std::string_view member, const std::vector<Variant>&) override
    {
        ThrowNoMember("report's arguments", member);
    }

  private:
    HostObjectPtr objManager;
};

}  // namespace

HostRow::HostRow(const Recordset& rows)
{
    for (int field = 0; field < rows.FieldCount(); ++field) {
        const Value value = rows.Field(field);
        dicCells[rows.FieldName(field)] = value.IsNull() ? "" : ToText(value);
    }
}

std::string HostRow::GetData(const std::string& column)
{
    const auto cell = dicCells.find(column);
    if (cell == dicCells.end())
        throw Error("The row has no column " + column + ".");
    return cell->second;
}

Variant HostRow::Get(std::string_view member)
{
    ThrowNoMember("row", member);
}

void HostRow::Put(std::string_view member, const Variant&)
{
    ThrowNoMember("row", member);
}

Variant HostRow::Call(std::string_view member, const std::vector<Variant>& arguments)
{
    if (!EqualsNoCase(member, "GetData") || arguments.size() != 1)
        ThrowNoMember("row", member);
    return Value(GetData(ToText(ValueOf(arguments[0], member))));
}

HostRowArgs::HostRowArgs(std::shared_ptr<LoginContext> login, std::string action,
                         std::shared_ptr<HostRow> row, HostObjectPtr manager)
    : objLogin(std::move(login)),
      strAction(std::move(action)),
      objRow(std::move(row)),
      objManager(std::move(manager))
{
}

Variant HostRowArgs::Get(std::string_view member)
{
    if (EqualsNoCase(member, "Login"))
        return HostObjectPtr(objLogin);
    if (EqualsNoCase(member, "Action"))
        return Value(strAction);
    if (EqualsNoCase(member, "RelateData"))
        return HostObjectPtr(std::static_pointer_cast<LateBound>(objRow));
    if (EqualsNoCase(member, "FltArgs"))
        return HostObjectPtr(std::make_shared<ReportArguments>(objManager));
    ThrowNoMember("call", member);
}

void HostRowArgs::Put(std::string_view member, const Variant&)
{
    ThrowNoMember("call", member);
}

Variant HostRowArgs::Call(std::string_view member, const std::vector<Variant>&)
{
    ThrowNoMember("call", member);
}

}  // namespace kavelin::host
