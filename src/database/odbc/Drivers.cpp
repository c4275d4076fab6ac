#include "database/odbc/Drivers.h"

#include "database/odbc/AdapterErrors.h"
#include "database/odbc/Handles.h"
#include "database/odbc/Utf16.h"
#include "frame/Text.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <filesystem>

namespace kavelin::odbc {

namespace {

constexpr const char* kWantedVariable = "KAVELIN_ODBC_DRIVER";

constexpr std::string_view kVendorBegin = "ODBC Driver ";
constexpr std::string_view kVendorEnd = " for SQL Server";
constexpr std::string_view kFreeTdsName = "FreeTDS";
constexpr std::string_view kFreeTdsLibrary = "libtdsodbc";

constexpr std::string_view kUsualFreeTdsPaths[] = {
    "/usr/lib/x86_64-linux-gnu/odbc/libtdsodbc.so",
    "/usr/lib/aarch64-linux-gnu/odbc/libtdsodbc.so",
    "/usr/lib64/libtdsodbc.so.0",
    "/usr/lib/libtdsodbc.so.0",
    "/usr/local/lib/libtdsodbc.so",
    "/opt/homebrew/lib/libtdsodbc.so",
};

// 18 of "ODBC Driver 18 for SQL Server", 0 of any other name.
int VendorVersion(std::string_view name)
{
    if (name.size() <= kVendorBegin.size() + kVendorEnd.size() ||
        !EqualsNoCase(name.substr(0, kVendorBegin.size()), kVendorBegin) ||
        !EqualsNoCase(name.substr(name.size() - kVendorEnd.size()), kVendorEnd))
        return 0;
    name.remove_prefix(kVendorBegin.size());
    name.remove_suffix(kVendorEnd.size());
    int version = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), version);
    return error == std::errc{} && end == name.data() + name.size() ? version : 0;
}

bool IsFreeTds(std::string_view name, std::string_view library)
{
    return EqualsNoCase(name, kFreeTdsName) || library.find(kFreeTdsLibrary) != std::string_view::npos ||
           name.find(kFreeTdsLibrary) != std::string_view::npos;
}

// The value of `Driver` among `key=value` texts with a zero behind each and one more at the end.
std::string LibraryAmong(std::u16string_view attributes)
{
    constexpr std::string_view kKey = "Driver=";
    while (!attributes.empty() && attributes.front() != u'\0') {
        const std::size_t end = std::min(attributes.find(u'\0'), attributes.size());
        const std::string attribute = FromUtf16(attributes.substr(0, end));
        if (EqualsNoCase(attribute.substr(0, kKey.size()), kKey))
            return attribute.substr(kKey.size());
        attributes.remove_prefix(std::min(end + 1, attributes.size()));
    }
    return {};
}

std::vector<DriverChoice> RegisteredDrivers()
{
    constexpr SQLSMALLINT kNameUnits = 512, kAttributeUnits = 8192;
    std::u16string name(kNameUnits, u'\0'), attributes(kAttributeUnits, u'\0');
    std::vector<DriverChoice> drivers;
    const Handle environment = NewEnvironment();
    for (SQLUSMALLINT direction = SQL_FETCH_FIRST;; direction = SQL_FETCH_NEXT) {
        std::ranges::fill(attributes, u'\0');
        SQLSMALLINT nameLength = 0, attributeLength = 0;
        const SQLRETURN result = SQLDriversW(
            environment.Get(), direction, reinterpret_cast<SQLWCHAR*>(name.data()), kNameUnits, &nameLength,
            reinterpret_cast<SQLWCHAR*>(attributes.data()), kAttributeUnits, &attributeLength);
        if (!SQL_SUCCEEDED(result))
            return drivers;
        const auto length = static_cast<std::size_t>(std::clamp<SQLSMALLINT>(nameLength, 0, kNameUnits - 1));
        drivers.push_back(
            DriverNamed(FromUtf16(std::u16string_view(name).substr(0, length)), LibraryAmong(attributes)));
    }
}

std::string NamesOf(const std::vector<DriverChoice>& drivers)
{
    std::string names;
    for (const DriverChoice& driver : drivers)
        names += (names.empty() ? "" : ", ") + driver.name;
    return names.empty() ? "none" : names;
}

}  // namespace

DriverChoice DriverNamed(std::string_view name, std::string_view library)
{
    DriverChoice driver;
    driver.name = name;
    driver.library = library;
    driver.version = VendorVersion(name);
    if (driver.version > 0)
        driver.kind = DriverKind::Vendor;
    else if (IsFreeTds(name, library))
        driver.kind = DriverKind::FreeTds;
    return driver;
}

std::vector<DriverChoice> InstalledDrivers()
{
    std::vector<DriverChoice> drivers = RegisteredDrivers();
    const bool hasFreeTds =
        std::ranges::any_of(drivers, [](const auto& driver) { return driver.kind == DriverKind::FreeTds; });
    if (!hasFreeTds)
        for (const std::string_view path : kUsualFreeTdsPaths)
            if (std::error_code error; std::filesystem::exists(path, error))
                drivers.push_back(DriverNamed(path, path));
    return drivers;
}

DriverChoice ChooseDriver(const std::vector<DriverChoice>& installed, std::string_view wanted)
{
    if (!wanted.empty()) {
        for (const DriverChoice& driver : installed)
            if (EqualsNoCase(driver.name, wanted) || driver.library == wanted)
                return driver;
        if (wanted.find('/') != std::string_view::npos)
            return DriverNamed(wanted, wanted);
        throw NotConnected("The ODBC driver '" + std::string(wanted) +
                           "' is not installed. Installed are: " + NamesOf(installed) + ".");
    }

    const DriverChoice* best = nullptr;
    for (const DriverChoice& driver : installed) {
        if (driver.kind == DriverKind::Other)
            continue;
        const bool better = !best || (driver.kind == DriverKind::Vendor && driver.version > best->version);
        if (better)
            best = &driver;
    }
    if (!best)
        throw NotConnected(
            "No ODBC driver for SQL Server is installed: install tdsodbc (FreeTDS) or the vendor's "
            "driver, or name one by Driver=. Installed are: " +
            NamesOf(installed) + ".");
    return *best;
}

DriverChoice DriverForSqlServer()
{
    const char* wanted = std::getenv(kWantedVariable);
    return ChooseDriver(InstalledDrivers(), wanted ? wanted : "");
}

}  // namespace kavelin::odbc
