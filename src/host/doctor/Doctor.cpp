#include "host/doctor/Doctor.h"

#include "frame/Errors.h"
#include "host/HostMachine.h"
#include "host/doctor/ParameterSteps.h"
#include "host/doctor/RightsSteps.h"
#include "host/doctor/SchemaSteps.h"
#include "host/doctor/ServerSteps.h"

#include <algorithm>
#include <iterator>

namespace kavelin::host {

namespace {

class Examination {
  public:
    Examination(const AccountLogin& login, const DoctorTools& tools) : objLogin(login), objTools(tools) {}

    std::vector<DoctorStep> Run()
    {
        Add(ExamineConnectionText(objLogin.connectionString));
        const bool makesSense = lstSteps.back().outcome == StepOutcome::Ok;
        if (makesSense)
            LookAtTheWay();
        else
            SkipAll({"driver", "server", "login", "database"}, "The connection string makes no sense.");
        LookAtTheAccount();
        return std::move(lstSteps);
    }

  private:
    // Up to the open account.
    void LookAtTheWay()
    {
        if (objLogin.IsOnServer()) {
            const auto text = odbc::ConnectionText::Parse(objLogin.connectionString);
            Add(ExamineDriver(text, objTools.drivers));
            const bool hasDriver = lstSteps.back().outcome != StepOutcome::Failed;
            Tell("reaching the server");
            Add(ExamineServer(text, objTools.probe));
            if (!hasDriver || lstSteps.back().outcome == StepOutcome::Failed)
                return SkipAll({"login", "database"}, hasDriver ? "The server can't be reached."
                                                                : "There is no driver to log in with.");
        } else {
            SkipAll({"driver", "server"}, "An embedded account takes none.");
        }
        Tell("logging in");
        Opened opened = ExamineLogin(objLogin, objTools.connections);
        std::ranges::move(opened.steps, std::back_inserter(lstSteps));
        cnnAccount = std::move(opened.connection);
    }

    void LookAtTheAccount()
    {
        if (objLogin.IsOnServer() || !cnnAccount)
            LookAt({"version", "collation"}, [&] { return ExamineServerFacts(*cnnAccount); });
        else
            SkipAll({"version", "collation"}, "An embedded account is on no server.");
        LookAt({"periods"}, [&] { return Only(ExaminePeriods(*cnnAccount, objLogin.accountId)); });
        Tell("tables, views and columns");
        LookAt({"objects", "columns", "select"}, [&] { return ExamineSchema(*cnnAccount, objTools.needs); });
        LookAt({"language"}, [&] { return Only(ExamineLanguage(*cnnAccount, objLogin.language)); });
        LookAtTheRights();
        LookAt({"parameters"}, [&] { return Only(ExamineParameters(*cnnAccount)); });
        if (cnnAccount)
            cnnAccount->Close();
    }

    void LookAtTheRights()
    {
        const bool wasOpen = cnnAccount && cnnAccount->State() == ConnectionState::Open;
        const std::string number = HexDigits(RandomGuid());
        try {
            LookAt({"create"}, [&] { return Only(ExamineTables(*cnnAccount, number)); });
            LookAt({"tempdb"}, [&] { return Only(ExamineTablesOfTempdb(*cnnAccount, number)); });
        } catch (const CancelledError&) {
            ClearAway(number);
            throw;
        }
        if (wasOpen && cnnAccount->State() == ConnectionState::Closed)
            ClearAway(number);
    }

    // Over a connection of its own, since the other one is lost or was stopped.
    void ClearAway(const std::string& number) const noexcept
    {
        try {
            objTools.connections.Resume();
            DropTablesQuiet(*OpenInTime(objTools.connections, objLogin.ConnectionText()), number);
        } catch (const std::exception&) {
            // The server can't be reached; its administrator will find a table KavelinDoctor_... of one row.
        }
    }

    static std::vector<DoctorStep> Only(DoctorStep step) { return {std::move(step)}; }

    // The steps of `names`, which `examine` gives; skipped where there is no open account, or none any more.
    template <class Examine>
    void LookAt(const std::vector<std::string>& names, Examine examine)
    {
        if (!cnnAccount)
            return SkipAll(names, "The account is not open.");
        if (cnnAccount->State() == ConnectionState::Closed)
            return SkipAll(names, "The connection was lost.");
        try {
            for (DoctorStep& step : examine())
                Add(std::move(step));
        } catch (const CancelledError&) {
            throw;
        } catch (const DatabaseError& error) {
            Add(Failed(names.front(), error.what(),
                       "See whether server and network are well, and try again."));
            SkipAll({names.begin() + 1, names.end()}, "The step before it broke off.");
        }
    }

    void Add(DoctorStep step) { lstSteps.push_back(std::move(step)); }

    void SkipAll(const std::vector<std::string>& names, const std::string& why)
    {
        for (const std::string& name : names)
            Add(Skipped(name, why));
    }

    void Tell(const std::string& what) const
    {
        if (objTools.onStep)
            objTools.onStep(what);
    }

    const AccountLogin& objLogin;
    const DoctorTools& objTools;
    std::vector<DoctorStep> lstSteps;
    std::shared_ptr<Connection> cnnAccount;  // null until it is open
};

}  // namespace

std::vector<DoctorStep> Examine(const AccountLogin& login, const DoctorTools& tools)
{
    return Examination(login, tools).Run();
}

bool IsHealthy(const std::vector<DoctorStep>& steps)
{
    return std::ranges::none_of(steps,
                                [](const DoctorStep& step) { return step.outcome == StepOutcome::Failed; });
}

}  // namespace kavelin::host
