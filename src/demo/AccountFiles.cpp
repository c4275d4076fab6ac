#include "demo/AccountFiles.h"

#include "demo/CsvReader.h"
#include "demo/FieldValue.h"
#include "demo/NewAccount.h"
#include "demo/Scripts.h"
#include "embedded/EmbeddedAccount.h"
#include "embedded/engine/BulkLoad.h"
#include "frame/Errors.h"
#include "frame/Text.h"
#include "host/output/OutputCsv.h"
#include "host/output/OutputFile.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <set>
#include <vector>

namespace kavelin::demo {

namespace {

namespace fs = std::filesystem;
using embedded::ColumnInfo;
using embedded::Database;
using embedded::ObjectInfo;
using embedded::ObjectKind;

constexpr std::string_view kSystemPrefix = "VosSystem..";
constexpr std::string_view kEnding = ".csv";

bool IsSystemName(std::string_view name)
{
    return EqualsNoCase(name.substr(0, kSystemPrefix.size()), kSystemPrefix);
}

// The tables of an account by the name under which they are sent: that of a table of the system database
// has its prefix.
class Tables {
  public:
    explicit Tables(const embedded::EmbeddedAccount& account)
        : arrAccount(account.Objects(Database::Account)), arrSystem(account.Objects(Database::System))
    {
    }

    struct Found {
        std::string name;
        const ObjectInfo* object = nullptr;  // null: there is none
    };

    Found Find(std::string_view name) const
    {
        if (!IsSystemName(name))
            if (const ObjectInfo* object = FindIn(arrAccount, name))
                return {object->name, object};
        const std::string_view bare = IsSystemName(name) ? name.substr(kSystemPrefix.size()) : name;
        const ObjectInfo* object = FindIn(arrSystem, bare);
        return {object ? std::string(kSystemPrefix) + object->name : std::string(name), object};
    }

  private:
    static const ObjectInfo* FindIn(const std::vector<ObjectInfo>& objects, std::string_view name)
    {
        const auto found = std::ranges::find_if(objects, [&](const ObjectInfo& object) {
            return object.kind == ObjectKind::Table && EqualsNoCase(object.name, name);
        });
        return found == objects.end() ? nullptr : &*found;
    }

    std::vector<ObjectInfo> arrAccount;
    std::vector<ObjectInfo> arrSystem;
};

struct TableFile {
    fs::path path;
    Tables::Found table;

    std::string Name() const { return path.filename().string(); }
};

// "Vendor.csv, line 3, column cVCCode: message."
[[noreturn]] void Refuse(const TableFile& file, std::int64_t line, std::string_view column,
                         const std::string& message)
{
    std::string place = file.Name();
    if (line > 0)
        place += ", line " + std::to_string(line);
    if (!column.empty())
        place += ", column " + std::string(column);
    throw Error(place + ": " + message + (message.ends_with('.') ? "" : "."));
}

// The files of a folder, each with its table. All are known before the first is read.
std::vector<TableFile> FindFiles(const fs::path& folder, const Tables& tables)
{
    std::error_code error;
    fs::directory_iterator entries(folder, error);
    if (error)
        throw Error("The folder " + folder.string() + " cannot be read: " + error.message() + ".");

    std::vector<TableFile> files;
    for (const fs::directory_entry& entry : entries)
        if (EqualsNoCase(entry.path().extension().string(), kEnding))
            files.push_back({entry.path(), tables.Find(entry.path().stem().string())});
    std::ranges::sort(files, {}, &TableFile::path);

    std::set<const ObjectInfo*> taken;
    for (const TableFile& file : files) {
        if (file.table.object == nullptr)
            Refuse(file, 0, {}, "the account has no table '" + file.table.name + "'");
        if (!taken.insert(file.table.object).second)
            Refuse(file, 0, {}, "another file holds rows of " + file.table.name + " as well");
    }
    if (files.empty())
        throw Error("The folder " + folder.string() + " holds no file TABLE.csv.");
    return files;
}

// Reads one file into a table.
class TableLoader {
  public:
    TableLoader(const TableFile& file, embedded::BulkLoad& load) : objFile(file), objLoad(load) {}

    std::int64_t Run()
    {
        std::error_code ignored;
        if (fs::is_directory(objFile.path, ignored))
            Refuse(objFile, 0, {}, "that is a folder, not a file");
        std::ifstream input(objFile.path, std::ios::binary);
        if (!input)
            Refuse(objFile, 0, {}, "the file cannot be read");
        CsvReader reader(input);
        try {
            ReadHeader(reader);
            return ReadRows(reader);
        } catch (const CsvError& error) {
            Refuse(objFile, error.Line(), {}, error.what());
        }
    }

