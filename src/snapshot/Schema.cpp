#include "snapshot/Schema.h"

#include "demo/Scripts.h"
#include "embedded/Plan.h"
#include "embedded/engine/BatchRunner.h"
#include "embedded/engine/ScratchCatalog.h"
#include "frame/Statement.h"
#include "frame/Text.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <utility>

namespace kavelin::snapshot {

namespace {

using embedded::Statement;

constexpr std::string_view kSystem = "VosSystem";

std::string WrittenName(const embedded::ObjectName& name)
{
    std::string written;
    if (name.database)
        written = name.database->text + "..";
    else if (name.schema)
        written = name.schema->text + ".";
    return written + name.object.text;
}

// The words of a statement that may be names.
std::set<std::string, LessNoCase> WordsOf(std::string_view text)
{
    std::set<std::string, LessNoCase> words;
    std::string word;
    for (const char character : text) {
        if (std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_') {
            word += character;
        } else if (!word.empty()) {
            words.insert(std::exchange(word, {}));
        }
    }
    words.insert(word);
    return words;
}

// Follows the scripts: nothing is run, but each statement is bound against what those before it make.
class SchemaReader {
  public:
    SchemaReader() : objCatalog({}, {}, "zh-CN") {}

    void Read(const std::string& batch)
    {
        for (const embedded::StatementPtr& statement : embedded::ParseBatch(batch)) {
            const std::string text = batch.substr(statement->place.offset, statement->place.length);
            Take(*statement, text);
            const auto plan = embedded::Translate(*statement, batch,
                                                  objCatalog.View(embedded::NeedsTablesInFile(*statement)));
            objCatalog.Apply(plan.changes);
            Describe(plan);
        }
    }

    std::vector<SchemaObject> Objects() && { return std::move(objObjects); }

  private:
    void Take(const Statement& statement, const std::string& text)
    {
        if (const auto* index = std::get_if<embedded::CreateIndexStatement>(&statement.node)) {
            for (SchemaObject& object : objObjects)
                if (EqualsNoCase(object.bareName, index->table.object.text))
                    object.statements.push_back(text);
            return;
        }
        SchemaObject object;
        object.statements = {text};
        if (const auto* table = std::get_if<embedded::CreateTableStatement>(&statement.node)) {
            Name(object, table->table);
        } else if (const auto* view = std::get_if<embedded::CreateViewStatement>(&statement.node)) {
            object.kind = SchemaKind::View;
            Name(object, view->view);
            object.standsOn = TablesBelow(text);
        } else if (const auto* function = std::get_if<embedded::CreateFunctionStatement>(&statement.node)) {
            object.kind = SchemaKind::Function;
            Name(object, function->function);
        } else {
            throw Error("A script of the schema makes something that no copy knows: " + text);
        }
        objObjects.push_back(std::move(object));
    }

    static void Name(SchemaObject& object, const embedded::ObjectName& name)
    {
        object.name = WrittenName(name);
        object.bareName = name.object.text;
        object.inSystem = name.database && EqualsNoCase(name.database->text, kSystem);
    }

    std::vector<std::string> TablesBelow(const std::string& text) const
    {
        const auto words = WordsOf(text);
        std::vector<std::string> tables;
        const auto add = [&](const std::string& table) {
            if (std::ranges::find(tables, table) == tables.end())
                tables.push_back(table);
        };
        for (const SchemaObject& object : objObjects) {
            if (!words.contains(object.bareName))
                continue;
            if (object.kind == SchemaKind::Table)
                add(object.name);
            std::ranges::for_each(object.standsOn, add);
        }
        return tables;
    }

    void Describe(const embedded::StatementPlan& plan)
    {
        for (const embedded::CatalogChange& change : plan.changes) {
            const auto* made = std::get_if<embedded::TableMade>(&change);
            if (made == nullptr)
                continue;
            SchemaObject& object = objObjects.back();
            object.columns = made->object.columns;
            if (object.kind == SchemaKind::View)  // another account's view may know less of a row
                for (embedded::ColumnInfo& column : object.columns)
                    column.nullable = true;
            object.key = made->object.primaryKey;
            if (object.key.empty())
                object.key = {object.columns.front().name};
        }
    }

    embedded::ScratchCatalog objCatalog;
    std::vector<SchemaObject> objObjects;
};

std::vector<SchemaObject> ReadSchema()
{
    SchemaReader reader;
    for (const std::string& batch : demo::ScriptBatches("schema"))
        reader.Read(batch);
    return std::move(reader).Objects();
}

}  // namespace

const std::vector<SchemaObject>& Schema()
{
    static const std::vector<SchemaObject> schema = ReadSchema();
    return schema;
}

const SchemaObject* FindInSchema(std::string_view name)
{
    for (const SchemaObject& object : Schema())
        if (EqualsNoCase(object.name, name) || EqualsNoCase(object.bareName, name))
            return &object;
    return nullptr;
}

std::string CreateTableLike(const SchemaObject& view)
{
    std::string columns;
    for (const embedded::ColumnInfo& column : view.columns)
        columns +=
            (columns.empty() ? "    " : ",\r\n    ") + column.name + " " + ToText(column.type) + " null";
    return JoinLines({
        "create table " + view.name + " (",
        columns,
        ")",
    });
}

}  // namespace kavelin::snapshot
