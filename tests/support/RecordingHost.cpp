#include "support/RecordingHost.h"

#include "support/RecordingArguments.h"
#include "support/RecordingSuite.h"

namespace kavelin::test {

RecordingHost::RecordingHost() : objReportManager(std::make_shared<PlainObject>())
{
    SetFilter({});
    UsePlatform(std::make_shared<RecordingPlatform>(objEvents, objScript, objAnswers));
}

RecordingHost::~RecordingHost()
{
    UsePlatform(nullptr);
}

void RecordingHost::SetFilter(const std::vector<FakeField>& fields)
{
    objFilter = std::make_shared<FakeFilter>(objEvents, fields);
}

std::shared_ptr<ReportCallArgs> RecordingHost::EarlyArgument()
{
    return std::make_shared<EarlyArguments>(
        ArgumentParts{objEvents, objAnswers, objFilter, Login(), objReportManager});
}

std::shared_ptr<LateBound> RecordingHost::LateArgument()
{
    return std::make_shared<LateArguments>(
        ArgumentParts{objEvents, objAnswers, objFilter, Login(), objReportManager});
}

std::shared_ptr<DrillDownArgs> RecordingHost::EarlyRowArgument(const std::string& action, const Cells& cells)
{
    return std::make_shared<EarlyRow>(RowParts{objEvents, Login(), action, cells, objAnswers->rowObjects});
}

std::shared_ptr<LateBound> RecordingHost::LateRowArgument(const std::string& action, const Cells& cells)
{
    return std::make_shared<LateRow>(RowParts{objEvents, Login(), action, cells, objAnswers->rowObjects});
}

std::shared_ptr<LoginContext> RecordingHost::Login(const std::string& name)
{
    return std::make_shared<RecordingLogin>(objEvents, objAnswers, name);
}

void RecordingHost::SetParameter(const std::string& system, const std::string& name, const Value& value,
                                 const Value& byDefault)
{
    objScript
        ->rows["Select * FROM AccInformation where cSysID= N'" + system + "' and cName= N'" + name + "'"] = {
        {"cSysID", "cName", "cvalue", "cDefault"}, {{system, name, value, byDefault}}};
}

std::shared_ptr<RecordingConnection> RecordingHost::OpenConnection()
{
    auto connection = std::make_shared<RecordingConnection>(objEvents, objScript);
    connection->Open("", "", -1);
    objEvents->Clear();
    return connection;
}

std::shared_ptr<RecordingConnection> RecordingHost::OpenAccount()
{
    auto connection = OpenConnection();
    ModPub().gcnnAccount = connection;
    return connection;
}

std::shared_ptr<RecordingConnection> RecordingHost::OpenSystem()
{
    auto connection = OpenConnection();
    ModPub().gcnnSystem = connection;
    return connection;
}

std::string StateOf(const std::shared_ptr<Connection>& connection)
{
    if (!connection)
        return "nothing";
    return connection->State() == ConnectionState::Open ? "open" : "closed";
}

std::string ConnectionsLeft()
{
    return "gcnnAccount=" + StateOf(ModPub().gcnnAccount) + " gcnnSystem=" + StateOf(ModPub().gcnnSystem) +
           " gobjLogin=" + (ModPub().gobjLogin ? "set" : "nothing");
}

}  // namespace kavelin::test
