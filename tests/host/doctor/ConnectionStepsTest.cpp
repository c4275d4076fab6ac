#include "host/doctor/ConnectionSteps.h"

#include "frame/Errors.h"
#include "host/doctor/FakeAccount.h"

#include <gtest/gtest.h>

#include <optional>

namespace kavelin::host {
namespace {

using odbc::ConnectionText;

constexpr const char* kBooks = "Provider=SQLOLEDB;Data Source=tcp:db,1433;Initial Catalog=Books;User ID=sa";

TEST(ConnectionStep, PassesForWhatALoginNeeds)
{
    EXPECT_EQ(ExamineConnectionText(kBooks).found, "Server tcp:db,1433, database Books, user sa.");
    EXPECT_EQ(
        ExamineConnectionText("Data Source=db\\books;Initial Catalog=Books;Integrated Security=SSPI").found,
        "Server db\\books, database Books, the system's own user.");
    EXPECT_EQ(ExamineConnectionText("Driver={FreeTDS};Server=db").found, "An ODBC connection string.");
    EXPECT_EQ(ExamineConnectionText("Embedded Account=x.kavelin").found, "An embedded account.");
}

TEST(ConnectionStep, TellsWhatTheStringLacks)
{
    const struct {
        const char* text;
        const char* found;
    } cases[] = {
        {"Initial Catalog=Books", "The connection string names neither a server nor an embedded account."},
        {"Provider=SQLOLEDB;Initial Catalog=Books;User ID=sa", "The connection string names no server."},
        {"Data Source=db;User ID=sa", "The connection string names no database."},
        {"Data Source=db;Initial Catalog=Books", "The connection string names no user."},
    };
    for (const auto& c : cases) {
        const DoctorStep step = ExamineConnectionText(c.text);
        EXPECT_EQ(step.outcome, StepOutcome::Failed) << c.text;
        EXPECT_EQ(step.found, c.found);
        EXPECT_FALSE(step.advice.empty()) << c.text;
    }
    for (const char* text :
         {"Provider", "Data Source=\"db;Initial Catalog=Books", "Data Source=np:db;Initial Catalog=B"})
        EXPECT_EQ(ExamineConnectionText(text).outcome, StepOutcome::Failed) << text;
}

DriversOfMachine With(std::vector<odbc::DriverChoice> installed)
{
    return {[installed] { return installed; }, [installed] { return odbc::ChooseDriver(installed); }};
}

TEST(DriverStep, NamesTheBestDriverForTheProvidersForm)
{
    const auto drivers = With(
        {odbc::DriverNamed("SQLite3", "/lib/sqlite.so"), odbc::DriverNamed("FreeTDS", "/lib/libtdsodbc.so")});
    EXPECT_EQ(ExamineDriver(ConnectionText::Parse(kBooks), drivers).found, "FreeTDS, /lib/libtdsodbc.so.");
}

TEST(DriverStep, FailsOnAMachineWithoutADriverForTheServer)
{
    const DoctorStep step =
        ExamineDriver(ConnectionText::Parse(kBooks), With({odbc::DriverNamed("SQLite3", "/lib/sqlite.so")}));
    EXPECT_EQ(step.outcome, StepOutcome::Failed);
    EXPECT_NE(step.advice.find("tdsodbc"), std::string::npos);
}

TEST(DriverStep, FailsForADriverThatIsNotInstalled)
{
    const auto drivers = With({odbc::DriverNamed("FreeTDS", "/lib/libtdsodbc.so")});
    const DoctorStep step =
        ExamineDriver(ConnectionText::Parse("Driver={ODBC Driver 18 for SQL Server};Server=db"), drivers);
    EXPECT_EQ(step.outcome, StepOutcome::Failed);
    EXPECT_EQ(step.found, "The driver ODBC Driver 18 for SQL Server is not installed.");
    EXPECT_EQ(step.advice, "Install it, or name one that is: FreeTDS.");
    EXPECT_EQ(ExamineDriver(ConnectionText::Parse("Driver=/no/such.so;Server=db"), drivers).outcome,
              StepOutcome::Failed);
    EXPECT_EQ(ExamineDriver(ConnectionText::Parse("Driver=FreeTDS;Server=db"), With({})).advice,
              "Install it; this machine has no ODBC driver.");
}

TEST(DriverStep, TakesARegisteredNameALibraryAndADataSource)
{
    const auto drivers = With({odbc::DriverNamed("FreeTDS", "/lib/libtdsodbc.so")});
    for (const char* text :
         {"Driver=freetds;Server=db", "Driver=/lib/libtdsodbc.so;Server=db", "Driver=/bin/sh"})
        EXPECT_EQ(ExamineDriver(ConnectionText::Parse(text), drivers).outcome, StepOutcome::Ok) << text;
    EXPECT_EQ(ExamineDriver(ConnectionText::Parse("DSN=books"), drivers).outcome, StepOutcome::Skipped);
}

DoctorStep Server(const char* text, const ProbeResult& result, odbc::ServerAddress* asked = nullptr)
{
    return ExamineServer(ConnectionText::Parse(text), [&](const odbc::ServerAddress& server) {
        if (asked)
            *asked = server;
        return result;
    });
}

TEST(ServerStep, TellsHowTheServerIsReached)
{
    odbc::ServerAddress asked;
    EXPECT_EQ(Server(kBooks, {Reach::Answers, 1433, "10.0.0.7"}, &asked).found,
              "db answers at 10.0.0.7 port 1433.");
    EXPECT_EQ(asked, (odbc::ServerAddress{"db", 1433, ""}));
    Server("Driver=FreeTDS;Server=db;Port=2000", {Reach::Answers, 2000, "10.0.0.7"}, &asked);
    EXPECT_EQ(asked, (odbc::ServerAddress{"db", 2000, ""}));
}

TEST(ServerStep, TellsWhatIsInTheWay)
{
    const struct {
        ProbeResult result;
        const char* found;
    } cases[] = {
        {{Reach::UnknownName, 1433, ""}, "The name db has no address."},
        {{Reach::Refused, 1433, "10.0.0.7"}, "Nobody listens at 10.0.0.7 port 1433."},
        {{Reach::Silent, 1433, "10.0.0.7"}, "No answer from 10.0.0.7 port 1433."},
        {{Reach::NoInstance, 0, "10.0.0.7"}, "db doesn't tell the port of its instance books."},
    };
    for (const auto& c : cases) {
        const DoctorStep step = Server("Data Source=db\\books;Initial Catalog=Books", c.result);
        EXPECT_EQ(step.outcome, StepOutcome::Failed);
        EXPECT_EQ(step.found, c.found);
        EXPECT_FALSE(step.advice.empty());
    }
}

TEST(ServerStep, IsSkippedWhereOnlyTheDriverKnowsThePlace)
{
    EXPECT_EQ(Server("DSN=books", {}).outcome, StepOutcome::Skipped);
    EXPECT_EQ(Server("Driver=PostgreSQL;Server=db;Port=5432", {}).outcome, StepOutcome::Skipped);
}

TEST(ServerStep, FailsForAPortThatIsNone)
{
    EXPECT_EQ(Server("Driver=FreeTDS;Server=db;Port=many", {}).outcome, StepOutcome::Failed);
}

// Opens as it is told: fails with `withDatabase` where the string names one, else with `without`.
class LoginOnly : public FakeAccount {
  public:
    struct Failures {
        std::optional<DatabaseError::Details> withDatabase, without;
    };
    explicit LoginOnly(Failures failures) : objFailures(std::move(failures)) {}

