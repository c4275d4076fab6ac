#include "cli/ProgressLine.h"

#include "cli/Terminal.h"
#include "host/AccountLogin.h"
#include "host/output/DisplayWidth.h"

#include <fmt/format.h>

#include <iostream>

namespace kavelin::cli {

namespace {

constexpr auto kPatience = std::chrono::seconds(1);
constexpr auto kTick = std::chrono::milliseconds(100);
constexpr int kUsualWidth = 80;

}  // namespace

ProgressLine::ProgressLine(int statements) : lngStatements(statements), objTicker([this] { Run(); }) {}

ProgressLine::~ProgressLine()
{
    Hide(true);
    objTicker.join();
}

void ProgressLine::Begins(const std::string& sql, const std::string& connection)
{
    if (connection.starts_with(host::kLoginPurpose))  // no statement of the run
        return;
    std::string what = host::DescribeStatement(sql);
    const std::lock_guard lock(objMutex);
    ++lngStatement;
    // A run that sends more than usual must not count beyond its own total.
    strText = lngStatement <= lngStatements
                  ? fmt::format("statement {} of {}: {}", lngStatement, lngStatements, what)
                  : fmt::format("statement {}: {}", lngStatement, what);
}

void ProgressLine::Show(std::string text)
{
    const std::lock_guard lock(objMutex);
    strText = std::move(text);
}

void ProgressLine::Hide(bool forGood)
{
    const std::lock_guard lock(objMutex);
    Erase();
    strText.clear();
    if (forGood)
        blnEnd = true;
    objEnded.notify_all();
}

void ProgressLine::Run()
{
    std::unique_lock lock(objMutex);
    objEnded.wait_for(lock, kPatience, [this] { return blnEnd; });
    while (!blnEnd) {
        Draw();
        objEnded.wait_for(lock, kTick, [this] { return blnEnd; });
    }
}

void ProgressLine::Draw()
{
    if (strText.empty())
        return;
    const double seconds = std::chrono::duration<double>(Clock::now() - datBegin).count();
    const int width = TerminalWidth(Stream::Error);
    // The last column stays free: some terminals begin a new line once it is filled.
    const std::string line = host::CutToWidth(fmt::format("{} ({:.1f} s)", host::Printable(strText), seconds),
                                              (width > 0 ? width : kUsualWidth) - 1);
    std::cerr << "\r\x1b[K" << line << std::flush;
    blnDrawn = true;
}

void ProgressLine::Erase()
{
    if (blnDrawn)
        std::cerr << "\r\x1b[K" << std::flush;
    blnDrawn = false;
}

}  // namespace kavelin::cli
