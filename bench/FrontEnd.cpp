// What the front end of the embedded account takes for a statement, stage by stage: the longest statements
// that the tests record of the reports, and generated ones as long as the longest of the system. None should
// take a millisecond in all.
#include "Measure.h"
#include "embedded/EmbeddedAccount.h"
#include "embedded/bind/BoundTree.h"
#include "embedded/bind/LongStatements.h"
#include "embedded/engine/Instance.h"
#include "embedded/engine/ScratchCatalog.h"

#include <fmt/core.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;
using namespace kavelin;
using namespace kavelin::embedded;

int rounds = 200;

struct Stages {
    std::string name;
    std::size_t bytes = 0;
    double parse = 0, bind = 0, write = 0;  // microseconds

    double Sum() const { return parse + bind + write; }
};

template <class Action>
double Microseconds(Action&& action)
{
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        action();
        times.push_back(
            std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count());
    }
    return bench::Median(times);
}

BoundStatement BindStatement(const Statement& statement, std::string_view text, const Catalog& catalog)
{
    if (const auto* test = std::get_if<IfExistsStatement>(&statement.node))
        return BindRows(*test->query, text, catalog);
    return Bind(statement, text, catalog);
}

// Measures the only statement of `text`, which then changes the catalogue as if it had been run.
Stages Measure(const std::string& name, const std::string& text, ScratchCatalog& catalog)
{
    Stages stages{name, text.size()};
    stages.parse = Microseconds([&] { ParseBatch(text); });
    const auto batch = ParseBatch(text);
    const CatalogView view = catalog.View();
    stages.bind = Microseconds([&] { BindStatement(*batch.front(), text, view); });
    const BoundStatement bound = BindStatement(*batch.front(), text, view);
    stages.write = Microseconds([&] { Write(bound); });
    if (const auto* test = std::get_if<IfExistsStatement>(&batch.front()->node)) {
        try {
            catalog.Apply(Translate(*test->then, text, view).changes);
        } catch (const SqlError&) {
            // Nothing to drop.
        }
    } else {
        catalog.Apply(Write(bound).changes);
    }
    return stages;
}

// The statements of a log: each stands below a line `-- 4 #2`.
std::vector<std::string> StatementsOf(const fs::path& log)
{
    std::vector<std::string> statements;
    std::ifstream file(log);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("-- "))
            statements.emplace_back();
        else if (!statements.empty())
            statements.back() += line + "\r\n";
    }
    return statements;
}

SharedCatalog::Snapshot ObjectsOfDemo()
{
    const fs::path path = fs::path(KAVELIN_BENCH_DATA) / "demo.kavelin";
    fs::create_directories(path.parent_path());
    const std::string make =
        fmt::format("{} demo --account '{}' > /dev/null 2>&1", KAVELIN_PROGRAM, path.string());
    if (!fs::exists(path) && std::system(make.c_str()) != 0) {
        fmt::print(stderr, "no demo account could be made: {}\n", make);
        std::exit(1);
    }
    const auto account = OpenAccount(path.string());
    return *account->Shared()->Objects().Current();
}

// Every statement that the tests record, the five slowest first. What reads other tables than the demo's is
// left out.
std::vector<Stages> MeasureLogs()
{
    const SharedCatalog::Snapshot demo = ObjectsOfDemo();
    std::vector<Stages> all;
    for (const auto& entry : fs::recursive_directory_iterator(KAVELIN_STATEMENTS)) {
        if (entry.path().extension() != ".sql")
            continue;
        ScratchCatalog catalog(demo, {}, "zh-CN");
        int number = 0;
        for (const std::string& statement : StatementsOf(entry.path())) {
            ++number;
            try {
                all.push_back(
                    Measure(fmt::format("{} {}", entry.path().stem().string(), number), statement, catalog));
            } catch (const SqlError&) {
                continue;
            }
        }
    }
    const auto shown = all.begin() + std::min<std::ptrdiff_t>(5, std::ssize(all));
    std::partial_sort(all.begin(), shown, all.end(),
                      [](const Stages& a, const Stages& b) { return a.Sum() > b.Sum(); });
    fmt::print("{} recorded statements measured, the slowest below\n\n", all.size());
    all.erase(shown, all.end());
    return all;
}

std::vector<Stages> MeasureGenerated()
{
    ScratchCatalog catalog({}, {}, "zh-CN");
    const std::string tables = TablesOfLongStatements();
    for (const StatementPtr& statement : ParseBatch(tables))
        catalog.Apply(Translate(*statement, tables, catalog.View()).changes);
    std::vector<Stages> all;
    for (const LongStatement& statement : LongStatements())
        all.push_back(Measure(statement.name, statement.text, catalog));
    return all;
}

void Print(const std::vector<Stages>& all)
{
    for (const Stages& each : all)
        fmt::print("{:<44} {:>7} {:>8.0f} {:>8.0f} {:>8.0f} {:>8.0f}{}\n", each.name, each.bytes, each.parse,
                   each.bind, each.write, each.Sum(), each.Sum() > 1000 ? "  more than 1 ms" : "");
}

}  // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount > 1)
        rounds = std::atoi(arguments[1]);
    if (rounds <= 0) {
        fmt::print(stderr, "bench-front-end [ROUNDS]\n");
        return 2;
    }
    const std::vector<Stages> recorded = MeasureLogs();
    fmt::print("{:<44} {:>7} {:>8} {:>8} {:>8} {:>8}\n", "microseconds", "bytes", "parse", "bind", "write",
               "sum");
    Print(recorded);
    Print(MeasureGenerated());
}
