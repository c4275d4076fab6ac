#include "analysis/TurnoverFormat.h"

#include "frame/Value.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace kavelin {

namespace {

std::shared_ptr<LateBound> ObjectIn(const Variant& answer)
{
    const auto* object = std::get_if<HostObjectPtr>(&answer);
    return object ? std::dynamic_pointer_cast<LateBound>(*object) : nullptr;
}

bool IsShown(std::string_view column, const TurnoverGroups& groups, bool byAmount)
{
    if (column == "部门_编码" || column == "部门_名称")
        return groups.blnGroupDep;
    if (column == "仓库_编码" || column == "仓库_名称")
        return groups.blnGroupWh;
    if (column == "存货_分类")
        return groups.blnGroupInvClass;
    if (column.starts_with("存货"))
        return groups.blnGroupInv;
    if (column == "分析_出库成本")
        return byAmount;
    return true;
}

}  // namespace

void HideEmptyColumns(const HostObjectPtr& reportManager, const TurnoverGroups& groups, bool byAmount)
{
    const auto manager = std::dynamic_pointer_cast<LateBound>(reportManager);
    if (!manager)
        return;
    const auto format = ObjectIn(manager->Call("ReportFormatByName", {Value("存货周转率分析")}));
    if (!format)
        return;
    const auto columns = ObjectOf<LateBound>(format->Get("cols"), "cols");
    const std::int32_t count = ToInt32(ValueOf(columns->Get("Count"), "Count"));
    for (std::int32_t position = 1; position <= count; ++position) {
        const auto column = ObjectOf<LateBound>(columns->Call("Item", {Value(position)}), "Item");
        if (IsShown(ToText(ValueOf(column->Get("Expression"), "Expression")), groups, byAmount))
            continue;
        column->Put("Col", Value(0));
        column->Put("colVisible", Value(false));
    }
}

}  // namespace kavelin
