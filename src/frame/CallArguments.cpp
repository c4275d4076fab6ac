#include "frame/CallArguments.h"

#include "frame/Value.h"

namespace kavelin {

namespace {

HostObjectPtr ReportManagerOf(LateBound& e)
{
    const Variant answer = e.Get("ObjreportManager");
    const auto* object = std::get_if<HostObjectPtr>(&answer);
    return object ? *object : nullptr;
}

}  // namespace

std::shared_ptr<ReportFilterObject> EarlyArguments::RawFilter()
{
    return objArguments.RawFilter();
}

std::shared_ptr<LoginContext> EarlyArguments::Login()
{
    return objArguments.Login();
}

HostObjectPtr EarlyArguments::ObjreportManager()
{
    return ReportManagerOf(objArguments);
}

Value EarlyArguments::ArgItem(std::string_view key)
{
    return ValueOf(objArguments.Args()->Item(key), "an argument");
}

std::string EarlyArguments::LangID()
{
    return objArguments.LangID();
}

void EarlyArguments::SetDataSourceType(std::int16_t type)
{
    objDataSource = objArguments.DataSource();
    objDataSource->SetType(type);
}

std::string EarlyArguments::Sql()
{
    return objDataSource->sql();
}

std::shared_ptr<ReportFilterObject> LateArguments::RawFilter()
{
    return ObjectOf<ReportFilterObject>(objArguments.Get("RawFilter"), "RawFilter");
}

std::shared_ptr<LoginContext> LateArguments::Login()
{
    return ObjectOf<LoginContext>(objArguments.Get("Login"), "Login");
}

HostObjectPtr LateArguments::ObjreportManager()
{
    return ReportManagerOf(objArguments);
}

Value LateArguments::ArgItem(std::string_view key)
{
    const auto arguments = ObjectOf<LateBound>(objArguments.Get("Args"), "Args");
    return ValueOf(arguments->Call("Item", {Value(key)}), "an argument");
}

std::string LateArguments::LangID()
{
    return ToText(ValueOf(objArguments.Get("LangID"), "LangID"));
}

void LateArguments::SetDataSourceType(std::int16_t type)
{
    objDataSource = ObjectOf<LateBound>(objArguments.Get("DataSource"), "DataSource");
    objDataSource->Put(strTypeMember, Value(std::int32_t{type}));
}

std::string LateArguments::Sql()
{
    return ToText(ValueOf(objDataSource->Get("sql"), "sql"));
}

}  // namespace kavelin
