#include "host/ReportManager.h"

#include "frame/Errors.h"
#include "frame/Text.h"

#include <cstdint>

namespace kavelin::host {

namespace {

[[noreturn]] void ThrowNoMember(std::string_view object, std::string_view member)
{
    throw Error("The " + std::string(object) + " has no member " + std::string(member) + ".");
}

class ColumnObject : public LateBound {
  public:
    explicit ColumnObject(std::shared_ptr<FormatColumn> column) : objColumn(std::move(column)) {}

    Variant Get(std::string_view member) override
    {
        if (EqualsNoCase(member, "Expression"))
            return Value(objColumn->expression);
        if (EqualsNoCase(member, "Col"))
            return Value(objColumn->position);
        if (EqualsNoCase(member, "colVisible"))
            return Value(objColumn->visible);
        ThrowNoMember("column", member);
    }

    void Put(std::string_view member, const Variant& value) override
    {
        if (EqualsNoCase(member, "Col"))
            objColumn->position = ToInt32(ValueOf(value, member));
        else if (EqualsNoCase(member, "colVisible"))
            objColumn->visible = ToBoolean(ValueOf(value, member));
        else
            ThrowNoMember("column", member);
    }

    Variant Call(std::string_view member, const std::vector<Variant>&) override
    {
        ThrowNoMember("column", member);
    }

  private:
    std::shared_ptr<FormatColumn> objColumn;
};

using FormatColumns = std::vector<std::shared_ptr<FormatColumn>>;

// The format's `cols`.
class ColumnsObject : public LateBound {
  public:
    explicit ColumnsObject(FormatColumns columns) : lstColumns(std::move(columns)) {}

    Variant Get(std::string_view member) override
    {
        if (!EqualsNoCase(member, "Count"))
            ThrowNoMember("format's columns", member);
        return Value(static_cast<std::int64_t>(lstColumns.size()));
    }

    void Put(std::string_view member, const Variant&) override { ThrowNoMember("format's columns", member); }

    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        if (!EqualsNoCase(member, "Item") || arguments.size() != 1)
            ThrowNoMember("format's columns", member);
        const std::int32_t position = ToInt32(ValueOf(arguments[0], member));
        if (position < 1 || static_cast<std::size_t>(position) > lstColumns.size())
            throw Error("The format has no column " + std::to_string(position) + ".");
        return HostObjectPtr(
            std::make_shared<ColumnObject>(lstColumns[static_cast<std::size_t>(position) - 1]));
    }

  private:
    FormatColumns lstColumns;
};

class FormatObject : public LateBound {
  public:
    explicit FormatObject(FormatColumns columns) : lstColumns(std::move(columns)) {}

    Variant Get(std::string_view member) override
    {
        if (!EqualsNoCase(member, "cols"))
            ThrowNoMember("report format", member);
        return HostObjectPtr(std::make_shared<ColumnsObject>(lstColumns));
    }
    void Put(std::string_view member, const Variant&) override { ThrowNoMember("report format", member); }
    Variant Call(std::string_view member, const std::vector<Variant>&) override
    {
        ThrowNoMember("report format", member);
    }

  private:
    FormatColumns lstColumns;
};

class ListForm : public LateBound {
  public:
    explicit ListForm(std::function<void()> refresh) : objRefresh(std::move(refresh)) {}

    Variant Get(std::string_view member) override { ThrowNoMember("report's form", member); }
    void Put(std::string_view member, const Variant&) override { ThrowNoMember("report's form", member); }
    Variant Call(std::string_view member, const std::vector<Variant>&) override
    {
        if (!EqualsNoCase(member, "RefreshList"))
            ThrowNoMember("report's form", member);
        objRefresh();
        return Value();
    }

  private:
    std::function<void()> objRefresh;
};

}  // namespace

ReportManager::ReportManager(std::string_view columns, std::function<void()> refresh)
    : objRefresh(std::move(refresh))
{
    if (columns.empty())
        return;
    int position = 0;
    for (const std::string& column : Split(columns, ","))
        lstColumns.push_back(std::make_shared<FormatColumn>(FormatColumn{column, ++position}));
}

std::string ReportManager::VisibleColumns() const
{
    std::string visible;
    for (const auto& column : lstColumns)
        if (column->visible)
            visible += (visible.empty() ? "" : ",") + column->expression;
    return visible;
}

Variant ReportManager::Get(std::string_view member)
{
    ThrowNoMember("report manager", member);
}

void ReportManager::Put(std::string_view member, const Variant&)
{
    ThrowNoMember("report manager", member);
}

Variant ReportManager::Call(std::string_view member, const std::vector<Variant>& /*arguments*/)
{
    if (EqualsNoCase(member, "ReportFormatByName"))
        return lstColumns.empty() ? HostObjectPtr()
                                  : HostObjectPtr(std::make_shared<FormatObject>(lstColumns));
    if (EqualsNoCase(member, "ReportListFormByName"))
        return HostObjectPtr(std::make_shared<ListForm>(objRefresh));
    ThrowNoMember("report manager", member);
}

}  // namespace kavelin::host
