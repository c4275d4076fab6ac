// --set, --filter and --values: what a command gives a report's filter.
#pragma once

#include "host/FilterInput.h"
#include "host/Reports.h"

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace kavelin::cli {

struct FilterFlags {
    std::vector<std::string> values;
    std::string file;
    std::string policy = "checked";
};

// `flags` must live as long as the command.
void AddFilterFlags(CLI::App& command, FilterFlags& flags);

// The values of the file, then those of --set. Throws UsageError.
host::FilterInput InputOf(const host::Report& report, const FilterFlags& flags);

}  // namespace kavelin::cli
