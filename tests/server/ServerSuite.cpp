#include "server/ServerSuite.h"

#include "demo/DemoCompany.h"
#include "frame/Errors.h"
#include "host/FilterInput.h"
#include "host/FilterTemplate.h"
#include "host/HostErrors.h"
#include "host/ReportRun.h"
#include "host/Reports.h"
#include "server/ReportCases.h"
#include "server/ResultRows.h"
#include "snapshot/AccountCopy.h"

#include <fmt/format.h>

#include <fstream>
#include <optional>

namespace kavelin::test::server {

namespace {

constexpr std::size_t kShown = 20;  // differences of one run

// Writes each statement before it is sent, so that the file ends with the one that failed.
class StatementFile : public host::StatementObserver {
  public:
    explicit StatementFile(const std::filesystem::path& file) : objFile(file) {}

    void Begins(const std::string& sql, const std::string& connection) override
    {
        objFile << "-- " << ++lngCount << " " << connection << "\n" << sql << "\n\n" << std::flush;
    }

    std::size_t Count() const { return lngCount; }

  private:
    std::ofstream objFile;
    std::size_t lngCount = 0;
};

// What a run led to: rows, or the words with which it was refused.
struct Outcome {
    ResultRows result;
    std::string refusal;
    std::string failure;  // of a statement
};

Outcome OutcomeOf(host::ReportRun& run, const ReportCase& each)
{
    Outcome outcome;
    try {
        host::FilterInput input(host::TemplateOf(each.report), host::ValuePolicy::Checked);
        for (const std::string& setting : each.settings)
            input.Set(setting);
        run.Run(host::FindReport(each.report), input);
        outcome.result = ReadRows(*run.OpenResult());
    } catch (const DatabaseError& error) {
        outcome.failure = error.what();
    } catch (const Error& error) {
        outcome.refusal = error.what();
    }
    return outcome;
}

std::vector<std::string> Compare(const Outcome& server, const Outcome& embedded)
{
    std::vector<std::string> differences;
    if (!server.failure.empty())
        differences.push_back("the server failed: " + server.failure);
    if (!embedded.failure.empty())
        differences.push_back("the embedded account failed: " + embedded.failure);
    if (server.refusal != embedded.refusal)
        differences.push_back("refused: server \"" + server.refusal + "\", embedded \"" + embedded.refusal +
                              "\"");
    return differences.empty() ? DifferencesOf(server.result, embedded.result) : differences;
}

void CopyTo(const ScratchDatabase& scratch, Connection& source, const host::ConnectionSource& connections,
            const std::function<void(const std::string&)>& say)
{
    const auto target =
        snapshot::ServerTarget(connections.Open("copy", scratch.Login().ConnectionText(), ""));
    snapshot::CopyOptions options;
    options.choice.targetId = scratch.AccountId();
    const snapshot::AccountObjects there = snapshot::ReadObjects(target->Account());
    const snapshot::CopyPlan plan = snapshot::PlanCopy(source, &target->Account(), &there, options.choice);
    const snapshot::CopyResult copied = snapshot::CopyAccount(source, *target, plan, options);
    for (const snapshot::Difference& each : copied.differences)
        say(fmt::format("copied data differs: {}, {}: {}, {}", each.table, each.what, each.source,
                        each.target));
    if (!copied.differences.empty())
        throw Error("The server doesn't give back what was written into it, so reports can't be compared.");
    target->Account().Close();
}

}  // namespace

RunDifferences CompareRuns(host::ReportRun& server, host::ReportRun& embedded, const ReportCase& each)
{
    const Outcome here = OutcomeOf(embedded, each);
    const Outcome there = OutcomeOf(server, each);
    RunDifferences result{Compare(there, here), "", here.result.rows.size()};
    if (result.differences.empty())
        result.refusal = here.refusal;
    return result;
}

namespace {

class Suite {
  public:
    Suite(const demo::Profile& profile, const SuiteOptions& options)
        : objProfile(profile),
          objOptions(options),
          strAccount(options.folder / (std::string(profile.name) + ".kavelin")),
          objLog(
              std::make_shared<StatementFile>(options.folder / (std::string(profile.name) + "-server.sql"))),
          objServer({objLog}),
          objScratch(options.access, objServer)
    {
    }

    SuiteResult Run()
    {
        Say(fmt::format("making the company, {} ledger lines", objOptions.lines));
        demo::MakeDemoAccount(strAccount, objProfile, objOptions.lines);
        objLocal.connectionString = host::EmbeddedConnectionString(strAccount.string());
        objLocal.settingsFile = objOptions.folder / "settings.json";
        const auto source = objEmbedded.Open("copy", objLocal.ConnectionText(), "");
        Say("copying it to the database " + objScratch.Name());
        CopyTo(objScratch, *source, objServer, [&](const std::string& text) { Report(text); });

        const std::vector<ReportCase> cases = ReportCases(CodesOf(*source));
        for (const std::string& user : UsersOf(*source)) {
            Say(fmt::format("running {} reports as {}", cases.size(), user));
            RunCases(cases, user);
        }
        source->Close();
        for (const std::string& left : objScratch.TidyUp())
            Report("left on the server: " + left);
        objResult.statements = objLog->Count();
        return objResult;
    }

  private:
    void RunCases(const std::vector<ReportCase>& cases, const std::string& user)
    {
        host::AccountLogin local = objLocal, server = objScratch.Login();
        server.settingsFile = objLocal.settingsFile;
        local.user = server.user = user;
        host::ReportRun here(local, objEmbedded), there(server, objServer);
        for (const ReportCase& each : cases) {
            const RunDifferences run = CompareRuns(there, here, each);
            ++objResult.runs;
            objResult.rows += run.rows;
            if (!run.refusal.empty()) {
                ++objResult.refusals;
                Say(fmt::format("refused by both: {} as {}: {}", each.Told(), user, run.refusal));
            }
            const std::vector<std::string>& differences = run.differences;
            for (std::size_t i = 0; i < std::min(kShown, differences.size()); ++i)
                Report(fmt::format("{} as {}: {}", each.Told(), user, differences[i]));
            if (differences.size() > kShown)
                Report(fmt::format("{} as {}: {} more", each.Told(), user, differences.size() - kShown));
        }
    }

    void Say(const std::string& text) { objOptions.say(fmt::format("{}: {}", objProfile.name, text)); }

    void Report(const std::string& difference)
    {
        ++objResult.differences;
        Say("DIFFERENT: " + difference);
    }

    const demo::Profile& objProfile;
    const SuiteOptions& objOptions;
    std::filesystem::path strAccount;
    std::shared_ptr<StatementFile> objLog;
    host::ConnectionSource objServer, objEmbedded;
    ScratchDatabase objScratch;
    host::AccountLogin objLocal;
    SuiteResult objResult;
};

}  // namespace

SuiteResult RunSuite(const demo::Profile& profile, const SuiteOptions& options)
{
    return Suite(profile, options).Run();
}

}  // namespace kavelin::test::server
