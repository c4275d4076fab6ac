#include "embedded/engine/Explain.h"

#include "embedded/bind/BoundText.h"
#include "embedded/engine/BatchRunner.h"
#include "embedded/engine/Layout.h"
#include "embedded/syntax/Position.h"
#include "frame/Text.h"

#include <algorithm>

namespace kavelin::embedded {

namespace {

// The statement's first words, as far as they fit on a line.
std::string Beginning(const std::string& batch, Place place)
{
    constexpr std::size_t kMost = 80;
    std::string text = batch.substr(place.offset, batch.find_first_of("\r\n", place.offset) - place.offset);
    if (text.size() <= kMost)
        return text;
    std::size_t end = kMost;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
        --end;  // within a character
    return text.substr(0, end) + " ...";
}

// The bound tree's lines: each laid out, its type at the right.
std::string TreeLines(const std::string& tree)
{
    constexpr std::size_t kTypeColumn = 78;
    std::string text;
    for (const std::string& line : kavelin::Split(tree, "\n")) {
        const std::size_t begin = std::min(line.find_first_not_of(' '), line.size());
        const std::size_t tab = line.find('\t');
        std::string laid = LayOut(std::string_view(line).substr(begin, tab - begin), begin + 4);
        if (tab != std::string::npos) {
            const std::size_t lastLine = laid.rfind('\n') + 1;
            const std::size_t length = laid.size() - lastLine + (lastLine == 0 ? begin + 4 : 0);
            laid += std::string(length < kTypeColumn ? kTypeColumn - length : 2, ' ') + line.substr(tab + 1);
        }
        text += std::string(begin + 4, ' ') + laid + "\n";
    }
    return text;
}

std::string Indented(const std::string& lines)
{
    return "  " + ReplaceAll(lines.substr(0, lines.size() - 1), "\n", "\n  ") + "\n";
}

class Explainer {
  public:
    Explainer(const std::string& batch, ScratchCatalog catalog)
        : strBatch(batch), objCatalog(std::move(catalog))
    {
    }

    std::string Batch()
    {
        std::string text;
        int number = 0;
        for (const StatementPtr& statement : ParseBatch(strBatch)) {
            const auto line = LineAndColumn(strBatch, statement->place.offset).line;
            text += (text.empty() ? "" : "\n") + std::to_string(++number) + ", line " + std::to_string(line) +
                    ": " + Beginning(strBatch, statement->place) + "\n" + One(*statement);
        }
        return text;
    }

  private:
    std::string One(const Statement& statement)
    {
        const CatalogView view = objCatalog.View(NeedsTablesInFile(statement));
        if (const auto* test = std::get_if<IfExistsStatement>(&statement.node))
            return Bound(BindRows(*test->query, strBatch, view)) +
                   (test->negated ? "  if no row comes:\n" : "  if a row comes:\n") +
                   Indented(Conditional(*test->then));
        return Bound(Bind(statement, strBatch, view));
    }

    std::string Conditional(const Statement& statement)
    {
        try {
            return One(statement);
        } catch (const SqlError& error) {
            return "  cannot be bound now: " + std::to_string(error.Number()) + " " + error.what() + "\n";
        }
    }

    std::string Bound(const BoundStatement& bound)
    {
        const StatementPlan plan = Write(bound);
        std::string text = "  bound:\n" + TreeLines(ToTextWithTypesBehind(bound)) + "  DuckDB:\n";
        for (const std::string& step : plan.steps)
            text += "    " + LayOut(step, 4) + ";\n";
        if (plan.steps.empty())
            text += "    nothing to run\n";
        objCatalog.Apply(plan.changes);
        return text;
    }

    const std::string& strBatch;
    ScratchCatalog objCatalog;
};

}  // namespace

std::string Explain(const std::string& batch, ScratchCatalog catalog)
{
    return Explainer(batch, std::move(catalog)).Batch();
}

}  // namespace kavelin::embedded
