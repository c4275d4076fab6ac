#include "demo/ObjectCatalogue.h"

#include "demo/QueryRows.h"
#include "frame/Text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace kavelin::demo {

namespace {

std::vector<std::string> Lines(const std::string& file)
{
    std::vector<std::string> lines =
        Split(ReadFile(std::string(KAVELIN_TESTS_DIR) + "/demo/catalogue/" + file), "\n");
    std::erase_if(lines, [](const std::string& line) { return Trim(line).empty() || line.starts_with('#'); });
    return lines;
}

std::vector<std::string> Words(std::string_view text)
{
    std::istringstream input{std::string(text)};
    return {std::istream_iterator<std::string>(input), {}};
}

void AddNumbered(std::vector<CatalogueColumn>& columns, const std::string& name, int first, int last,
                 const std::string& type, bool nullable = true)
{
    for (int i = first; i <= last; ++i)
        columns.push_back({name + std::to_string(i), type, nullable, false});
}

std::string TypeOfDefine(int number)
{
    switch (number) {
        case 4:
        case 6:
        case 36:
        case 37: return "datetime";
        case 5:
        case 15:
        case 34:
        case 35: return "int";
        case 7:
        case 16:
        case 26:
        case 27: return "float";
        default: return "nvarchar(120)";
    }
}

void AddDefines(std::vector<CatalogueColumn>& columns, int first, int last)
{
    for (int i = first; i <= last; ++i)
        AddNumbered(columns, "cDefine", i, i, TypeOfDefine(i));
}

// False if the line names no family.
bool AddFamily(std::vector<CatalogueColumn>& columns, const std::string& line)
{
    if (line == "FREE" || line == "FREE not null")
        AddNumbered(columns, "cFree", 1, 10, "nvarchar(20)", line == "FREE");
    else if (line == "INVDEF")
        AddNumbered(columns, "cInvDefine", 1, 16, "nvarchar(120)");
    else if (line == "DEF 1-16")
        AddDefines(columns, 1, 16);
    else if (line == "DEF 22-37")
        AddDefines(columns, 22, 37);
    else if (line == "DEF")
        return AddFamily(columns, "DEF 1-16") && AddFamily(columns, "DEF 22-37");
    else
        return false;
    return true;
}

// "AutoID int identity not null"
CatalogueColumn ReadColumn(const std::string& line)
{
    const std::vector<std::string> words = Words(line);
    if (words.size() < 3 || words.back() != "null") {
        ADD_FAILURE() << line;
        return {};
    }
    return {words[0], words[1], words[words.size() - 2] != "not", words[2] == "identity"};
}

}  // namespace

std::vector<CatalogueObject> ReadObjects()
{
    std::vector<CatalogueObject> objects;
    for (const std::string& written : Lines("objects.txt")) {
        const std::string line(Trim(written));
        if (!written.starts_with(' ')) {
            const std::vector<std::string> words = Words(line);
            objects.push_back({words.at(1), words.at(0) == "view", {}});
            continue;
        }
        std::vector<CatalogueColumn>& columns = objects.back().columns;
        if (line.starts_with("as ")) {
            const auto source = std::ranges::find(objects, line.substr(3), &CatalogueObject::name);
            if (source == objects.end())
                ADD_FAILURE() << line;
            else
                columns = source->columns;
        } else if (!AddFamily(columns, line)) {
            columns.push_back(ReadColumn(line));
        }
    }
    return objects;
}

std::vector<SingleNames> ReadSingleNames()
{
    std::vector<SingleNames> all;
    for (const std::string& line : Lines("single-names.txt")) {
        const std::vector<std::string> sides = Split(line, " | ");
        SingleNames single{Words(sides.at(0)), Words(sides.at(1))};
        if (std::erase(single.columns, "FREE") > 0)
            for (int i = 1; i <= 10; ++i)
                single.columns.push_back("cFree" + std::to_string(i));
        all.push_back(std::move(single));
    }
    return all;
}

}  // namespace kavelin::demo
