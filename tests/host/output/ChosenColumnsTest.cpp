#include "host/output/ChosenColumns.h"

#include "host/HostErrors.h"
#include "host/output/FixedRows.h"

#include <gtest/gtest.h>

namespace kavelin::host {
namespace {

TEST(ChooseColumns, GivesTheNamedOnesInTheirOrder)
{
    FixedRows rows({{"a", "int"}, {"b", "nvarchar(5)"}, {"单据号", "int"}},
                   {{Value(1), Value("x"), Value(7)}, {Value(2), Value::Null(), Value(8)}});
    const std::vector<std::string> names = ColumnNames("单据号, A,,");
    const auto chosen = ChooseColumns(rows, names);
    ASSERT_EQ(chosen->FieldCount(), 2);
    EXPECT_EQ(chosen->FieldName(0), "单据号");
    EXPECT_EQ(chosen->FieldType(1), "int");
    EXPECT_EQ(ToText(chosen->Field(0)), "7");
    chosen->MoveNext();
    EXPECT_EQ(ToText(chosen->Field(1)), "2");
    chosen->MoveNext();
    EXPECT_TRUE(chosen->Eof());
}

TEST(ChooseColumns, RefusesANameThatIsNoColumn)
{
    FixedRows rows({{"amount", "money"}}, {});
    const std::vector<std::string> names = {"amuont"};
    try {
        ChooseColumns(rows, names);
        FAIL() << "taken";
    } catch (const UsageError& error) {
        EXPECT_EQ(std::string(error.what()), "The result has no column \"amuont\". Did you mean amount?");
    }
}

TEST(FindColumns, TakesTheFirstThatFitsAndPassesOverWhatIsNotThere)
{
    FixedRows rows({{"flag", "int"},
                    {"R_M_UnitCost", "float"},
                    {"R_M_Cost", "money"},
                    {"R_Labor_Cost", "money"},
                    {"R_Cost", "money"}},
                   {});
    const struct {
        const char* list;
        std::vector<std::string> found;
    } cases[] = {
        {"R_*_Cost,FLAG", {"R_M_Cost", "flag"}},
        {"r_*_unitcost", {"R_M_UnitCost"}},
        {"*Cost", {"R_M_UnitCost"}},
        {"R_*", {"R_M_UnitCost"}},
        {"R_*_Dif,missing,D_*_Cost", {}},
        {"R_Cost*R_Cost", {}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(FindColumns(rows, ColumnNames(c.list)), c.found) << c.list;
}

}  // namespace
}  // namespace kavelin::host
