#include "demo/Scripts.h"

#include "frame/Text.h"
#include "host/DataFiles.h"

#include <span>

namespace kavelin::demo {

// Generated from the folder data.
std::span<const host::EmbeddedFile> EmbeddedFiles();

namespace {

constexpr std::string_view kSchema = "schema";
constexpr std::string_view kSeparator = "GO";
constexpr std::string_view kCreateTable = "create table ";

bool IsIn(std::string_view folder, const host::EmbeddedFile& file)
{
    return file.name.starts_with(folder) && file.name.substr(folder.size()).starts_with('/');
}

}  // namespace

std::vector<std::string> Batches(std::string_view script)
{
    std::vector<std::string> batches(1);
    for (const std::string& line : Split(script, "\n")) {
        if (EqualsNoCase(Trim(line), kSeparator))
            batches.emplace_back();
        else
            batches.back() += line + "\n";
    }
    std::erase_if(batches, [](const std::string& batch) {
        return batch.find_first_not_of(" \n") == std::string::npos;
    });
    return batches;
}

std::vector<std::string> ScriptBatches(std::string_view folder)
{
    std::vector<std::string> all;
    for (const host::EmbeddedFile& file : EmbeddedFiles())
        if (IsIn(folder, file))
            for (std::string& batch : Batches(file.content))
                all.push_back(std::move(batch));
    return all;
}

void RunScripts(Connection& connection, std::string_view folder)
{
    for (const std::string& batch : ScriptBatches(folder))
        connection.Execute(batch);
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
