#include "host/doctor/ConnectionSteps.h"

#include "frame/Errors.h"
#include "frame/Text.h"
#include "host/HostConnection.h"
#include "host/ServerAccount.h"
#include "host/doctor/ErrorKinds.h"

#include <fmt/format.h>

#include <algorithm>
#include <filesystem>

namespace kavelin::host {

namespace {

using odbc::ConnectionText;
using odbc::Meaning;

constexpr const char* kConnection = "connection";
constexpr const char* kDriver = "driver";
constexpr const char* kServer = "server";
constexpr const char* kLogin = "login";
constexpr const char* kDatabase = "database";

constexpr std::int32_t kLoginSeconds = 15;

bool IsIntegrated(const ConnectionText& text)
{
    return odbc::MeansYes(text.Get(Meaning::IntegratedSecurity));
}

// What the provider's form must say and doesn't; a passed step if nothing is missing.
DoctorStep ExamineProviderForm(const ConnectionText& text)
{
    const std::string server = text.Get(Meaning::Server);
    if (server.empty())
        return Failed(kConnection, "The connection string names no server.",
                      "Add Data Source=tcp:HOST,1433.");
    try {
        odbc::ParseServer(server);
    } catch (const ConnectionError& error) {
        return Failed(kConnection, error.what(), "Write Data Source=tcp:HOST,1433 or HOST\\INSTANCE.");
    }
    if (text.Get(Meaning::Database).empty())
        return Failed(kConnection, "The connection string names no database.",
                      "Add Initial Catalog=DATABASE, the account's.");
    if (text.Get(Meaning::User).empty() && !IsIntegrated(text))
        return Failed(kConnection, "The connection string names no user.",
                      "Add User ID=NAME, or Integrated Security=SSPI for a login by the system's own user.");
    return Passed(kConnection, fmt::format("Server {}, database {}, {}.", server, text.Get(Meaning::Database),
                                           IsIntegrated(text) ? "the system's own user"
                                                              : "user " + text.Get(Meaning::User)));
}

std::string NamesOf(const std::vector<odbc::DriverChoice>& drivers)
{
    std::string names;
    for (const odbc::DriverChoice& driver : drivers)
        names += (names.empty() ? "" : ", ") + driver.name;
    return names;
}

std::string InsteadOf(const std::vector<odbc::DriverChoice>& installed)
{
    return installed.empty() ? "Install it; this machine has no ODBC driver."
                             : fmt::format("Install it, or name one that is: {}.", NamesOf(installed));
}

std::string Shown(const odbc::DriverChoice& driver)
{
    return driver.library.empty() || driver.library == driver.name
               ? driver.name
               : fmt::format("{}, {}", driver.name, driver.library);
}

bool ExistsFile(const std::string& path)
{
    std::error_code ignored;
    return path.starts_with('/') && std::filesystem::exists(path, ignored);
}

// The string without its database, so that only the login counts.
std::string WithoutDatabase(const std::string& connectionString)
{
    const ConnectionText parsed = ConnectionText::Parse(connectionString);
    std::string text;
    for (const ConnectionText::Part& part : parsed.Parts())
        if (part.meaning != Meaning::Database)
            text += (text.empty() ? "" : ";") + part.written;
    return text;
}

// Whether the server takes the login if no database is asked for.
bool LogsInWithoutDatabase(const AccountLogin& login, const ConnectionSource& connections)
{
    try {
        OpenInTime(connections, WithoutDatabase(login.ConnectionText()))->Close();
        return true;
    } catch (const CancelledError&) {
        throw;
    } catch (const DatabaseError&) {
        return false;
    }
}

// Throws ConnectionError for a server or a port that is none.
odbc::ServerAddress AddressIn(const ConnectionText& text)
{
    const odbc::ServerAddress server = odbc::ParseServer(text.Get(Meaning::Server));
    const std::string port = text.Get(Meaning::Port);
    if (port.empty())
        return server;
    const bool digits = server.host.find(':') != server.host.npos;
    return odbc::ParseServer((digits ? "[" + server.host + "]" : server.host) + "," + port);
}

DoctorStep FailedLogin(const DatabaseError& error)
{
    switch (KindOf(error.Get())) {
        case ErrorKind::WrongLogin:
            return Failed(
                kLogin, error.what(),
                "See whether user and password are right, whether the server allows logins by name and "
                "password, and whether the login is enabled.");
        case ErrorKind::NoDriver:
            return Failed(
                kLogin, error.what(),
                "Describe the data source in odbc.ini and its driver in odbcinst.ini, or name a driver by "
                "Driver=.");
        default:
            return Failed(
                kLogin, error.what(),
                "See whether the port is that of an SQL Server, and whether encryption is asked for that "
                "one side doesn't have: Encrypt=no, or TrustServerCertificate=yes for a certificate of "
                "the server's own making.");
    }
}

std::string UserShown(const ConnectionText& text)
{
    const std::string user = text.Get(Meaning::User);
    return user.empty() ? "Logged in." : fmt::format("Logged in as {}.", user);
}

Opened FailedOnServer(const AccountLogin& login, const ConnectionSource& connections,
                      const DatabaseError& error)
{
    const ConnectionText text = ConnectionText::Parse(login.connectionString);
    const std::string database = text.Get(Meaning::Database);
    const ErrorKind kind = KindOf(error.Get());
    const bool mayBeDatabase = kind == ErrorKind::WrongLogin || kind == ErrorKind::Other;
    const bool isDatabase = kind == ErrorKind::NoDatabase ||
                            (!database.empty() && mayBeDatabase && LogsInWithoutDatabase(login, connections));
    if (!isDatabase)
        return {{FailedLogin(error), Skipped(kDatabase, "There is no login to open it with.")}, nullptr};
    return {{Passed(kLogin, UserShown(text)),
             Failed(kDatabase, error.what(),
                    "See whether Initial Catalog is spelled right, and have the login made a user of that "
                    "database.")},
            nullptr};
}

}  // namespace

std::shared_ptr<Connection> OpenInTime(const ConnectionSource& connections,
                                       const std::string& connectionString)
{
    auto connection = connections.Create("doctor");
    connection->SetCursorLocation(CursorLocation::Client);
    connection->SetConnectionString(connectionString);
    connection->SetConnectionTimeout(kLoginSeconds);
    connection->SetCommandTimeout(0);
    connection->Open("", "", -1);
    return connection;
}

DoctorStep ExamineConnectionText(const std::string& connectionString)
{
    if (IsEmbedded(connectionString))
        return Passed(kConnection, "An embedded account.");
    try {
        const ConnectionText text = ConnectionText::Parse(connectionString);
        if (!OnServer(connectionString))
            return Failed(
                kConnection, "The connection string names neither a server nor an embedded account.",
                "Write Provider=SQLOLEDB;Data Source=tcp:HOST,1433;Initial Catalog=DATABASE;User ID=NAME, "
                "an ODBC string, or the path of an embedded account.");
        if (text.IsOdbc())
            return Passed(kConnection, "An ODBC connection string.");
        return ExamineProviderForm(text);
    } catch (const ConnectionError& error) {
        return Failed(kConnection, error.what(),
                      "Write KEY=VALUE;KEY=VALUE, and a value with a semicolon or quote in double quotes.");
    }
}

DoctorStep ExamineDriver(const ConnectionText& text, const DriversOfMachine& drivers)
{
    const std::string named = text.Get(Meaning::Driver);
    if (!text.IsOdbc()) {
        try {
            return Passed(kDriver, Shown(drivers.forServer()) + ".");
        } catch (const ConnectionError& error) {
            return Failed(kDriver, error.what(),
                          "Install FreeTDS's driver (on Debian: apt install tdsodbc) or the server's own.");
        }
    }
    if (named.empty())
        return Skipped(kDriver, fmt::format("The data source {} names its driver itself.",
                                            text.Get(Meaning::DataSourceName)));
    const std::vector<odbc::DriverChoice> installed = drivers.installed();
    const auto found = std::ranges::find_if(installed, [&](const odbc::DriverChoice& driver) {
        return EqualsNoCase(driver.name, named) || driver.library == named;
    });
    if (found != installed.end())
        return Passed(kDriver, Shown(*found) + ".");
    if (ExistsFile(named))
        return Passed(kDriver, named + ".");
    return Failed(kDriver, fmt::format("The driver {} is not installed.", named), InsteadOf(installed));
}

DoctorStep ExamineServer(const ConnectionText& text, const Probe& probe)
{
    const std::string written = text.Get(Meaning::Server);
    if (written.empty())
        return Skipped(kServer, "The connection string names no server; its driver or data source knows.");
    if (text.IsOdbc() && odbc::DriverNamed(text.Get(Meaning::Driver)).kind == odbc::DriverKind::Other)
        return Skipped(kServer, "Only the driver knows how its servers are reached.");
    odbc::ServerAddress server;
    try {
        server = AddressIn(text);
    } catch (const ConnectionError& error) {
        return Failed(kServer, error.what(), "Write Server=HOST and, if it isn't 1433, Port=PORT.");
    }

    const ProbeResult result = probe(server);
    const std::string place = fmt::format("{} port {}", result.address, result.port);
    switch (result.reach) {
        case Reach::Answers: break;
        case Reach::UnknownName:
            return Failed(
                kServer, fmt::format("The name {} has no address.", server.host),
                "See whether it is spelled right and known to this machine's name service, or write "
                "the address itself.");
        case Reach::Refused:
            return Failed(kServer, fmt::format("Nobody listens at {}.", place),
                          "See whether the server runs, takes TCP/IP connections, and at which port.");
        case Reach::Silent:
            return Failed(kServer, fmt::format("No answer from {}.", place),
                          "See whether the machine runs and a firewall lets the port through.");
        case Reach::NoInstance:
            return Failed(
                kServer,
                fmt::format("{} doesn't tell the port of its instance {}.", server.host, server.instance),
                "See whether the instance runs and the machine's browser service with it (UDP 1434), or "
                "write the port itself: Data Source=tcp:HOST,PORT.");
    }
    return Passed(kServer, fmt::format("{} answers at {}.", server.host, place));
}

Opened ExamineLogin(const AccountLogin& login, const ConnectionSource& connections)
{
    try {
        auto connection = OpenInTime(connections, login.ConnectionText());
        if (!login.IsOnServer())
            return {{Skipped(kLogin, "An embedded account takes none."), Passed(kDatabase, "It is open.")},
                    std::move(connection)};
        const ConnectionText text = ConnectionText::Parse(login.connectionString);
        const std::string database = text.Get(Meaning::Database);
        return {{Passed(kLogin, UserShown(text)),
                 Passed(kDatabase, database.empty() ? "It is open." : fmt::format("{} is open.", database))},
                std::move(connection)};
    } catch (const CancelledError&) {
        throw;
    } catch (const DatabaseError& error) {
        if (login.IsOnServer())
            return FailedOnServer(login, connections, error);
        return {{Skipped(kLogin, "An embedded account takes none."),
                 Failed(kDatabase, error.what(), "Name the file of an account; kavelin demo makes one.")},
                nullptr};
    }
}

}  // namespace kavelin::host
