#include "snapshot/AccountCopy.h"

#include "frame/Guards.h"
#include "host/HostErrors.h"
#include "host/output/OutputTable.h"
#include "snapshot/CopyState.h"
#include "snapshot/Literal.h"
#include "snapshot/TablePages.h"
#include "snapshot/TargetObjects.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace kavelin::snapshot {

namespace {

constexpr std::int64_t kProgressRows = 1000;
constexpr std::size_t kNamed = 5;  // tables in a message

std::string Grouped(std::int64_t number)
{
    return host::GroupThousands(std::to_string(number));
}

std::int64_t Count(Connection& connection, const std::string& table, const std::string& condition)
{
    return ReadFigures(connection, table, {}, condition).rows;
}

std::string DeleteRows(const PlannedTable& table)
{
    return "delete from " + table.object->name +
           (table.targetCondition.empty() ? "" : " where " + table.targetCondition);
}

// Reads one table page by page and hands its rows on.
class TableCopy {
  public:
    TableCopy(Connection& source, CopyTarget& target, const PlannedTable& table, const CopyOptions& options,
              std::string place)
        : cnnSource(source),
          objTarget(target),
          objTable(table),
          objOptions(options),
          strPlace(std::move(place))
    {
    }

    void Run()
    {
        lngTotal = Count(cnnSource, objTable.object->name, objTable.sourceCondition);
        Columns columns;
        PagedTable paged{objTable.object->name, {}, objTable.object->key.front(), objTable.sourceCondition};
        for (const PlannedColumn& column : objTable.columns) {
            columns.push_back(column.info);
            paged.columns.push_back(column.info->name);
        }
        const auto writer = objTarget.Open(*objTable.object, columns);
        TablePages pages(cnnSource, std::move(paged), objOptions.pageRows);
        while (const auto page = pages.Next())
            Take(*page, *writer);
        Tell();
        writer->Finish();
    }

  private:
    void Take(Recordset& page, RowWriter& writer)
    {
        std::vector<Value> row(objTable.columns.size());
        for (; !page.Eof(); page.MoveNext()) {
            for (std::size_t i = 0; i < row.size(); ++i)
                row[i] = page.Field(static_cast<int>(i));
            if (objTable.object->inSystem)
                row[AccountColumn()] = Value(objOptions.choice.targetId);
            try {
                writer.Append(row);
            } catch (const BadCell& bad) {
                throw Error(fmt::format("Table {}, {}, column {}: {}", objTable.object->name, KeyOf(row),
                                        bad.Column(), bad.what()));
            }
            if (lngDone++ % kProgressRows == 0)
                Tell();
        }
    }

    // The account's number is the first column of the system database's tables.
    std::size_t AccountColumn() const
    {
        for (std::size_t i = 0; i < objTable.columns.size(); ++i)
            if (objTable.columns[i].info->name == objTable.object->key.front())
                return i;
        throw Error("The table " + objTable.object->name + " names no account.");
    }

    // "AutoID 17"
    std::string KeyOf(const std::vector<Value>& row) const
    {
        std::string key;
        for (const std::string& name : objTable.object->key)
            for (std::size_t i = 0; i < row.size(); ++i)
                if (objTable.columns[i].info->name == name)
                    key += fmt::format("{}{} {}", key.empty() ? "" : ", ", name, Literal(row[i]));
        return key;
    }

    void Tell() const
    {
        objOptions.onProgress(fmt::format("{}: {}, {} of {} rows", strPlace, objTable.object->name,
                                          Grouped(lngDone), Grouped(lngTotal)));
    }

    Connection& cnnSource;
    CopyTarget& objTarget;
    const PlannedTable& objTable;
    const CopyOptions& objOptions;
    std::string strPlace;
    std::int64_t lngTotal = 0;
    std::int64_t lngDone = 0;
};

class Copier {
  public:
    Copier(Connection& source, CopyTarget& target, const CopyPlan& plan, const CopyOptions& options)
        : cnnSource(source), objTarget(target), objPlan(plan), objOptions(options), objState(target.Account())
    {
    }

