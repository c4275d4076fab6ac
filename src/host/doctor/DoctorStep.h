// What the doctor found in one step.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace kavelin::host {

enum class StepOutcome : std::uint8_t { Ok, Failed, Skipped };

struct DoctorStep {
    std::string name;  // "driver"; the same in every examination, for scripts
    StepOutcome outcome = StepOutcome::Ok;
    std::string found;   // a sentence: what is there, what is wrong, why nothing could be checked
    std::string advice;  // what to do about it; only where the step failed
    std::vector<std::string> details;  // what is meant, one thing each: "Inventory.iid: abc journal"
};

inline DoctorStep Passed(std::string name, std::string found)
{
    return {std::move(name), StepOutcome::Ok, std::move(found), {}, {}};
}

inline DoctorStep Failed(std::string name, std::string found, std::string advice)
{
    return {std::move(name), StepOutcome::Failed, std::move(found), std::move(advice), {}};
}

inline DoctorStep Skipped(std::string name, std::string why)
{
    return {std::move(name), StepOutcome::Skipped, std::move(why), {}, {}};
}

}  // namespace kavelin::host
