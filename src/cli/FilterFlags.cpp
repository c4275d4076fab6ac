#include "cli/FilterFlags.h"

#include "host/HostErrors.h"

#include <fmt/format.h>
#include <CLI/CLI.hpp>

#include <fstream>
#include <iterator>

namespace kavelin::cli {

namespace {

host::ValuePolicy PolicyOf(const std::string& text)
{
    if (text == "checked")
        return host::ValuePolicy::Checked;
    if (text == "legacy")
        return host::ValuePolicy::Legacy;
    throw host::UsageError(fmt::format("--values takes checked or legacy, not \"{}\".", text));
}

std::string ReadFilterFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(file), {}};
    if (!file.is_open() || file.bad())
        throw host::UsageError(fmt::format("The filter file {} cannot be read.", path));
    return text;
}

}  // namespace

void AddFilterFlags(CLI::App& command, FilterFlags& flags)
{
    command.add_option("--set", flags.values, "Give a field of the filter its value, also KEY=FROM..TO")
        ->type_name("KEY=VALUE")
        ->allow_extra_args(false);
    command.add_option("--filter", flags.file, "Take values from a JSON file; --set goes before it")
        ->type_name("FILE");
    command
        .add_option("--values", flags.policy, "checked (by default), or legacy: let unsafe values through")
        ->type_name("POLICY");
}

host::FilterInput InputOf(const host::Report& report, const FilterFlags& flags)
{
    host::FilterInput input(host::TemplateOf(report.name), PolicyOf(flags.policy));
    if (!flags.file.empty())
        input.SetFromJson(ReadFilterFile(flags.file), flags.file);
    for (const std::string& value : flags.values)
        input.Set(value);
    return input;
}

}  // namespace kavelin::cli
