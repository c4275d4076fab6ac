#include "support/RecordingRow.h"

#include "frame/Errors.h"

namespace kavelin::test {

namespace {

[[noreturn]] void ThrowNoMember(std::string_view member)
{
    throw Error("e has no member " + std::string(member) + ".");
}

Variant ObjectIn(const RowParts& parts, std::string_view member)
{
    const auto object = parts.objects.find(member);
    if (object == parts.objects.end())
        ThrowNoMember(member);
    return object->second;
}

std::string CellOf(const RowParts& parts, const std::string& column)
{
    const auto cell = parts.cells.find(column);
    if (cell == parts.cells.end())
        throw Error("The row has no column " + column + ".");
    return cell->second;
}

class EarlyCells : public RelateData {
  public:
    explicit EarlyCells(RowParts parts) : objParts(std::move(parts)) {}

    std::string GetData(const std::string& column) override
    {
        objParts.events->Add("RelateData.GetData " + column);
        return CellOf(objParts, column);
    }

  private:
    RowParts objParts;
};

class LateCells : public LateBound {
  public:
    explicit LateCells(RowParts parts) : objParts(std::move(parts)) {}

    Variant Get(std::string_view member) override { ThrowNoMember(member); }
    void Put(std::string_view member, const Variant& /*value*/) override { ThrowNoMember(member); }
    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        if (!EqualsNoCase(member, "GetData") || arguments.size() != 1)
            ThrowNoMember(member);
        const std::string column = ToText(ValueOf(arguments[0], "column"));
        objParts.events->Add("late RelateData.GetData " + column);
        return Value(CellOf(objParts, column));
    }

  private:
    RowParts objParts;
};

}  // namespace

std::shared_ptr<LoginContext> EarlyRow::Login()
{
    return objParts.events->Add("e.Login"), objParts.login;
}

std::string EarlyRow::Action()
{
    return objParts.events->Add("e.Action"), objParts.action;
}

std::shared_ptr<kavelin::RelateData> EarlyRow::RelateData()
{
    return objParts.events->Add("e.RelateData"), std::make_shared<EarlyCells>(objParts);
}

Variant EarlyRow::Get(std::string_view member)
{
    objParts.events->Add("late e." + std::string(member));
    return ObjectIn(objParts, member);
}

void EarlyRow::Put(std::string_view member, const Variant& /*value*/)
{
    ThrowNoMember(member);
}

Variant EarlyRow::Call(std::string_view member, const std::vector<Variant>& /*arguments*/)
{
    ThrowNoMember(member);
}

Variant LateRow::Get(std::string_view member)
{
    objParts.events->Add("late e." + std::string(member));
    if (EqualsNoCase(member, "Login"))
        return HostObjectPtr(objParts.login);
    if (EqualsNoCase(member, "Action"))
        return Value(objParts.action);
    if (EqualsNoCase(member, "RelateData"))
        return HostObjectPtr(std::make_shared<LateCells>(objParts));
    return ObjectIn(objParts, member);
}

void LateRow::Put(std::string_view member, const Variant& /*value*/)
{
    ThrowNoMember(member);
}

Variant LateRow::Call(std::string_view member, const std::vector<Variant>& /*arguments*/)
{
    ThrowNoMember(member);
}

}  // namespace kavelin::test
