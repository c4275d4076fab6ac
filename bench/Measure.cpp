#include "Measure.h"

#include <fmt/core.h>

#include <algorithm>
#include <chrono>

namespace kavelin::bench {

namespace {

double MillisecondsOf(const std::function<void()>& run)
{
    const auto start = std::chrono::steady_clock::now();
    run();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

void MeasureInTurn(std::vector<Contender>& contenders, int rounds)
{
    for (Contender& contender : contenders)
        contender.run();
    for (int round = 0; round < rounds; ++round)
        for (Contender& contender : contenders)
            contender.milliseconds.push_back(MillisecondsOf(contender.run));
}

double Median(std::vector<double> milliseconds)
{
    std::sort(milliseconds.begin(), milliseconds.end());
    const std::size_t middle = milliseconds.size() / 2;
    return milliseconds.size() % 2 ? milliseconds[middle]
                                   : (milliseconds[middle - 1] + milliseconds[middle]) / 2;
}

void PrintTable(const std::vector<Contender>& contenders)
{
    const double first = Median(contenders.front().milliseconds);
    fmt::print("{:<48} {:>10} {:>10} {:>8}\n", "", "median ms", "best ms", "factor");
    for (const Contender& contender : contenders) {
        const double median = Median(contender.milliseconds);
        const double best = *std::min_element(contender.milliseconds.begin(), contender.milliseconds.end());
        fmt::print("{:<48} {:>10.1f} {:>10.1f} {:>8.2f}\n", contender.name, median, best, median / first);
    }
}

}  // namespace kavelin::bench
