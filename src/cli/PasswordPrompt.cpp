#include "cli/PasswordPrompt.h"

#include "frame/Errors.h"

#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <iostream>

namespace kavelin::cli {

namespace {

constexpr char kCtrlC = '\x03';
constexpr char kCtrlD = '\x04';
constexpr char kCtrlU = '\x15';
constexpr char kBackspace = '\b';
constexpr char kDelete = '\x7f';

// The terminal gives every key at once and shows none; Ctrl-C is a key too, so that no signal leaves it so.
class SilentTerminal {
  public:
    SilentTerminal()
    {
        ::tcgetattr(STDIN_FILENO, &objBefore);
        termios silent = objBefore;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO | ICANON | ISIG);
        silent.c_cc[VMIN] = 1;
        silent.c_cc[VTIME] = 0;
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &silent);
    }
    ~SilentTerminal() { ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &objBefore); }
    SilentTerminal(const SilentTerminal&) = delete;
    SilentTerminal& operator=(const SilentTerminal&) = delete;

  private:
    termios objBefore{};
};

// Takes the last character away, all its bytes.
void EraseLast(std::string& text)
{
    while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0) == 0x80)
        text.pop_back();
    if (!text.empty())
        text.pop_back();
}

// Nothing if the user doesn't want to tell it.
std::optional<std::string> ReadLine()
{
    std::string line;
    char key = 0;
    while (true) {
        const ssize_t length = ::read(STDIN_FILENO, &key, 1);
        if (length < 0 && errno == EINTR)
            continue;
        if (length <= 0 || key == kCtrlC || key == kCtrlD)
            return std::nullopt;
        if (key == '\n' || key == '\r')
            return line;
        if (key == kBackspace || key == kDelete)
            EraseLast(line);
        else if (key == kCtrlU)
            line.clear();
        else
            line += key;
    }
}

}  // namespace

std::optional<std::string> AskPassword(const std::string& question)
{
    if (::isatty(STDIN_FILENO) != 1)
        return std::nullopt;
    const SilentTerminal silent;
    std::cerr << question << std::flush;
    auto password = ReadLine();
    std::cerr << std::endl;
    if (!password) {
        DatabaseError::Details details;
        details.strMessage = "Interrupted.";
        throw CancelledError(details);
    }
    return password;
}

}  // namespace kavelin::cli
