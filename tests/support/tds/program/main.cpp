// kavelin-tds: an embedded account served as an SQL Server serves one, for scripts and for trying out.
//
//   kavelin-tds --account demo.kavelin --port-file port [--user U --password P] [--database NAME] ...
//
// Serves until it is told to stop by SIGTERM or SIGINT. The port stands in the file as soon as
// clients may come.
#include "frame/Errors.h"
#include "frame/Text.h"
#include "support/tds/TdsServer.h"

#include <CLI/CLI.hpp>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

using namespace kavelin::test::tds;

// In one step, so that who waits for the file never reads half a number.
void WritePort(const std::string& file, std::uint16_t port)
{
    const std::string half = file + ".new";
    std::ofstream(half) << port << "\n";
    std::filesystem::rename(half, file);
}

void WriteBatches(const std::string& file, const TdsServer& server)
{
    std::ofstream out(file, std::ios::binary);
    for (const std::string& batch : server.Batches())
        out << batch << "\r\n--\r\n";
}

void WaitForSignal(const sigset_t& signals)
{
    int signal = 0;
    ::sigwait(&signals, &signal);
}

}  // namespace

int main(int argc, char** argv)
{
    CLI::App app("An embedded account, served as an SQL Server serves one.", "kavelin-tds");
    ServerOptions options;
    Login login = options.logins.front();
    std::string portFile, batchFile;
    std::vector<std::string> denied, missing;
    int dropAt = 0;
    app.add_option("--account", options.account, "The account's file")->required();
    app.add_option("--port", options.port, "The port; any free one if left out");
    app.add_option("--port-file", portFile, "Write the port into this file");
    app.add_option("--batch-file", batchFile, "Write the batches that came into this file, at the end");
    app.add_option("--user", login.user, "The only user");
    app.add_option("--password", login.password, "His password");
    app.add_option("--database", options.database, "The account's name on the server");
    app.add_option("--locale", options.locale, "Language of enum texts: zh-CN or en-US");
    app.add_option("--server-version", options.version, "Version to tell");
    app.add_option("--edition", options.edition, "Edition to tell");
    app.add_option("--compatibility-level", options.compatibilityLevel, "Compatibility level to tell");
    app.add_option("--collation", options.collation, "Collation of the account to tell");
    app.add_option("--tempdb-collation", options.tempdbCollation, "Collation of tempdb to tell");
    app.add_flag("--silent", options.silent, "Take connections and never answer");
    app.add_option("--deny", denied, "Deny batches with this text in them, with error 262");
    app.add_option("--missing", missing, "Miss this table or view, with error 208");
    app.add_option("--drop-at", dropAt, "End the connection at this batch, counted from 1, unanswered");
    CLI11_PARSE(app, argc, argv);
    options.logins = {login};

    sigset_t signals;
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGINT);
    ::sigaddset(&signals, SIGTERM);
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);  // before any thread, so that all have it

    try {
        TdsServer server(options);
        for (const std::string& text : denied)
            server.Order(Denied(
                text, "CREATE TABLE",
                kavelin::ToLower(text).find("tempdb") != std::string::npos ? "tempdb" : options.database));
        for (const std::string& name : missing)
            server.Order(Missing(name));
        if (dropAt > 0) {
            Fault drop;
            drop.skip = dropAt - 1;
            server.Order(drop);
        }
        if (!portFile.empty())
            WritePort(portFile, server.Port());
        std::cout << "127.0.0.1," << server.Port() << std::endl;
        WaitForSignal(signals);
        server.Stop();
        if (!batchFile.empty())
            WriteBatches(batchFile, server);
    } catch (const kavelin::Error& error) {
        std::cerr << "kavelin-tds: " << error.what() << "\n";
        return 1;
    }
    return 0;
}
