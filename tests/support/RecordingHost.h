// A host that writes down every read and write of its objects, in order, and needs no database.
//
// A test makes a RecordingHost, which becomes the platform of its thread, sets what the objects are to
// answer, calls the library and compares Events() with the text that the rules ask for.
#pragma once

#include "support/EventLog.h"
#include "support/FakeFilter.h"
#include "support/RecordingConnection.h"
#include "support/RecordingObjects.h"
#include "support/RecordingRow.h"

#include "frame/ModPub.h"
#include "frame/host/Platform.h"
#include "frame/host/ReportCallArgs.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kavelin::test {

// What the login, the argument and the objects of the suite answer.
struct HostAnswers {
    std::string vosDbName = "account database";
    std::string accountId = "001";
    std::string year = "2008";
    std::string password = "login password";
    std::string userId = "demo";
    std::string connectionText = "connection text";
    std::string systemConnection = "system database";

    DateTime date = std::chrono::sys_days(std::chrono::year(2008) / 7 / 31);

    std::string sql = "tempdb..result";
    std::string langId = "zh-CN";
    std::map<std::string, Value> args;  // Args.Item; empty for a key that isn't here

    bool loginHasAuthService = true;
    std::map<std::string, std::string> lists;  // of the authorisation service by object; "" for others

    std::map<std::string, std::string> texts;  // GetResString; the key in "<>" for others
    std::map<std::string, std::string>
        codes;      // GetEnumCode by shown text; "code of " and the text for others
    int month = 7;  // of the login
    std::vector<std::string> accountYears;
    std::map<std::string, std::pair<int, int>> yearMonths;  // by year; 1 to 12 for others
    std::string paramsYear = "2008";                        // of LedgerParams
    std::string valueStyle = "按仓库核算";
    std::string inventoryQualifier;

    std::map<std::string, std::string> settings;  // by "application, section, key"
    std::function<void(Form&)> useForm;           // what a user does in a form that is shown

    Value clientNumber = 7;
    Guid guid = {};

    // Late-bound members that the argument for a row holds beyond the usual ones.
    std::map<std::string, HostObjectPtr, LessNoCase> rowObjects;

    std::set<std::string> missingObjects;  // of the suite, by name; there are all others
    CallActions callActions;
};

class RecordingHost {
  public:
    // Becomes the platform of the calling thread, with all state of the thread forgotten.
    RecordingHost();
    ~RecordingHost();
    RecordingHost(const RecordingHost&) = delete;
    RecordingHost& operator=(const RecordingHost&) = delete;

    HostAnswers& Answers() { return *objAnswers; }
    EventLog& Events() { return *objEvents; }
    ConnectionScript& Script() { return *objScript; }
    const std::vector<SentStatement>& Sent() const { return objScript->sent; }

    // The fields of the filter that the argument hands over.
    void SetFilter(const std::vector<FakeField>& fields);
    const std::shared_ptr<FakeFilter>& Filter() const { return objFilter; }

    // The argument of GETSQL: lines "e.RawFilter", "DataSource.Type = 2", "Args.Item ABC". Late-bound members
    // of it, of which there is ObjreportManager, write "late e.ObjreportManager".
    std::shared_ptr<ReportCallArgs> EarlyArgument();

    // The late-bound argument: the same members, every line with "late " before it.
    std::shared_ptr<LateBound> LateArgument();

    // The argument of Execute for a row; late-bound for ExecuteForOld.
    std::shared_ptr<DrillDownArgs> EarlyRowArgument(const std::string& action, const Cells& cells);
    std::shared_ptr<LateBound> LateRowArgument(const std::string& action, const Cells& cells);

    // Its lines begin with the name.
    std::shared_ptr<LoginContext> Login(const std::string& name = "Login");

    // What both arguments hold as ObjreportManager.
    HostObjectPtr ReportManager() const { return objReportManager; }
    void SetReportManager(HostObjectPtr manager) { objReportManager = std::move(manager); }

    // A row of AccInformation: the answer of GetAccInfoValue.
    void SetParameter(const std::string& system, const std::string& name, const Value& value,
                      const Value& byDefault = Value::Null());

    // Puts a connection into ModPub as a frame would, open, and leaves no line behind.
    std::shared_ptr<RecordingConnection> OpenAccount();
    std::shared_ptr<RecordingConnection> OpenSystem();

  private:
    std::shared_ptr<RecordingConnection> OpenConnection();

    std::shared_ptr<EventLog> objEvents = std::make_shared<EventLog>();
    std::shared_ptr<ConnectionScript> objScript = std::make_shared<ConnectionScript>();
    std::shared_ptr<HostAnswers> objAnswers = std::make_shared<HostAnswers>();
    std::shared_ptr<FakeFilter> objFilter;
    HostObjectPtr objReportManager;
};

// What a call left in ModPub, for instance "gcnnAccount=open gcnnSystem=nothing gobjLogin=set".
std::string ConnectionsLeft();

// "nothing", "open" or "closed".
std::string StateOf(const std::shared_ptr<Connection>& connection);

}  // namespace kavelin::test
