#include "host/output/OutputJson.h"

#include "FixedRows.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <sstream>

namespace kavelin::host {
namespace {

std::string Json(Recordset& rows, std::optional<std::int64_t> limit = std::nullopt)
{
    std::ostringstream out;
    WriteJson(rows, limit, out);
    return out.str();
}

TEST(OutputJson, WritesOneObjectALine)
{
    FixedRows rows({{"cNo", "int"},
                    {"资金占用额", "decimal(38,2)"},
                    {"d", "datetime"},
                    {"b", "bit"},
                    {"t", "nvarchar(9)"}},
                   {{1, Dec("1234567.50"), Day(2008, 7, 31), true, "六角"},
                    {2, Dec("-0.05"), Day(2008, 7, 31, 3600), false, Value::Null()}});
    EXPECT_EQ(Json(rows), R"([
{"cNo": 1, "资金占用额": 1234567.50, "d": "2008-07-31", "b": true, "t": "六角"},
{"cNo": 2, "资金占用额": -0.05, "d": "2008-07-31 01:00:00", "b": false, "t": null}
]
)");
}

TEST(OutputJson, IsAnEmptyArrayWithoutRows)
{
    FixedRows rows({{"a", "int"}}, {});
    EXPECT_EQ(Json(rows), "[]\n");
    CountingRows some(3);
    EXPECT_EQ(Json(some, 0), "[]\n");
}

TEST(OutputJson, EscapesQuotesBackslashesAndControls)
{
    const struct {
        std::string_view text, json;
    } cases[] = {
        {"", "\"\""},
        {"a\"b\\c", "\"a\\\"b\\\\c\""},
        {"\b\f\n\r\t", "\"\\b\\f\\n\\r\\t\""},
        {std::string_view("\0\x1f", 2), "\"\\u0000\\u001f\""},
        {"/", "\"/\""},
        {"𝄞é", "\"𝄞é\""},
        {"a\xFFz", "\"a\xEF\xBF\xBDz\""},
    };
    for (const auto& c : cases) {
        std::string json;
        AppendJsonText(json, c.text);
        EXPECT_EQ(json, c.json);
        EXPECT_TRUE(nlohmann::json::accept(json)) << json;
    }
}

TEST(OutputJson, RepeatsNoName)
{
    FixedRows rows({{"", "int"}, {"a", "int"}, {"a", "int"}}, {{1, 2, 3}});
    EXPECT_EQ(Json(rows), "[\n{\"column1\": 1, \"a\": 2, \"a_2\": 3}\n]\n");
}

TEST(OutputJson, HasNoWordForANumberThatIsNotFinite)
{
    FixedRows rows({{"f", "float"}}, {{std::nan("")}});
    EXPECT_THROW(Json(rows), Error);
}

TEST(OutputJson, StaysJsonOverManyRows)
{
    CountingRows rows(20000);
    const auto array = nlohmann::json::parse(Json(rows));
    ASSERT_EQ(array.size(), 20000u);
    EXPECT_EQ(array[19999]["n"], 20000);
}

}  // namespace
}  // namespace kavelin::host
