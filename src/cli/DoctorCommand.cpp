// kavelin doctor
#include "cli/AccountFlags.h"
#include "cli/Commands.h"
#include "cli/Help.h"
#include "cli/Work.h"
#include "host/HostErrors.h"
#include "host/doctor/Doctor.h"
#include "host/output/DisplayWidth.h"
#include "host/output/OutputJson.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <memory>

namespace kavelin::cli {

namespace {

using host::DoctorStep;
using host::StepOutcome;

struct DoctorFlags {
    std::string format;
    host::Flags login;
};

constexpr std::size_t kDetails = 12;  // shown of a step; --format json tells them all

std::string_view NameOf(StepOutcome outcome)
{
    switch (outcome) {
        case StepOutcome::Ok: return "ok";
        case StepOutcome::Failed: return "failed";
        case StepOutcome::Skipped: break;
    }
    return "skipped";
}

std::string AsText(const std::vector<DoctorStep>& steps)
{
    std::string text;
    for (const DoctorStep& step : steps) {
        text +=
            fmt::format("{:<8} {:<11} {}\n", NameOf(step.outcome), step.name, host::Printable(step.found));
        for (std::size_t i = 0; i < std::min(step.details.size(), kDetails); ++i)
            text += fmt::format("{:21}- {}\n", "", host::Printable(step.details[i]));
        if (step.details.size() > kDetails)
            text += fmt::format("{:21}- and {} more: --format json lists them all\n", "",
                                step.details.size() - kDetails);
        if (!step.advice.empty())
            text += fmt::format("{:21}To do: {}\n", "", step.advice);
    }
    return text;
}

std::string JsonText(std::string_view text)
{
    std::string json;
    host::AppendJsonText(json, text);
    return json;
}

std::string AsJson(const std::vector<DoctorStep>& steps)
{
    std::string json;
    for (const DoctorStep& step : steps) {
        std::string details;
        for (const std::string& detail : step.details)
            details += (details.empty() ? "" : ", ") + JsonText(detail);
        json += fmt::format(
            "{}  {{\"step\": {}, \"outcome\": {}, \"found\": {}, \"advice\": {}, \"details\": [{}]}}",
            json.empty() ? "" : ",\n", JsonText(step.name), JsonText(NameOf(step.outcome)),
            JsonText(step.found), JsonText(step.advice), details);
    }
    return "[\n" + json + "\n]\n";
}

bool WantsJson(const std::string& format)
{
    if (format.empty() || format == "table" || format == "json")
        return format == "json";
    throw host::UsageError(fmt::format("doctor takes --format table or json, not \"{}\".", format));
}

void Examine(const DoctorFlags& flags)
{
    const bool asJson = WantsJson(flags.format);
    const host::AccountLogin login = ChosenLogin(flags.login);
    Work work;
    host::DoctorTools tools{work.Connections()};
    tools.onStep = [&](const std::string& what) {
        work.StopIfInterrupted();
        work.Show(fmt::format("checking: {}", what));
    };
    const std::vector<DoctorStep> steps = host::Examine(login, tools);
    work.EndProgress();

    std::cout << (asJson ? AsJson(steps) : AsText(steps)) << std::flush;
    const auto failed = std::ranges::count(steps, StepOutcome::Failed, &DoctorStep::outcome);
    if (failed > 0)
        throw Error(fmt::format("{} of {} steps failed: reports can't run, or not all of them.", failed,
                                steps.size()));
    if (!asJson)
        std::cout << "Reports can run on this account.\n";
}

}  // namespace

void AddDoctor(CLI::App& program, Action& action)
{
    CLI::App* command = AddCommand(
        program, "doctor", "Tell step by step whether reports can run on an account, and what is missing",
        "doctor --account books\n"
        "doctor --account \"Provider=SQLOLEDB;Data Source=tcp:db.example.com,1433;"
        "Initial Catalog=Books;User ID=reports\"\n"
        "doctor --account demo.kavelin --format json");
    const auto flags = std::make_shared<DoctorFlags>();
    AddAccountFlag(*command, flags->login);
    command
        ->add_option("--language", flags->login.language,
                     "Of the reports to come: zh-CN (by default) or en-US")
        ->type_name("LANGUAGE");
    command->add_option("--format", flags->format, "table (by default), or json for scripts")
        ->type_name("CHECKFORM");
    OnChosen(*command, action, [flags] { Examine(*flags); });
}

}  // namespace kavelin::cli
