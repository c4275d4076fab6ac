#include "host/ServerAccount.h"

#include "database/odbc/ConnectionText.h"
#include "database/odbc/OdbcText.h"
#include "frame/Text.h"

namespace kavelin::host {

using odbc::ConnectionText;
using odbc::Meaning;

bool OnServer(const std::string& connectionString)
{
    return odbc::NamesServer(connectionString);
}

bool WantsPassword(const std::string& connectionString)
{
    if (!OnServer(connectionString))
        return false;
    const ConnectionText text = ConnectionText::Parse(connectionString);
    return !text.Get(Meaning::User).empty() && !odbc::MeansYes(text.Get(Meaning::IntegratedSecurity));
}

std::string WithPassword(const std::string& connectionString, const std::string& password)
{
    if (password.empty())
        return connectionString;
    if (ConnectionText::Parse(connectionString).IsOdbc())
        return connectionString + ";PWD=" + odbc::OdbcValue(password, odbc::DriverKind::Other);
    return connectionString + ";Password=\"" + ReplaceAll(password, "\"", "\"\"") + "\"";
}

std::string ServerShown(const std::string& connectionString)
{
    const ConnectionText text = ConnectionText::Parse(connectionString);
    for (const Meaning meaning : {Meaning::Server, Meaning::DataSourceName, Meaning::FileDataSourceName})
        if (std::string value = text.Get(meaning); !value.empty())
            return value;
    return "its server";
}

}  // namespace kavelin::host