    void SetConnectionString(const std::string& text) override
    {
        blnDatabase = !ConnectionText::Parse(text).Get(odbc::Meaning::Database).empty();
        EXPECT_EQ(odbc::PasswordOf(text), "secret");
    }
    void Open(const std::string&, const std::string&, std::int32_t) override
    {
        if (const auto& failure = blnDatabase ? objFailures.withDatabase : objFailures.without)
            throw ConnectionError(*failure);
    }

  private:
    Failures objFailures;
    bool blnDatabase = false;
};

Opened Login(const LoginOnly::Failures& failures)
{
    AccountLogin login;
    login.connectionString = kBooks;
    login.password = "secret";
    return ExamineLogin(login,
                        ConnectionSource({}, nullptr, [&] { return std::make_shared<LoginOnly>(failures); }));
}

TEST(LoginStep, GivesTheOpenAccount)
{
    const Opened opened = Login({});
    EXPECT_NE(opened.connection, nullptr);
    EXPECT_EQ(opened.steps[0].found, "Logged in as sa.");
    EXPECT_EQ(opened.steps[1].found, "Books is open.");
}

TEST(LoginStep, FailsForAWrongPassword)
{
    const auto failure = ErrorOf(18456, "Login failed for user 'sa'.", "28000");
    const Opened opened = Login({failure, failure});
    EXPECT_EQ(opened.connection, nullptr);
    EXPECT_EQ(opened.steps[0].outcome, StepOutcome::Failed);
    EXPECT_EQ(opened.steps[0].found, "Login failed for user 'sa'.");
    EXPECT_EQ(opened.steps[1].outcome, StepOutcome::Skipped);
}

TEST(LoginStep, TellsAMissingDatabaseFromAWrongPassword)
{
    for (const auto& failure :
         {ErrorOf(4060, "Cannot open database \"Books\" requested by the login.", "42000"),
          ErrorOf(18456, "Login failed for user 'sa'.", "28000")}) {
        const Opened opened = Login({failure, std::nullopt});
        EXPECT_EQ(opened.steps[0].outcome, StepOutcome::Ok);
        EXPECT_EQ(opened.steps[1].outcome, StepOutcome::Failed);
        EXPECT_EQ(opened.steps[1].found, failure.strMessage);
        EXPECT_EQ(opened.connection, nullptr);
    }
}

TEST(LoginStep, FailsForAServerThatSpeaksAnotherLanguage)
{
    const auto failure = ErrorOf(0, "Unexpected EOF from the server.", "08001");
    const Opened opened = Login({failure, failure});
    EXPECT_EQ(opened.steps[0].outcome, StepOutcome::Failed);
    EXPECT_NE(opened.steps[0].advice.find("encryption"), std::string::npos);
}

TEST(LoginStep, FailsForAnEmbeddedAccountThatIsNotThere)
{
    AccountLogin login;
    login.connectionString = "Embedded Account=/no/such.kavelin";
    const Opened opened = ExamineLogin(login, ConnectionSource());
    EXPECT_EQ(opened.steps[0].outcome, StepOutcome::Skipped);
    EXPECT_EQ(opened.steps[1].outcome, StepOutcome::Failed);
    EXPECT_NE(opened.steps[1].found.find("/no/such.kavelin"), std::string::npos);
}

}  // namespace
}  // namespace kavelin::host
