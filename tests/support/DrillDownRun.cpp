#include "support/DrillDownRun.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace kavelin::test {

namespace {

bool BeginsWithOneOf(std::string_view line, const std::vector<std::string_view>& beginnings)
{
    return std::ranges::any_of(beginnings,
                               [&](std::string_view beginning) { return line.starts_with(beginning); });
}

bool Holds(RecordingHost& host, const std::string& marker)
{
    return std::ranges::any_of(host.Events().Lines(),
                               [&](const std::string& line) { return line.starts_with(marker); });
}

std::set<std::string> LostBy(const std::vector<std::string>& lines, std::size_t number,
                             const std::vector<LostLines>& exceptions)
{
    const std::string& failed = lines.at(number - 1);
    const std::string behind = number > 1 ? lines.at(number - 2) + "\n" + failed : "";
    for (const LostLines& exception : exceptions)
        if ((exception.failing.find('\n') == exception.failing.npos ? failed : behind)
                .starts_with(exception.failing))
            return exception.lost;
    return {};
}

}  // namespace

std::string LinesOf(RecordingHost& host, const std::vector<std::string_view>& beginnings)
{
    std::string text;
    for (const std::string& line : host.Events().Lines())
        if (BeginsWithOneOf(line, beginnings))
            text += line + "\n";
    return text;
}

std::string SuiteLines(RecordingHost& host)
{
    return LinesOf(host, {"new Corvane", "new Tessel", "new Brannic", "new VosPortalProxy", "Corvane.",
                          "Tessel.", "Brannic.", "VosPortalProxy."});
}

std::string VoucherQueries(RecordingHost& host)
{
    std::string text;
    for (const SentStatement& sent : host.Sent())
        if (!sent.sql.starts_with("Select * FROM AccInformation"))
            text += "#" + std::to_string(sent.connection) + " " + sent.sql + "\n";
    return text;
}

void Answer(RecordingHost& host, const std::string& sql, const Value& first)
{
    host.Script().rows[sql] = {{"first"}, {{first}}};
}

void ExpectEachFailureIsPassedOver(const std::function<void(RecordingHost&)>& run,
                                   const std::vector<std::string>& markers,
                                   const std::vector<LostLines>& exceptions)
{
    RecordingHost whole;
    run(whole);
    for (const std::string& marker : markers)
        EXPECT_TRUE(Holds(whole, marker)) << marker;

    for (std::size_t number = 1; number <= whole.Events().Lines().size(); ++number) {
        RecordingHost host;
        host.Events().FailWithErrors();
        host.Events().FailAt(number);
        EXPECT_NO_THROW(run(host)) << number;
        const std::string& failed = host.Events().Lines().at(number - 1);
        const std::set<std::string> lost = LostBy(host.Events().Lines(), number, exceptions);
        for (const std::string& marker : markers)
            EXPECT_EQ(Holds(host, marker), !lost.contains(marker))
                << "lost: " << marker << ", failed: " << failed;
    }
}

}  // namespace kavelin::test
