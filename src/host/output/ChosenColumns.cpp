#include "host/output/ChosenColumns.h"

#include "frame/Text.h"
#include "host/HostErrors.h"
#include "host/ValueGate.h"

#include <utility>

namespace kavelin::host {

namespace {

class ChosenColumns : public Recordset {
  public:
    ChosenColumns(Recordset& rows, std::vector<int> fields) : objRows(rows), arrFields(std::move(fields)) {}

    bool Eof() const override { return objRows.Eof(); }
    void MoveNext() override { objRows.MoveNext(); }
    void MoveFirst() override { objRows.MoveFirst(); }
    std::int64_t RecordCount() const override { return objRows.RecordCount(); }
    int FieldCount() const override { return static_cast<int>(arrFields.size()); }
    std::string FieldName(int field) const override { return objRows.FieldName(At(field)); }
    std::string FieldType(int field) const override { return objRows.FieldType(At(field)); }
    Value Field(int field) const override { return objRows.Field(At(field)); }
    using Recordset::Field;
    void Close() override { objRows.Close(); }

  private:
    int At(int field) const { return arrFields.at(static_cast<std::size_t>(field)); }

    Recordset& objRows;
    std::vector<int> arrFields;
};

int PositionOf(const Recordset& rows, const std::string& name)
{
    std::vector<std::string> known;
    std::vector<std::string_view> views;
    for (int field = 0; field < rows.FieldCount(); ++field) {
        known.push_back(rows.FieldName(field));
        if (EqualsNoCase(known.back(), name))
            return field;
    }
    views.assign(known.begin(), known.end());
    throw UsageError("The result has no column \"" + name + "\"." + DidYouMean(name, views));
}

}  // namespace

bool FitsColumn(const std::string& pattern, const std::string& name)
{
    const std::size_t star = pattern.find('*');
    if (star == pattern.npos)
        return EqualsNoCase(pattern, name);
    return name.size() >= pattern.size() - 1 && EqualsNoCase(pattern.substr(0, star), name.substr(0, star)) &&
           EqualsNoCase(pattern.substr(star + 1), name.substr(name.size() - (pattern.size() - star - 1)));
}

std::unique_ptr<Recordset> ChooseColumns(Recordset& rows, std::span<const std::string> names)
{
    std::vector<int> fields;
    for (const std::string& name : names)
        fields.push_back(PositionOf(rows, name));
    return std::make_unique<ChosenColumns>(rows, std::move(fields));
}

std::vector<std::string> FindColumns(const Recordset& rows, std::span<const std::string> names)
{
    std::vector<std::string> found;
    for (const std::string& name : names)
        for (int field = 0; field < rows.FieldCount(); ++field)
            if (FitsColumn(name, rows.FieldName(field))) {
                found.push_back(rows.FieldName(field));
                break;
            }
    return found;
}

std::vector<std::string> ColumnNames(const std::string& list)
{
    std::vector<std::string> names;
    for (const std::string& part : Split(list, ","))
        if (const std::string_view name = Trim(part); !name.empty())
            names.emplace_back(name);
    return names;
}

}  // namespace kavelin::host
