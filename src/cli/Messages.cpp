#include "cli/Messages.h"

#include "cli/Program.h"
#include "cli/Terminal.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "host/HostErrors.h"
#include "host/output/DisplayWidth.h"

#include <fmt/format.h>

#include <iostream>

namespace kavelin::cli {

namespace {

constexpr int kLineWidth = 100;  // of a statement's line shown under its error

// The line of the statement that holds the error with a mark under the place:
//   select top 5 * from IA_Subsidary
//                       ^
// Empty if the place is not known.
std::string MarkedLine(const DatabaseError::Details& details)
{
    const auto lines = Split(ReplaceAll(details.strStatement, "\r\n", "\n"), "\n");
    if (details.lngLine < 1 || details.lngColumn < 1 ||
        details.lngLine > static_cast<std::int32_t>(lines.size()))
        return "";
    const std::string line = host::Printable(lines[details.lngLine - 1]);
    const int before = host::DisplayWidth(Left(line, details.lngColumn - 1));
    if (before >= kLineWidth)
        return "";
    return "\n  " + host::CutToWidth(line, kLineWidth) + "\n  " + std::string(before, ' ') + "^";
}

std::string Explanation(const DatabaseError& error)
{
    const DatabaseError::Details& details = error.Get();
    std::string place;
    if (details.lngNumber != 0)
        place = fmt::format("error {}", details.lngNumber);
    if (details.lngLine > 0)
        place += fmt::format("{}line {}", place.empty() ? "" : ", ", details.lngLine);
    if (details.lngLine > 0 && details.lngColumn > 0)
        place += fmt::format(", column {}", details.lngColumn);
    return details.strMessage + (place.empty() ? "" : " (" + place + ")") + MarkedLine(details);
}

}  // namespace

void Say(const std::string& text)
{
    std::cerr << text << '\n';
}

void Complain(const std::string& text)
{
    Say((HasColour(Stream::Error) ? "\x1b[31mkavelin:\x1b[0m " : "kavelin: ") + text);
}

int ExplainFailure(bool interrupted)
{
    try {
        throw;
    } catch (const OutputClosed&) {
        return interrupted ? kInterrupted : kDone;
    } catch (const std::exception& error) {
        if (interrupted || dynamic_cast<const CancelledError*>(&error)) {
            Complain("Interrupted.");
            return kInterrupted;
        }
        if (const auto* database = dynamic_cast<const DatabaseError*>(&error))
            Complain(Explanation(*database));
        else
            Complain(error.what());
        if (dynamic_cast<const host::UsageError*>(&error))
            return kWrongUse;
        if (dynamic_cast<const ConnectionError*>(&error))
            return kNoConnection;
        return kFailed;
    }
}

}  // namespace kavelin::cli
