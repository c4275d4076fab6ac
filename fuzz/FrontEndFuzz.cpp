// Every text through parser, binder and writer, on a catalogue that stays the same.
//
// It gives plans or a SqlError, and what was parsed is written back and parsed to the same tree.
#include "Check.h"
#include "Tables.h"

#include "embedded/Plan.h"
#include "embedded/engine/SharedCatalog.h"
#include "embedded/syntax/TreeText.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kavelin::fuzz {

namespace {

using namespace embedded;

// A catalogue that follows the plans without running them.
struct Tables {
    SharedCatalog shared;
    ObjectMap own;  // the `#` tables

    CatalogView View() const { return CatalogView(shared.Current(), own, "zh-CN", false); }

    void Apply(const std::vector<CatalogChange>& changes)
    {
        shared.Apply(changes);
        for (const CatalogChange& change : changes)
            if (DatabaseOf(change) == Database::Connection)
                ApplyChange(own, change);
    }
};

void CheckPlan(const StatementPlan& plan)
{
    for (const std::string& step : plan.steps) {
        Require(!step.empty(), "a plan with an empty step");
        Require(step.find('\0') == std::string::npos, "a plan with a NUL in it");
    }
    Require(!plan.rows || !plan.steps.empty(), "a plan with rows and without a step");
}

void TranslateInto(Tables& tables, const Statement& statement, std::string_view text)
{
    if (const auto* test = std::get_if<IfExistsStatement>(&statement.node)) {
        CheckPlan(TranslateQuery(*test->query, text, tables.View()));
        TranslateInto(tables, *test->then, text);
        return;
    }
    const StatementPlan plan = Translate(statement, text, tables.View());
    CheckPlan(plan);
    tables.Apply(plan.changes);
}

std::vector<CatalogChange> FirstTables()
{
    Tables tables;
    for (const StatementPtr& statement : ParseBatch(kTables))
        TranslateInto(tables, *statement, kTables);
    std::vector<CatalogChange> made;
    for (const ObjectMap& objects : *tables.shared.Current())
        for (const auto& [name, object] : objects)
            made.push_back(TableMade{*object});
    return made;
}

void CheckRoundTrip(const Statement& statement)
{
    for (const TextForm form : {TextForm::AsWritten, TextForm::AllBrackets}) {
        const std::string written = WriteText(statement, form);
        try {
            const std::vector<StatementPtr> again = ParseBatch(written);
            Require(again.size() == 1, "one statement is written as several: " + written);
            Require(WriteText(*again.front(), form) == written, "another tree came of: " + written);
            Require(WriteText(*again.front(), TextForm::AllBrackets) ==
                        WriteText(statement, TextForm::AllBrackets),
                    "operators bind otherwise in: " + written);
        } catch (const SqlError& error) {
            // Brackets around everything may nest deeper than the text did.
            Require(form == TextForm::AllBrackets && error.Number() == 191,
                    std::string("what was written is refused, ") + error.what() + ": " + written);
        }
    }
}

void Check(std::string_view text)
{
    static const std::vector<CatalogChange> first = FirstTables();
    Tables tables;
    tables.Apply(first);
    try {
        const std::vector<StatementPtr> batch = ParseBatch(text);
        for (const StatementPtr& statement : batch)
            CheckRoundTrip(*statement);
        for (const StatementPtr& statement : batch)
            TranslateInto(tables, *statement, text);
    } catch (const SqlError& error) {
        RequireGoodError(error, text);
    }
}

}  // namespace

}  // namespace kavelin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size <= kavelin::fuzz::kLongestText)
        kavelin::fuzz::Check(std::string_view(reinterpret_cast<const char*>(data), size));
    return 0;
}
