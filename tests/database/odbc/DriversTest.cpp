#include "database/odbc/Drivers.h"

#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace kavelin::odbc {
namespace {

const DriverChoice kPostgres = DriverNamed("PostgreSQL Unicode", "psqlodbcw.so");
const DriverChoice kFreeTds = DriverNamed("FreeTDS", "libtdsodbc.so");
const DriverChoice kSeventeen = DriverNamed("ODBC Driver 17 for SQL Server", "libodbc-17.so");
const DriverChoice kEighteen = DriverNamed("ODBC Driver 18 for SQL Server", "libodbc-18.so");

TEST(DriverNamed, KnowsTheDriversForAnSqlServer)
{
    EXPECT_EQ(kEighteen.kind, DriverKind::Vendor);
    EXPECT_EQ(kEighteen.version, 18);
    EXPECT_EQ(kFreeTds.kind, DriverKind::FreeTds);
    EXPECT_EQ(DriverNamed("books", "/opt/lib/libtdsodbc.so.0").kind, DriverKind::FreeTds);
    EXPECT_EQ(DriverNamed("/opt/lib/libtdsodbc.so").kind, DriverKind::FreeTds);
    EXPECT_EQ(kPostgres.kind, DriverKind::Other);
    EXPECT_EQ(DriverNamed("ODBC Driver X for SQL Server").kind, DriverKind::Other);
    EXPECT_EQ(DriverNamed("ODBC Driver for SQL Server").kind, DriverKind::Other);
}

TEST(ChooseDriver, TakesTheVendorsNewestThenFreeTds)
{
    EXPECT_EQ(ChooseDriver({kFreeTds, kSeventeen, kEighteen, kPostgres}).name, kEighteen.name);
    EXPECT_EQ(ChooseDriver({kEighteen, kSeventeen}).name, kEighteen.name);
    EXPECT_EQ(ChooseDriver({kPostgres, kFreeTds}).name, kFreeTds.name);
}

TEST(ChooseDriver, TakesTheOneThatIsNamed)
{
    EXPECT_EQ(ChooseDriver({kFreeTds, kEighteen}, "freetds").name, "FreeTDS");
    EXPECT_EQ(ChooseDriver({kEighteen, kFreeTds}, "libtdsodbc.so").name, "FreeTDS");
    const DriverChoice byPath = ChooseDriver({kEighteen}, "/opt/lib/libtdsodbc.so");
    EXPECT_EQ(byPath.name, "/opt/lib/libtdsodbc.so");
    EXPECT_EQ(byPath.kind, DriverKind::FreeTds);
}

TEST(ChooseDriver, TellsWhatToInstallWhenThereIsNone)
{
    try {
        ChooseDriver({kPostgres});
        FAIL();
    } catch (const ConnectionError& error) {
        EXPECT_STREQ(
            error.what(),
            "No ODBC driver for SQL Server is installed: install tdsodbc (FreeTDS) or the vendor's driver, "
            "or name one by Driver=. Installed are: PostgreSQL Unicode.");
    }
    EXPECT_THROW(ChooseDriver({kEighteen}, "Other Driver"), ConnectionError);
}

TEST(InstalledDrivers, ListsEachWithItsLibrary)
{
    for (const DriverChoice& driver : InstalledDrivers()) {
        EXPECT_FALSE(driver.name.empty());
        EXPECT_FALSE(driver.library.empty()) << driver.name;
    }
}

TEST(DriverForSqlServer, TakesTheOneThatTheEnvironmentNames)
{
    ::setenv("KAVELIN_ODBC_DRIVER", "/nowhere/libtdsodbc.so", 1);
    const DriverChoice driver = DriverForSqlServer();
    ::unsetenv("KAVELIN_ODBC_DRIVER");
    EXPECT_EQ(driver.name, "/nowhere/libtdsodbc.so");
}

}  // namespace
}  // namespace kavelin::odbc
