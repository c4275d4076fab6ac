#include "embedded/bind/Scope.h"

#include "embedded/SqlError.h"
#include "embedded/bind/BindNames.h"
#include "frame/Text.h"

namespace kavelin::embedded {

namespace {

constexpr int kMostNodes = 200'000;
constexpr int kDeepest = 1000;

[[noreturn]] void RefuseSameName(const Source& before, const Source& added, Place place)
{
    if (before.aliased && added.aliased)
        throw SqlError(
            1011, "The correlation name '" + added.name + "' is specified multiple times in a FROM clause.",
            place);
    if (before.aliased || added.aliased) {
        const Source& alias = before.aliased ? before : added;
        const Source& table = before.aliased ? added : before;
        throw SqlError(1012,
                       "The correlation name '" + alias.name + "' has the same exposed name as table '" +
                           table.name + "'.",
                       place);
    }
    throw SqlError(1013,
                   "The objects \"" + before.name + "\" and \"" + added.name +
                       "\" in the FROM clause have the same exposed names. Use correlation names to "
                       "distinguish them.",
                   place);
}

}  // namespace

void BindContext::CountNode(Place place)
{
    if (++lngNodes > kMostNodes)
        throw SqlError(8623,
                       "The query processor ran out of internal resources and could not produce a query "
                       "plan.",
                       place);
}

BindContext::Level::Level(BindContext& context, Place place) : objContext(context)
{
    if (context.lngDepth >= kDeepest)
        throw SqlError(191,
                       "Some part of your SQL statement is nested too deeply. Rewrite the query or break it "
                       "up into smaller queries.",
                       place);
    ++context.lngDepth;
}

const ColumnInfo* Source::Find(const std::string& lowerName) const
{
    const std::vector<ColumnInfo>& columns = Columns();
    if (dicColumns.empty())
        for (std::size_t i = 0; i < columns.size(); ++i)
            dicColumns.emplace(ToLower(columns[i].name), i);
    const auto found = dicColumns.find(lowerName);
    return found == dicColumns.end() ? nullptr : &columns[found->second];
}

Source& Scope::Add(Source source, Place place)
{
    for (const Source& before : objSources) {
        // `x` beside `tempdb..x`: their full names differ.
        const bool twoDatabases = !before.aliased && !source.aliased && before.object && source.object &&
                                  before.object->database != source.object->database;
        if (!twoDatabases && EqualsNoCase(before.name, source.name))
            RefuseSameName(before, source, place);
    }
    objSources.push_back(std::move(source));
    return objSources.back();
}

bool Scope::Holds(int source) const
{
    for (const Source& each : objSources)
        if (each.number == source)
            return true;
    return false;
}

Scope::Found Scope::Find(const std::string& lowerName) const
{
    Found found;
    for (std::size_t i = visibleFrom; i < objSources.size(); ++i)
        if (const ColumnInfo* column = objSources[i].Find(lowerName)) {
            found.ambiguous = found.column != nullptr;
            if (found.ambiguous)
                return found;
            found.source = &objSources[i];
            found.column = column;
        }
    return found;
}

Scope::Found Scope::Find(const ObjectName& table, const std::string& lowerName) const
{
    const std::vector<const Source*> sources = Named(table);
    if (sources.empty())
        return {};
    if (sources.size() > 1)
        return {sources.front(), nullptr, true};
    return {sources.front(), sources.front()->Find(lowerName), false};
}

std::vector<const Source*> Scope::Named(const ObjectName& table) const
{
    std::vector<const Source*> named;
    const bool bare = !table.database && !table.schema;
    const auto database = DatabaseOf(table);
    for (std::size_t i = visibleFrom; i < objSources.size(); ++i) {
        const Source& source = objSources[i];
        if (!EqualsNoCase(source.name, table.object.text))
            continue;
        const bool isThatObject = !source.aliased && source.object && database == source.object->database;
        if (bare || isThatObject)
            named.push_back(&source);
    }
    return named;
}

}  // namespace kavelin::embedded
