#include "cli/Terminal.h"

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <charconv>
#include <cstdlib>
#include <string_view>

namespace kavelin::cli {

namespace {

std::string_view Environment(const char* name)
{
    const char* value = std::getenv(name);
    return value ? value : "";
}

}  // namespace

bool IsTerminal(Stream stream)
{
    return isatty(static_cast<int>(stream)) == 1;
}

bool HasColour(Stream stream)
{
    return IsTerminal(stream) && Environment("NO_COLOR").empty() && Environment("TERM") != "dumb";
}

int TerminalWidth(Stream stream)
{
    winsize size{};
    if (IsTerminal(stream) && ioctl(static_cast<int>(stream), TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
        return size.ws_col;

    const std::string_view columns = Environment("COLUMNS");
    int width = 0;
    std::from_chars(columns.data(), columns.data() + columns.size(), width);
    return width > 0 ? width : 0;
}

bool IsClosedPipe(Stream stream)
{
    pollfd state{static_cast<int>(stream), POLLOUT, 0};
    return poll(&state, 1, 0) == 1 && (state.revents & POLLERR) != 0;
}

}  // namespace kavelin::cli
