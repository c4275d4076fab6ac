#include "goods/TemplateClasses.h"

#include "frame/FilterWalk.h"
#include "goods/TemplateColumns.h"

namespace kavelin {

namespace {

struct Direction {
    const char* suffix;
    const char* quantity;
    const char* amount;
};
constexpr Direction kIn = {"入", "Isnull(Ia_Ensubsidiary.iAInQuantity,0)",
                           "Isnull(Ia_Ensubsidiary.iAInPrice,0)"};
constexpr Direction kOut = {"出", "Isnull(Ia_Ensubsidiary.iAOutQuantity,0)",
                            "Isnull(Ia_Ensubsidiary.iAOutPrice,0)"};

// A class's columns; `test` opens a case that a line of the class meets.
std::string ClassMeasures(const std::string& name, const std::string& test, const Direction& direction,
                          const std::string& amount)
{
    const auto column = [&](const std::string& value, const char* measure) {
        return test + " " + value + " else 0 end AS N'" + name + measure + direction.suffix + "'";
    };
    return column(InPieces(direction.quantity), "_件数") + column(direction.quantity, "_数量") + amount +
           " AS N'" + name + "_金额" + direction.suffix + "'";
}

std::string ClassZeros(const std::string& name, const Direction& direction)
{
    return ZeroColumn(name + "_件数" + direction.suffix) + ZeroColumn(name + "_数量" + direction.suffix) +
           ZeroColumn(name + "_金额" + direction.suffix);
}

bool IsReceipt(const Value& flag)
{
    if (flag.IsNull())
        return false;
    const std::int32_t number = ToInt32(flag);
    return number == 1 || number == -1;
}

void AddWithoutClass(ClassColumns& columns, bool receipt)
{
    const std::string name = receipt ? "无分类入" : "无分类出";
    const Direction& direction = receipt ? kIn : kOut;
    const std::string test = ",case when cRdCode is null then";
    const std::string counted = direction.amount + std::string(" else 0 end");
    const std::string amount =
        receipt ? test + " " + counted
                : ",case Ia_Ensubsidiary.bRdFlag when 0 then (case when cRdCode is null then " + counted +
                      ") else 0 end";
    columns.strColumns += ClassMeasures(name, test, direction, amount);
    columns.strZeros += ClassZeros(name, direction);
}

// The length at which a class code is cut has no value in the text.
void AddClass(ClassColumns& columns, bool receipt, const std::string& code, const std::string& name)
{
    const Direction& direction = receipt ? kIn : kOut;
    const std::string test = ",case left(cRdCode,) when N'" + code + "' then";
    columns.strColumns += ClassMeasures(name, test, direction, test + " " + direction.amount + " else 0 end");
    columns.strZeros += ClassZeros(name, direction);
}

}  // namespace

std::string SelectClasses(const std::string& strMachine)
{
    return "Select Distinct  cRdCode,Ia_Ensubsidiary.bRdFlag,cRdName from  [temp_rdstyle" + strMachine +
           "]  "
           " order by Ia_Ensubsidiary.bRdFlag desc,cRdCode desc ";
}

ClassColumns ComposeClassColumns(Recordset& classes)
{
    ClassColumns columns;
    for (; !classes.Eof(); classes.MoveNext()) {
        const Value code = classes.Field("cRdCode");
        const bool receipt = IsReceipt(classes.Field("bRdFlag"));
        if (code.IsNull())
            AddWithoutClass(columns, receipt);
        else
            AddClass(columns, receipt, ToText(code), FilterText(classes.Field("cRdName")));
    }
    return columns;
}

}  // namespace kavelin
