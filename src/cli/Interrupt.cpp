#include "cli/Interrupt.h"

#include "cli/Program.h"
#include "frame/Errors.h"
#include "host/output/OutputFile.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>

namespace kavelin::cli {

namespace {

constexpr char kSignal = 's';
constexpr char kEnd = 'e';
constexpr int kRepeat = 50;  // milliseconds between two cancellations of the same run

std::atomic<bool> gHappened{false};
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler sets it");

int gPipe[2] = {-1, -1};  // read end, write end
struct sigaction gBefore;

void OnSignal(int)
{
    const int saved = errno;
    gHappened = true;
    [[maybe_unused]] const auto written = write(gPipe[1], &kSignal, 1);
    errno = saved;
}

}  // namespace

Interrupt::Interrupt(std::shared_ptr<host::Cancellation> cancellation)
    : objCancellation(std::move(cancellation))
{
    if (pipe2(gPipe, O_CLOEXEC) != 0)
        throw Error("Ctrl-C cannot be watched for: there are too many open files.");
    objWatcher = std::thread([this] { Watch(); });

    struct sigaction action {};
    action.sa_handler = OnSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(SIGINT, &action, &gBefore);
}

Interrupt::~Interrupt()
{
    sigaction(SIGINT, &gBefore, nullptr);
    [[maybe_unused]] const auto written = write(gPipe[1], &kEnd, 1);
    objWatcher.join();
    close(gPipe[0]);
    close(gPipe[1]);
}

bool Interrupt::Happened()
{
    return gHappened;
}

void Interrupt::Watch()
{
    int signals = 0;
    for (char what = 0; what != kEnd;) {
        pollfd pipe{gPipe[0], POLLIN, 0};
        if (poll(&pipe, 1, signals == 0 ? -1 : kRepeat) == 0) {
            // A statement that was just beginning may have missed it. Once the run is over and cleans up,
            // it lets statements pass again; those are not to be stopped.
            if (objCancellation->IsCancelled())
                objCancellation->Cancel();
            continue;
        }
        if (read(gPipe[0], &what, 1) != 1 || what != kSignal)
            continue;
        if (++signals == 1) {
            objCancellation->Cancel();
        } else {
            host::OutputFile::AbandonAll();
            _exit(kInterrupted);
        }
    }
}

}  // namespace kavelin::cli