  private:
    void ReadHeader(CsvReader& reader)
    {
        std::vector<CsvField> names;
        if (!reader.Next(names))
            Refuse(objFile, 1, {}, "the line with the column names is missing");

        std::vector<std::string> columns;
        for (const CsvField& name : names) {
            const auto& known = objFile.table.object->columns;
            const auto column = std::ranges::find_if(
                known, [&](const ColumnInfo& each) { return EqualsNoCase(each.name, name.text); });
            if (column == known.end())
                Refuse(objFile, 1, {},
                       "the table " + objFile.table.name + " has no column '" + name.text + "'");
            if (std::ranges::find(arrColumns, &*column) != arrColumns.end())
                Refuse(objFile, 1, {}, "the column " + column->name + " stands there twice");
            arrColumns.push_back(&*column);
            columns.push_back(column->name);
        }
        for (const ColumnInfo& column : objFile.table.object->columns) {
            const bool hasValue = column.nullable || column.identity || column.defaultSql;
            if (!hasValue && std::ranges::find(arrColumns, &column) == arrColumns.end())
                Refuse(objFile, 1, {}, "the column " + column.name + " is missing, but takes no NULL");
        }
        objTarget = &objLoad.Open(objFile.table.name, columns);
    }

    std::int64_t ReadRows(CsvReader& reader)
    {
        std::int64_t count = 0;
        std::vector<CsvField> fields;
        std::vector<Value> row(arrColumns.size());
        while (reader.Next(fields)) {
            if (fields.size() != arrColumns.size())
                Refuse(objFile, reader.Line(), {},
                       std::to_string(fields.size()) +
                           (fields.size() == 1 ? " field stands" : " fields stand") +
                           " where the first line has " + std::to_string(arrColumns.size()) +
                           (arrColumns.size() == 1 ? " column" : " columns"));
            for (std::size_t i = 0; i < fields.size(); ++i)
                row[i] = ReadValue(fields[i], *arrColumns[i], reader.Line());
            objTarget->Append(row);
            ++count;
        }
        return count;
    }

    Value ReadValue(const CsvField& field, const ColumnInfo& column, std::int64_t line)
    {
        if (field.IsNull() && !column.nullable)
            Refuse(objFile, line, column.name, "nothing stands there, but the column takes no NULL");
        try {
            return ReadField(field, column.type);
        } catch (const ConversionError& error) {
            Refuse(objFile, line, column.name, error.what());
        }
    }

    const TableFile& objFile;
    embedded::BulkLoad& objLoad;
    embedded::BulkTable* objTarget = nullptr;
    std::vector<const ColumnInfo*> arrColumns;
};

}  // namespace

void CreateEmptyAccount(const fs::path& account)
{
    MakeWhole(account, [](const fs::path& path) { NewAccount(path).Keep(); });
}

RowCounts LoadFolder(const fs::path& account, const fs::path& folder)
{
    const std::shared_ptr<embedded::EmbeddedAccount> opened = embedded::OpenAccount(account.string());
    const Tables tables(*opened);
    const std::vector<TableFile> files = FindFiles(folder, tables);

    embedded::BulkLoad load(*opened);
    RowCounts counts;
    const TableFile* current = nullptr;
    try {
        for (const TableFile& file : files) {
            current = &file;
            counts[file.table.name] = TableLoader(file, load).Run();
        }
        current = nullptr;
        load.Commit();
    } catch (const DatabaseError& error) {
        // Keys are tested as late as at the end; the error then tells the table.
        const auto* ofTable = dynamic_cast<const embedded::BulkLoadError*>(&error);
        for (const TableFile& file : files)
            if (current == nullptr && ofTable != nullptr && file.table.name == ofTable->Table())
                current = &file;
        DatabaseError::Details details = error.Get();
        if (current != nullptr)
            details.strMessage = current->Name() + ": " + details.strMessage;
        throw DatabaseError(details);
    }
    return counts;
}

RowCounts ExportFolder(const fs::path& account, const fs::path& folder)
{
    const std::shared_ptr<embedded::EmbeddedAccount> opened = embedded::OpenAccount(account.string());
    const Tables tables(*opened);
    const auto fileOf = [&](const std::string& table) { return folder / (table + std::string(kEnding)); };

    std::vector<std::string> names;
    for (const std::string& name : SchemaTables())
        if (tables.Find(name).object != nullptr)
            names.push_back(name);

    std::error_code error;
    fs::create_directories(folder, error);
    if (error)
        throw Error("The folder " + folder.string() + " cannot be made: " + error.message() + ".");
    for (const std::string& name : names)
        if (fs::exists(fileOf(name)) && fs::file_size(fileOf(name)) > 0)
            throw Error("The folder " + folder.string() + " holds " + name + std::string(kEnding) +
                        " already; choose another one.");

    const std::shared_ptr<Connection> connection = ConnectTo(account);
    RowCounts counts;
    for (const std::string& name : names) {
        const std::unique_ptr<Recordset> rows = connection->OpenRecordset(
            "select * from " + name, CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
        counts[name] = rows->RecordCount();
        host::OutputFile file(fileOf(name).string());
        host::WriteCsv(*rows, std::nullopt, file.Stream());
        file.Finish();
    }
    connection->Close();
    return counts;
}

}  // namespace kavelin::demo
