#include "host/definition/StockView.h"

#include "frame/Text.h"
#include "host/definition/StockConditions.h"
#include "host/definition/StockDimensions.h"
#include "host/definition/StockMeasures.h"

#include <utility>

namespace kavelin::host {

namespace {

std::string Bracketed(const std::string& name)
{
    return "[" + ReplaceAll(name, "]", "]]") + "]";
}

bool IsNumberGiven(const FilterInput& input, std::string_view key)
{
    for (const FieldInput& field : input.Fields())
        if (EqualsNoCase(field.field->key, key))
            return !field.values.empty() && LeadingNumber(field.values.front()) != 0;
    return false;
}

// In the order of their codes.
std::vector<StockClass> ReadClasses(Connection& account, const std::string& table)
{
    const auto rows = account.OpenRecordset(
        "select isnull(cRdCode,N'') as cRdCode,max(isnull(crdname,N'')) as crdname," + StockLinesReceived() +
            " as received," + StockLinesIssued() + " as issued\r\nfrom " + table +
            "\r\ngroup by isnull(cRdCode,N'')\r\norder by cRdCode",
        CursorLocation::Client, CursorType::Static, LockType::ReadOnly);
    std::vector<StockClass> classes;
    for (; !rows->Eof(); rows->MoveNext())
        classes.push_back({ToText(rows->Field("cRdCode")), ToText(rows->Field("crdname")),
                           ToInt32(rows->Field("received")) > 0, ToInt32(rows->Field("issued")) > 0});
    return classes;
}

class StockView : public ReportView {
  public:
    StockView(const FilterInput& input, std::string_view groups)
        : lstGroups(StockGroupColumns(groups)),
          strHaving(StockGroupCondition(input)),
          blnPieces(IsNumberGiven(input, "cAssComUnitNum")),
          blnByClass(IsNumberGiven(input, "rdGrade"))
    {
    }

    ViewSelects Of(Connection& account, const std::string& table) const override
    {
        const std::vector<StockClass> classes =
            blnByClass ? ReadClasses(account, table) : std::vector<StockClass>();
        const std::vector<StockMeasure> measures = StockMeasures(blnPieces, blnByClass, classes);
        const std::string groups = SelectGroups(table, measures);

        ViewSelects selects = {groups + "\r\norder by " + OrderByColumns(lstGroups),
                               SelectTotals(groups, measures),
                               WithoutUnusedFreeItems(account, table, lstGroups)};
        for (const StockMeasure& measure : measures)
            selects.columns.push_back(measure.column);
        return selects;
    }

  private:
    std::string SelectGroups(const std::string& table, const std::vector<StockMeasure>& measures) const
    {
        std::string select = "select " + ShowColumns(lstGroups);
        for (const StockMeasure& measure : measures)
            select += ",\r\n" + measure.expression + " as " + Bracketed(measure.column.name);
        select += "\r\nfrom " + table + "\r\ngroup by " + GroupByColumns(lstGroups);
        return strHaving.empty() ? select : select + "\r\nhaving " + strHaving;
    }

    static std::string SelectTotals(const std::string& groups, const std::vector<StockMeasure>& measures)
    {
        std::string list;
        for (const StockMeasure& measure : measures) {
            const std::string name = Bracketed(measure.column.name);
            list += (list.empty() ? "" : ",\r\n") + std::string("sum(g.") + name + ") as " + name;
        }
        return "select " + list + "\r\nfrom (" + groups + ") g";
    }

    std::vector<ViewColumn> lstGroups;
    std::string strHaving;
    bool blnPieces;   // also in the second unit that the filter chose
    bool blnByClass;  // receipts and issues by class, in columns
};

}  // namespace

std::unique_ptr<ReportView> MakeStockView(const FilterInput& input, std::string_view groups)
{
    return std::make_unique<StockView>(input, groups);
}

const ReportDefinition kStockDefinition = {StockDimensions, MakeStockView};

}  // namespace kavelin::host
