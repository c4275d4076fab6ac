#include "host/definition/StockDimensions.h"

#include "frame/Text.h"
#include "host/HostErrors.h"
#include "host/ValueGate.h"
#include "host/output/TableLayout.h"

#include <algorithm>

namespace kavelin::host {

namespace {

constexpr int kDetail = kName + 2;  // rank; below it stand the differences

struct Dimension {
    std::string_view name;
    std::vector<ViewColumn> columns;
};

constexpr std::string_view kFreeItem = "cfree";

std::vector<ViewColumn> FreeItems()
{
    std::vector<ViewColumn> columns;
    for (int number = 1; number <= 10; ++number) {
        const std::string digits = std::to_string(number);
        columns.push_back({std::string(kFreeItem) + digits, {"自由项" + digits, "Free " + digits}});
    }
    return columns;
}

const std::vector<Dimension>& Dimensions()
{
    static const std::vector<Dimension> dimensions = {
        {"item",
         {{"cInvCode", {"存货", "Item"}, true},
          {"cInvName", {"存货名称", "Name"}, false, kName},
          {"cInvAddCode", {"存货代码", "Other code"}, false, kDetail},
          {"cInvStd", {"规格型号", "Model"}, false, kDetail},
          {"CComUnitName", {"单位", "Unit"}, false, kDetail}}},
        {"warehouse",
         {{"cwhcode", {"仓库", "Whse"}, true}, {"cwhname", {"仓库名", "Warehouse"}, false, kName}}},
        {"class", {{"cInvCCode", {"分类", "Class"}, true}}},
        {"free", FreeItems()},
        {"rd", {{"cRdCode", {"类别", "Cat."}, true}, {"crdname", {"类别名", "Category"}, false, kName}}},
        {"business", {{"cbustype", {"业务类型", "Business"}}}},
        {"document", {{"cvoutype", {"单据", "Doc"}, true}}},
    };
    return dimensions;
}

const Dimension& DimensionOf(std::string_view name)
{
    if (EqualsNoCase(name, "batch"))
        throw UsageError(
            "The rows of the stock summary hold no batch to group by; cBatchIA of the filter limits "
            "it to one.");
    for (const Dimension& dimension : Dimensions())
        if (EqualsNoCase(dimension.name, name))
            return dimension;
    throw UsageError("The stock summary has no dimension \"" + std::string(name) + "\"." +
                     DidYouMean(name, StockDimensions()));
}

std::string Listed(const std::vector<ViewColumn>& columns, const std::string& before,
                   const std::string& behind, bool named)
{
    std::string list;
    for (const ViewColumn& column : columns)
        list +=
            (list.empty() ? "" : ",") + before + column.name + behind + (named ? " as " + column.name : "");
    return list;
}

}  // namespace

std::vector<std::string_view> StockDimensions()
{
    std::vector<std::string_view> names;
    for (const Dimension& dimension : Dimensions())
        names.push_back(dimension.name);
    return names;
}

std::vector<ViewColumn> StockGroupColumns(std::string_view groups)
{
    std::vector<ViewColumn> columns;
    for (const std::string& part : Split(groups.empty() ? "item" : groups, ","))
        for (const ViewColumn& column : DimensionOf(Trim(part)).columns)
            if (std::ranges::find(columns, column.name, &ViewColumn::name) == columns.end())
                columns.push_back(column);
    return columns;
}

std::string ShowColumns(const std::vector<ViewColumn>& columns)
{
    return Listed(columns, "isnull(", ",N'')", true);
}

std::string GroupByColumns(const std::vector<ViewColumn>& columns)
{
    return Listed(columns, "isnull(", ",N'')", false);
}

std::string OrderByColumns(const std::vector<ViewColumn>& columns)
{
    return Listed(columns, "", "", false);
}

std::vector<ViewColumn> WithoutUnusedFreeItems(Connection& account, const std::string& table,
                                               std::vector<ViewColumn> columns)
{
    const auto isFreeItem = [](const ViewColumn& column) { return column.name.starts_with(kFreeItem); };
    std::string list;
    for (const ViewColumn& column : columns)
        if (isFreeItem(column))
            list += (list.empty() ? "select max(isnull(" : ",max(isnull(") + column.name + ",N'')) as " +
                    column.name;
    if (list.empty())
        return columns;
    const auto used = account.OpenRecordset(list + " from " + table, CursorLocation::Client,
                                            CursorType::Static, LockType::ReadOnly);
    std::erase_if(columns, [&](const ViewColumn& column) {
        if (!isFreeItem(column))
            return false;
        const Value value = used->Field(column.name);
        return value.IsNull() || ToText(value).empty();
    });
    return columns;
}

}  // namespace kavelin::host
