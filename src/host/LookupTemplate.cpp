#include "host/LookupTemplate.h"

#include "host/DataFiles.h"
#include "host/TemplateReader.h"

namespace kavelin::host {

namespace {

using nlohmann::json;

LookupTemplate ReadLookup(const json& object, const std::string& where)
{
    const ObjectReader reader(object, where);
    reader.RefuseMembersBut({"from", "columns", "where", "order", "distinct", "rights"});
    LookupTemplate lookup;
    lookup.from = reader.Member("from").get<std::string>();
    lookup.where = reader.Text("where");
    lookup.order = reader.Text("order");
    lookup.distinct = reader.Flag("distinct");
    for (const json& entry : reader.Member("columns")) {
        const ObjectReader column(entry, reader.Where() + ": a column");
        column.RefuseMembersBut({"column", "caption", "hidden"});
        lookup.columns.push_back({column.Member("column").get<std::string>(),
                                  column.Has("caption") ? column.Caption() : LocalText(),
                                  column.Flag("hidden")});
        if (!lookup.columns.back().hidden && lookup.columns.back().caption.chinese.empty())
            reader.Fail("shows the column " + lookup.columns.back().column + " without a caption");
    }
    if (lookup.from.empty() || lookup.columns.empty() || lookup.columns.front().hidden)
        reader.Fail("needs a table and a code that it shows");
    if (reader.Has("rights")) {
        const ObjectReader rights(reader.Member("rights"), reader.Where() + ": its rights");
        rights.RefuseMembersBut({"kind", "column"});
        lookup.rightsKind = rights.Member("kind").get<std::string>();
        lookup.rightsColumn = rights.Member("column").get<std::string>();
    }
    return lookup;
}

}  // namespace

Lookups ParseLookups(std::string_view text)
{
    Lookups lookups;
    try {
        const json document = json::parse(text);
        for (const auto& [name, object] : document.at("lookups").items())
            lookups.emplace(name, ReadLookup(object, "The lookup " + name));
    } catch (const json::exception& e) {
        throw Error(std::string("The lookups cannot be read: ") + e.what());
    }
    return lookups;
}

const Lookups& AllLookups()
{
    static const Lookups lookups = ParseLookups(DataFile("lookups.json"));
    return lookups;
}

}  // namespace kavelin::host
