#include "demo/Scripts.h"

#include "frame/Text.h"
#include "host/DataFiles.h"

#include <span>

namespace kavelin::demo {

// Generated from the folder data.
std::span<const host::EmbeddedFile> EmbeddedFiles();

namespace {

constexpr std::string_view kSchema = "schema";
constexpr std::string_view kCreateTable = "create table ";

bool IsIn(std::string_view folder, const host::EmbeddedFile& file)
{
    return file.name.starts_with(folder) && file.name.substr(folder.size()).starts_with('/');
}

}  // namespace

std::string WithoutComments(std::string_view script)
{
    std::string text;
    bool literal = false;
    for (std::size_t i = 0; i < script.size(); ++i) {
        if (script[i] == '\'')
            literal = !literal;
        if (!literal && script.substr(i).starts_with("--")) {
            while (i < script.size() && script[i] != '\n')
                ++i;
            if (i == script.size())
                break;
        }
        text += script[i];
    }
    return text;
}

void RunScripts(Connection& connection, std::string_view folder)
{
    for (const host::EmbeddedFile& file : EmbeddedFiles())
        if (IsIn(folder, file))
            connection.Execute(WithoutComments(file.content));
}

std::vector<std::string> SchemaTables()
{
    std::vector<std::string> tables;
    for (const host::EmbeddedFile& file : EmbeddedFiles()) {
        if (!IsIn(kSchema, file))
            continue;
        for (const std::string& line : Split(file.content, "\n")) {
            if (!line.starts_with(kCreateTable))
                continue;
            const std::string rest = line.substr(kCreateTable.size());
            tables.push_back(rest.substr(0, rest.find(' ')));
        }
    }
    return tables;
}

}  // namespace kavelin::demo
