#include "host/HostCallArgs.h"

#include "frame/Errors.h"
#include "frame/Text.h"
#include "frame/Value.h"

#include <utility>

namespace kavelin::host {

namespace {

[[noreturn]] void ThrowNoMember(std::string_view object, std::string_view member)
{
    throw Error("The " + std::string(object) + " has no member " + std::string(member) + ".");
}

}  // namespace

Variant HostDataSource::Get(std::string_view member)
{
    if (EqualsNoCase(member, "sql"))
        return Value(strTable);
    if (EqualsNoCase(member, "Type") || EqualsNoCase(member, "Typecode"))
        return Value(std::int32_t{intType});
    ThrowNoMember("data source", member);
}

void HostDataSource::Put(std::string_view member, const Variant& value)
{
    if (!EqualsNoCase(member, "Type") && !EqualsNoCase(member, "Typecode"))
        ThrowNoMember("data source", member);
    SetType(ToInt16(ValueOf(value, member)));
}

Variant HostDataSource::Call(std::string_view member, const std::vector<Variant>&)
{
    ThrowNoMember("data source", member);
}

HostCallArgs::HostCallArgs(std::string table, std::shared_ptr<ReportFilterObject> filter,
                           std::string language, HostObjectPtr manager)
    : objDataSource(std::make_shared<HostDataSource>(std::move(table))),
      objFilter(std::move(filter)),
      strLanguage(std::move(language)),
      objManager(std::move(manager))
{
}

Variant HostCallArgs::Get(std::string_view member)
{
    if (EqualsNoCase(member, "DataSource"))
        return HostObjectPtr(DataSource());
    if (EqualsNoCase(member, "Login"))
        return HostObjectPtr(Login());
    if (EqualsNoCase(member, "RawFilter"))
        return HostObjectPtr(RawFilter());
    if (EqualsNoCase(member, "Args"))
        return HostObjectPtr(Args());
    if (EqualsNoCase(member, "LangID"))
        return Value(LangID());
    if (EqualsNoCase(member, "ObjreportManager"))
        return objManager;
    ThrowNoMember("call", member);
}

void HostCallArgs::Put(std::string_view member, const Variant&)
{
    ThrowNoMember("call", member);
}

Variant HostCallArgs::Call(std::string_view member, const std::vector<Variant>&)
{
    ThrowNoMember("call", member);
}

}  // namespace kavelin::host