    CopyResult Run()
    {
        const AccountObjects there = ReadObjects(objTarget.Account());
        if (!objOptions.replace)
            RefuseOtherRows(there);
        objState.Begin(cnnSource);
        MakeMissing(objTarget, there, objPlan);
        for (const PlannedTable& table : objPlan.tables)
            Copy(table);
        Compare();
        return std::move(objResult);
    }

  private:
    void RefuseOtherRows(const AccountObjects& there)
    {
        std::vector<std::string> held;
        for (const PlannedTable& table : objPlan.tables) {
            if (!there.HasTable(*table.object) || objState.IsCopy(table.object->name))
                continue;
            if (const std::int64_t rows =
                    Count(objTarget.Account(), table.object->name, table.targetCondition);
                rows > 0)
                held.push_back(
                    fmt::format("{} ({} {})", table.object->name, Grouped(rows), rows == 1 ? "row" : "rows"));
        }
        if (held.empty())
            return;
        std::string names;
        for (std::size_t i = 0; i < std::min(kNamed, held.size()); ++i)
            names += (i == 0 ? "" : ", ") + held[i];
        if (held.size() > kNamed)
            names += fmt::format(" and {} more", held.size() - kNamed);
        throw host::UsageError(fmt::format(
            "The target holds rows that no copy put there: {}. Nothing was written. To have them deleted "
            "and replaced, add --replace.",
            names));
    }

    void Copy(const PlannedTable& table)
    {
        const std::string& name = table.object->name;
        const std::string place =
            fmt::format("table {} of {}", objResult.tables.size() + 1, objPlan.tables.size());
        objOptions.onProgress(fmt::format("{}: {}", place, name));
        objResult.tables.push_back({name});
        if (!objOptions.again && objState.IsWhole(name) && IsEqual(table)) {
            objResult.tables.back().wasThere = true;
            return;
        }
        objState.SetBegun(name);
        objTarget.Account().Execute(DeleteRows(table));
        try {
            TableCopy(cnnSource, objTarget, table, objOptions, place).Run();
        } catch (...) {
            // The copy that goes on later empties the table as well, where this one cannot.
            IgnoreErrors([&] {
                objOptions.onCleanUp();
                objTarget.Account().Execute(DeleteRows(table));
            });
            throw;
        }
        objState.SetWhole(name);
    }

    TableFigures OfSource(const PlannedTable& table)
    {
        return ReadFigures(cnnSource, table.object->name, table.Figures(), table.sourceCondition);
    }

    TableFigures OfTarget(const PlannedTable& table)
    {
        return ReadFigures(objTarget.Account(), table.object->name, table.Figures(), table.targetCondition);
    }

    bool IsEqual(const PlannedTable& table)
    {
        return Differences(table.object->name, table.Figures(), OfSource(table), OfTarget(table)).empty();
    }

    void Compare()
    {
        for (std::size_t i = 0; i < objPlan.tables.size(); ++i) {
            const PlannedTable& table = objPlan.tables[i];
            objOptions.onProgress("comparing " + table.object->name);
            const TableFigures target = OfTarget(table);
            objResult.tables[i].rows = target.rows;
            const auto differences =
                Differences(table.object->name, table.Figures(), OfSource(table), target);
            objResult.differences.insert(objResult.differences.end(), differences.begin(), differences.end());
        }
    }

    Connection& cnnSource;
    CopyTarget& objTarget;
    const CopyPlan& objPlan;
    const CopyOptions& objOptions;
    CopyState objState;
    CopyResult objResult;
};

}  // namespace

std::vector<TableCount> CountRows(Connection& source, const CopyPlan& plan)
{
    std::vector<TableCount> counts;
    for (const PlannedTable& table : plan.tables)
        counts.push_back({table.object->name, Count(source, table.object->name, table.sourceCondition)});
    return counts;
}

CopyResult CopyAccount(Connection& source, CopyTarget& target, const CopyPlan& plan,
                       const CopyOptions& options)
{
    return Copier(source, target, plan, options).Run();
}

}  // namespace kavelin::snapshot
