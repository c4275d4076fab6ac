#include "cli/Process.h"

#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace kavelin::cli {

namespace fs = std::filesystem;

namespace {

using Clock = std::chrono::steady_clock;

// One stream of the program: what it writes to, and what the test reads.
struct Channel {
    int read = -1, write = -1;
    std::string text;

    explicit Channel(bool terminal)
    {
        int ends[2];
        winsize size{24, 80, 0, 0};
        if (terminal ? openpty(&ends[0], &ends[1], nullptr, nullptr, &size) != 0 : pipe(ends) != 0)
            throw std::runtime_error("no pipe");
        read = ends[0];
        write = ends[1];
        fcntl(read, F_SETFD, FD_CLOEXEC);
        if (terminal) {
            termios settings{};
            tcgetattr(write, &settings);
            settings.c_oflag &= ~static_cast<tcflag_t>(OPOST);  // line ends as they were written
            tcsetattr(write, TCSANOW, &settings);
        }
    }
    ~Channel()
    {
        Close(read);
        Close(write);
    }
    Channel(const Channel&) = delete;
    Channel& operator=(const Channel&) = delete;

    static void Close(int& file)
    {
        if (file >= 0)
            close(file);
        file = -1;
    }

    void Take()
    {
        std::array<char, 65536> buffer;
        const ssize_t count = ::read(read, buffer.data(), buffer.size());
        if (count > 0)
            text.append(buffer.data(), static_cast<std::size_t>(count));
        else if (count == 0 || errno != EINTR)
            Close(read);  // a terminal whose program is gone gives EIO
    }
};

std::vector<char*> Pointers(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

fs::path NewFolder(const std::string& name)
{
    std::string pattern = (fs::temp_directory_path() / ("kavelin-" + name + "-XXXXXX")).string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("no temporary folder");
    return pattern;
}

}  // namespace

Program::Program() : objHome(NewFolder("home")), objFolder(NewFolder("work")) {}

Program::~Program()
{
    std::error_code ignored;
    fs::remove_all(objHome, ignored);
    fs::remove_all(objFolder, ignored);
}

Outcome Program::Run(const std::vector<std::string>& arguments, RunOptions options) const
{
    std::vector<std::string> texts = {"kavelin"};
    texts.insert(texts.end(), arguments.begin(), arguments.end());
    std::map<std::string, std::string> variables = {{"HOME", objHome.string()}, {"TERM", "xterm"}};
    for (const char* kept : {"PATH", "LD_LIBRARY_PATH", "KAVELIN_SQL_LOG", "ASAN_OPTIONS", "UBSAN_OPTIONS"})
        if (const char* value = getenv(kept))
            variables[kept] = value;
    for (const auto& [name, value] : options.environment)
        variables[name] = value;
    std::vector<std::string> environment;
    for (const auto& [name, value] : variables)
        environment.push_back(name + "=" + value);
    const std::vector<char*> argumentPointers = Pointers(texts), environmentPointers = Pointers(environment);
    const std::string folder = (options.folder.empty() ? objFolder : options.folder).string();

    Channel out(options.outputTerminal), err(options.errorTerminal);
    Channel keyboard(!options.typed.empty());
    const pid_t child = fork();
    if (child == 0) {
        const int nothing = open("/dev/null", O_RDONLY);
        dup2(options.typed.empty() ? nothing : keyboard.write, 0);
        dup2(out.write, 1);
        dup2(err.write, 2);
        for (int file = 3; file < 64; ++file)
            close(file);
        if (chdir(folder.c_str()) == 0)
            execve(KAVELIN_PROGRAM, argumentPointers.data(), environmentPointers.data());
        _exit(127);
    }
    Channel::Close(out.write);
    Channel::Close(err.write);
    if (options.closeOutput)
        Channel::Close(out.read);

    const Clock::time_point begin = Clock::now();
    Clock::time_point signalled = begin;
    bool interrupted = options.interruptAfter.count() == 0;
    bool killed = options.killAfter.count() == 0;
    bool typed = options.typed.empty();
    while (out.read >= 0 || err.read >= 0) {
        pollfd files[] = {{out.read, POLLIN, 0}, {err.read, POLLIN, 0}};
        poll(files, 2, 20);
        if (files[0].revents != 0)
            out.Take();
        if (files[1].revents != 0)
            err.Take();
        if (!typed && err.text.ends_with(": "))
            typed = write(keyboard.read, options.typed.data(), options.typed.size()) > 0;
        if (!interrupted && Clock::now() - begin >= options.interruptAfter) {
            interrupted = true;
            signalled = Clock::now();
            kill(child, SIGINT);
        }
        if (!killed && Clock::now() - begin >= options.killAfter) {
            killed = true;
            kill(child, SIGKILL);
        }
    }
    int status = 0;
    waitpid(child, &status, 0);

    pollfd shown{keyboard.read, POLLIN, 0};
    if (!options.typed.empty() && poll(&shown, 1, 0) == 1)
        keyboard.Take();

    Outcome outcome;
    outcome.echo = std::move(keyboard.text);
    outcome.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    outcome.out = std::move(out.text);
    outcome.err = std::move(err.text);
    outcome.sinceSignal = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - signalled);
    return outcome;
}

void Program::Write(const std::string& file, const std::string& text) const
{
    std::ofstream(objFolder / file, std::ios::binary) << text;
}

std::string Program::Read(const std::string& file) const
{
    std::ostringstream text;
    text << std::ifstream(objFolder / file, std::ios::binary).rdbuf();
    return text.str();
}

std::vector<std::string> Program::Files() const
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(objFolder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace kavelin::cli
