#include "database/odbc/PostgresServer.h"

#include "database/odbc/Drivers.h"

#include <pwd.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <thread>
#include <vector>

namespace kavelin::test {

namespace {

namespace fs = std::filesystem;

// The newest server's programs, empty if there are none.
std::string ProgramFolder()
{
    std::string found;
    std::error_code error;
    for (const auto& version : fs::directory_iterator("/usr/lib/postgresql", error))
        if (const fs::path folder = version.path() / "bin"; fs::exists(folder / "initdb", error))
            found = std::max(found, folder.string());
    return found;
}

std::string DriverName()
{
    for (const odbc::DriverChoice& driver : odbc::InstalledDrivers())
        if (driver.library.find("psqlodbcw") != std::string::npos)
            return driver.name;
    return {};
}

// A user that the server agrees to run as: it refuses root.
const passwd* Runner()
{
    if (::geteuid() != 0)
        return ::getpwuid(::geteuid());
    const passwd* user = ::getpwnam("postgres");
    return user ? user : ::getpwnam("nobody");
}

std::string MissingThing()
{
    if (ProgramFolder().empty())
        return "PostgreSQL's server programs are not installed.";
    if (DriverName().empty())
        return "PostgreSQL's ODBC driver is not installed.";
    return Runner() ? "" : "There is no user to run PostgreSQL's server as.";
}

// Starts a program as the runner, its output into a file; gives its process.
int Start(const std::vector<std::string>& words, const std::string& logFile)
{
    const passwd* runner = Runner();
    const uid_t user = runner->pw_uid;
    const gid_t group = runner->pw_gid;
    std::vector<char*> arguments;
    for (const std::string& word : words)
        arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);

    const pid_t process = ::fork();
    if (process != 0)
        return process;
    if (!std::freopen(logFile.c_str(), "a", stdout) || ::dup2(STDOUT_FILENO, STDERR_FILENO) < 0 ||
        (::geteuid() == 0 && (::setgid(group) != 0 || ::setuid(user) != 0)) || ::chdir("/") != 0)
        ::_exit(1);
    ::prctl(PR_SET_PDEATHSIG, SIGQUIT);  // gone with the test program, however that ends
    ::execv(arguments[0], arguments.data());
    ::_exit(1);
}

int WaitFor(int process)
{
    int status = 0;
    ::waitpid(process, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string ContentOf(const std::string& file)
{
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace

const std::string& PostgresServer::Missing()
{
    static const std::string missing = MissingThing();
    return missing;
}

PostgresServer* PostgresServer::Shared()
{
    static const std::unique_ptr<PostgresServer> server = New();
    return server.get();
}

std::unique_ptr<PostgresServer> PostgresServer::New()
{
    return Missing().empty() ? std::unique_ptr<PostgresServer>(new PostgresServer) : nullptr;
}

PostgresServer::PostgresServer()
{
    // Short, for a socket's path has 107 bytes at most.
    std::string folder = "/tmp/kavelin-pg-XXXXXX";
    if (!::mkdtemp(folder.data()))
        throw std::runtime_error("No temporary folder could be made.");
    strFolder = folder;
    const std::string passwordFile = folder + "/password", log = folder + "/log";
    std::ofstream(passwordFile) << kPassword << '\n';
    std::ofstream(log).flush();
    if (::geteuid() == 0)
        for (const std::string& path : {folder, passwordFile, log})
            if (::chown(path.c_str(), Runner()->pw_uid, Runner()->pw_gid) != 0)
                throw std::runtime_error("The folder could not be given to the server's user.");

    const std::string programs = ProgramFolder(), data = folder + "/data";
    if (WaitFor(Start({programs + "/initdb", "-D", data, "-U", kUser, "--pwfile", passwordFile, "-A",
                       "scram-sha-256", "-E", "UTF8", "--no-locale", "--no-sync"},
                      log)) != 0)
        throw std::runtime_error("initdb failed: " + ContentOf(log));
    lngProcess = Start({programs + "/postgres", "-D", data, "-k", folder, "-c", "listen_addresses=", "-c",
                        "fsync=off", "-c", "max_connections=20"},
                       log);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (ContentOf(log).find("ready to accept connections") == std::string::npos) {
        if (std::chrono::steady_clock::now() > deadline)
            throw std::runtime_error("The server did not start: " + ContentOf(log));
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

PostgresServer::~PostgresServer()
{
    Kill();
    std::error_code error;
    fs::remove_all(strFolder, error);
}

std::string PostgresServer::ConnectionString() const
{
    return "Driver={" + DriverName() + "};Server=" + strFolder + ";Port=5432;Database=postgres;BoolsAsChar=0";
}

void PostgresServer::Kill()
{
    if (lngProcess == 0)
        return;
    ::kill(lngProcess, SIGQUIT);  // its word for "at once, without farewell"
    WaitFor(lngProcess);
    lngProcess = 0;
}

}  // namespace kavelin::test
