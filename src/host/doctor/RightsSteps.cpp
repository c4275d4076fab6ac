#include "host/doctor/RightsSteps.h"

#include "frame/Errors.h"
#include "frame/Value.h"
#include "host/doctor/ErrorKinds.h"

#include <fmt/format.h>

#include <string_view>

namespace kavelin::host {

namespace {

// A text that is lost where a driver or a server takes N'...' for a text of one code page, or for UCS-2.
constexpr std::string_view kWideText = "库存 café €5 𠮷";

// Drops the table, whatever became of it.
class ProbeTable {
  public:
    ProbeTable(Connection& connection, std::string name) : cnnAccount(connection), strName(std::move(name)) {}
    ~ProbeTable()
    {
        if (blnMade)
            DropQuiet();
    }
    ProbeTable(const ProbeTable&) = delete;
    ProbeTable& operator=(const ProbeTable&) = delete;

    void Make()
    {
        cnnAccount.Execute("create table " + strName + " (cText nvarchar(60) null, iNumber int not null)");
        blnMade = true;
    }
    void Widen() { cnnAccount.Execute("alter table " + strName + " add fMoney decimal(38, 6) null"); }
    void Fill()
    {
        cnnAccount.Execute("insert into " + strName + " (cText, iNumber) values (N'" +
                           std::string(kWideText) + "', 1)");
    }
    std::string Read()
    {
        const auto rows =
            cnnAccount.OpenRecordset("select cText from " + strName + " where iNumber = 1",
                                     CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
        return rows->Eof() || rows->Field(0).IsNull() ? "" : ToText(rows->Field(0));
    }
    void Drop()
    {
        cnnAccount.Execute("drop table " + strName);
        blnMade = false;
    }

    void DropQuiet() noexcept
    {
        try {
            Drop();
        } catch (const std::exception&) {
            // The step has failed already, and told why.
        }
    }

  private:
    Connection& cnnAccount;
    std::string strName;
    bool blnMade = false;
};

struct Place {
    const char* step;
    const char* name;    // for a person
    const char* prefix;  // of a table's name
    const char* advice;
};

constexpr Place kAccount = {
    "create",
    "the account's database",
    "",
    "Have the login granted create table in the account's database and the right to alter its schema; "
    "db_datareader, db_datawriter and db_ddladmin together give them.",
};

constexpr Place kTempdb = {
    "tempdb",
    "tempdb",
    "tempdb..",
    "Have the login made a user of tempdb with the roles db_datareader, db_datawriter and db_ddladmin. A "
    "server makes tempdb anew when it starts: a start procedure, or a user in the database model, keeps the "
    "right.",
};

std::string TableIn(const Place& place, const std::string& number)
{
    return fmt::format("{}KavelinDoctor_{}", place.prefix, number);
}

DoctorStep ExaminePlace(Connection& account, const Place& place, const std::string& number)
{
    try {
        ProbeTable table(account, TableIn(place, number));
        table.Make();
        table.Widen();
        table.Fill();
        const std::string text = table.Read();
        table.Drop();
        if (text != kWideText)
            return Failed(
                place.step, fmt::format("Texts don't come back from {} as they were written.", place.name),
                "See whether the driver is set to convert texts to a code page: ClientCharset=UTF-8 for "
                "FreeTDS, AutoTranslate=no for others.");
        return Passed(place.step, fmt::format("The login may make tables in {}.", place.name));
    } catch (const CancelledError&) {
        throw;
    } catch (const DatabaseError& error) {
        if (KindOf(error.Get()) == ErrorKind::ConnectionLost)
            throw;
        return Failed(place.step, error.what(), place.advice);
    }
}

}  // namespace

DoctorStep ExamineTables(Connection& account, const std::string& number)
{
    return ExaminePlace(account, kAccount, number);
}

DoctorStep ExamineTablesOfTempdb(Connection& account, const std::string& number)
{
    return ExaminePlace(account, kTempdb, number);
}

void DropTablesQuiet(Connection& account, const std::string& number) noexcept
{
    for (const Place* place : {&kAccount, &kTempdb})
        ProbeTable(account, TableIn(*place, number)).DropQuiet();
}

}  // namespace kavelin::host
