// Measuring several ways to one result in turn, so that whatever the machine does beside them meets all alike.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace kavelin::bench {

struct Contender {
    std::string name;
    std::function<void()> run;
    std::vector<double> milliseconds = {};
};

// Runs each contender once unmeasured, then all of them in turn, `rounds` times.
void MeasureInTurn(std::vector<Contender>& contenders, int rounds);

double Median(std::vector<double> milliseconds);

// Prints median and fastest run of each, and the median as a multiple of the first one's.
void PrintTable(const std::vector<Contender>& contenders);

}  // namespace kavelin::bench
