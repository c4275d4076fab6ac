// Connections and record sets over objects shaped like ADO's: what they are asked, and what their answers mean.
#include "database/ado/AdoConnection.h"

#include "automation/ScriptedObject.h"
#include "database/ado/FieldTypes.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

using Lines = ScriptedObject::Lines;

Variant Held(HostObjectPtr object)
{
    return object;
}

struct Database {
    std::shared_ptr<ScriptedObject> connection = Scripted("connection", {{"State", Value(1)}});
    std::shared_ptr<ScriptedObject> recordset = Scripted("recordset");
    ado::AdoConnection ado{connection, [this] { return recordset; }};

    std::unique_ptr<Recordset> Open(LockType lock = LockType::ReadOnly)
    {
        return ado.OpenRecordset("select 1", CursorLocation::Client, CursorType::Static, lock);
    }
};

// A result of a batch behind the first: the rows that it changed, and what comes after it.
std::shared_ptr<ScriptedObject> Result(const std::string& name, Value affected, Variant next)
{
    auto result = Scripted(name, {{"NextRecordset", std::move(next)}});
    result->actions["NextRecordset"] = [affected](std::vector<Variant>& arguments) {
        arguments[0] = affected;
    };
    return result;
}

void AnswerErrors(ScriptedObject& connection, const std::string& description, const std::string& state,
                  std::int32_t number)
{
    const auto first = Scripted(
        "error",
        {{"Description", Value(description)}, {"SQLState", Value(state)}, {"NativeError", Value(number)}});
    connection.answers["Errors"] = Held(Scripted("errors", {{"Count", Value(1)}, {"Item", Held(first)}}));
}

DatabaseError::Details Failure(const std::function<void()>& call)
{
    try {
        call();
    } catch (const DatabaseError& error) {
        return error.Get();
    }
    ADD_FAILURE() << "no error";
    return {};
}

}  // namespace

TEST(AnAdoConnection, IsOpenedWithoutReplacingItsConnectionString)
{
    Database database;
    database.ado.SetCursorLocation(CursorLocation::Client);
    database.ado.SetConnectionString("text");
    database.ado.SetConnectionTimeout(0);
    database.ado.SetCommandTimeout(30);
    database.ado.Open("user", "word", -1);
    EXPECT_EQ(database.connection->TakeLines(),
              (Lines{"put CursorLocation = 3", "put ConnectionString = 'text'", "put ConnectionTimeout = 0",
                     "put CommandTimeout = 30", "call Open('', 'user', 'word', -1)"}));
}

TEST(AnAdoConnection, IsOpenWhileTheBitIsSet)
{
    const struct {
        int state;
        ConnectionState wanted;
    } cases[] = {
        {0, ConnectionState::Closed}, {1, ConnectionState::Open}, {5, ConnectionState::Open},
        {2, ConnectionState::Closed}, {9, ConnectionState::Open},
    };
    Database database;
    for (const auto& c : cases) {
        database.connection->answers["State"] = Value(c.state);
        EXPECT_EQ(database.ado.State(), c.wanted) << c.state;
    }
}

TEST(AnAdoConnection, IsClosedOnce)
{
    Database database;
    database.ado.Close();
    database.connection->answers["State"] = Value(0);
    database.ado.Close();
    EXPECT_EQ(database.connection->TakeLines(), (Lines{"get State", "call Close()", "get State"}));
}

TEST(AnAdoConnection, PassesCancelOnAndNeverFailsInIt)
{
    Database database;
    database.connection->failures = {{"Cancel", "nothing runs"}};
    database.ado.Cancel();
    EXPECT_EQ(database.connection->TakeLines(), (Lines{"call Cancel()"}));
}

TEST(AnAdoStatement, GivesTheRowsThatItChanged)
{
    Database database;
    EXPECT_EQ(database.ado.Execute("update"), -1) << "an object that tells nothing";
    EXPECT_EQ(database.connection->TakeLines(), (Lines{"call Execute('update', empty, 1)"}));

    database.connection->actions["Execute"] = [](std::vector<Variant>& arguments) {
        arguments[1] = Value(4);
    };
    EXPECT_EQ(database.ado.Execute("update"), 4);
    database.connection->answers["Execute"] = HostObjectPtr();
    EXPECT_EQ(database.ado.Execute("update"), 4);
}

TEST(AnAdoStatement, GoesThroughAllResultsOfItsBatch)
{
    Database database;
    const auto third = Result("third", Value(), HostObjectPtr());
    const auto second = Result("second", Value(7), Held(third));
    database.connection->answers["Execute"] = Held(Result("first", Value(-1), Held(second)));
    EXPECT_EQ(database.ado.Execute("batch"), 7);
    EXPECT_EQ(third->TakeLines(), (Lines{"call NextRecordset(empty)"}));
}

TEST(AnAdoStatement, FailsWithALaterStatementOfItsBatch)
{
    Database database;
    const auto second = Scripted("second");
    second->failures = {{"NextRecordset", "the third fails"}};
    database.connection->answers["Execute"] = Held(Result("first", Value(1), Held(second)));
    const auto details = Failure([&] { database.ado.Execute("batch"); });
    EXPECT_EQ(details.strMessage, "the third fails");
    EXPECT_EQ(details.strStatement, "batch");
}

TEST(AnAdoFailure, CarriesStateAndNumberOfTheSameFailure)
{
    Database database;
    database.connection->failures = {{"Execute", "Invalid object name 't'."}};
    auto details = Failure([&] { database.ado.Execute("select"); });
    EXPECT_EQ(details.strMessage, "Invalid object name 't'.");
    EXPECT_EQ(details.strSqlState, "") << "a connection without Errors";

    AnswerErrors(*database.connection, "Invalid object name 't'.", "42S02", 208);
    details = Failure([&] { database.ado.Execute("select"); });
    EXPECT_EQ(details.strSqlState, "42S02");
    EXPECT_EQ(details.lngNumber, 208);
    EXPECT_EQ(details.strStatement, "select");

    AnswerErrors(*database.connection, "an earlier failure", "42000", 1);
    details = Failure([&] { database.ado.Execute("select"); });
    EXPECT_EQ(details.strSqlState, "") << "Errors still tells of an earlier failure";

    database.connection->answers["Errors"] = Held(Scripted("errors", {{"Count", Value(0)}}));
    EXPECT_EQ(Failure([&] { database.ado.Execute("select"); }).lngNumber, 0);
}

TEST(AnAdoFailure, IsOfTheKindThatHappened)
{
    Database database;
    database.connection->failures = {{"Open", "no such server"}, {"Execute", "stopped"}};
    EXPECT_THROW(database.ado.Open("", "", -1), ConnectionError);
    AnswerErrors(*database.connection, "stopped", "HY008", 0);
    EXPECT_THROW(database.ado.Execute("waitfor"), CancelledError);
    database.recordset->failures = {{"Open", "bad select"}};
    EXPECT_EQ(Failure([&] { database.Open(); }).strStatement, "select 1");
}

TEST(AnAdoRecordset, IsOpenedOnTheConnectionsOwnObject)
{
    Database database;
    database.Open();
    database.Open(LockType::Unspecified);
    EXPECT_EQ(database.recordset->TakeLines(),
              (Lines{"put CursorLocation = 3", "call Open('select 1', connection, 3, 1, -1)",
                     "put CursorLocation = 3", "call Open('select 1', connection, 3, -1, -1)"}));
}

TEST(AnAdoRecordset, IsReadFieldByField)
{
    Database database;
    const auto field = Scripted("field", {{"Name", Value("cvalue")}, {"Value", Value::Null()}});
    const auto fields = Scripted("fields", {{"Count", Value(1)}, {"Item", Held(field)}});
    database.recordset->answers = {
        {"EOF", Value(false)}, {"RecordCount", Value(3)}, {"Fields", Held(fields)}};
    const auto rows = database.Open();
    EXPECT_FALSE(rows->Eof());
    EXPECT_EQ(rows->RecordCount(), 3);
    EXPECT_EQ(rows->FieldCount(), 1);
    EXPECT_EQ(rows->FieldName(0), "cvalue");
    EXPECT_TRUE(rows->Field(0).IsNull());
    field->answers["Value"] = Value(*Decimal::FromText("12345678901234567890.123456"));
    EXPECT_EQ(rows->Field("CVALUE"), Value(*Decimal::FromText("12345678901234567890.123456")));
    EXPECT_THROW(rows->Field("other"), Error);
    rows->MoveNext();
    rows->MoveFirst();
    rows->Close();
    rows->Close();
    EXPECT_THROW(rows->MoveNext(), Error) << "closed";
    EXPECT_EQ(
        database.recordset->TakeLines(),
        (Lines{"put CursorLocation = 3", "call Open('select 1', connection, 3, 1, -1)", "get EOF",
               "get RecordCount", "get Fields", "call MoveNext()", "call MoveFirst()", "call Close()"}));
}

TEST(AnAdoRecordset, FailsAsADatabaseWhileItIsRead)
{
    Database database;
    database.recordset->failures = {{"MoveNext", "the connection is lost"}};
    AnswerErrors(*database.connection, "the connection is lost", "08S01", 10054);
    const auto rows = database.Open();
    const auto details = Failure([&] { rows->MoveNext(); });
    EXPECT_EQ(details.strSqlState, "08S01");
    EXPECT_EQ(details.lngNumber, 10054);
}

TEST(AnAdoField, HasTheNameOfItsTypeInTSql)
{
    Database database;
    const auto field = Scripted("field", {{"Type", Value(131)},
                                          {"Precision", Value(38)},
                                          {"NumericScale", Value(6)},
                                          {"DefinedSize", Value(19)}});
    database.recordset->answers["Fields"] = Held(Scripted("fields", {{"Item", Held(field)}}));
    EXPECT_EQ(database.Open()->FieldType(0), "decimal(38,6)");

    const struct {
        ado::FieldShape shape;
        const char* wanted;
    } cases[] = {
        {{.type = 2}, "smallint"},
        {{.type = 3, .precision = 10, .size = 4}, "int"},
        {{.type = 17}, "tinyint"},
        {{.type = 20}, "bigint"},
        {{.type = 5}, "float"},
        {{.type = 6}, "money"},
        {{.type = 11}, "bit"},
        {{.type = 72}, "uniqueidentifier"},
        {{.type = 135}, "datetime"},
        {{.type = 202, .size = 60}, "nvarchar(60)"},
        {{.type = 202, .size = 4001}, "nvarchar(max)"},
        {{.type = 203, .size = 60}, "nvarchar(max)"},
        {{.type = 200, .size = 8000}, "varchar(8000)"},
        {{.type = 204, .size = -1}, "varbinary(max)"},
        {{.type = 129, .size = 2}, "char(2)"},
        {{.type = 9999}, "sql_variant"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ado::TypeName(c.shape), c.wanted) << c.shape.type;
}

}  // namespace kavelin::test
