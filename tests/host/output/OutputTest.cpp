#include "host/output/Output.h"

#include "FixedRows.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace kavelin::host {
namespace {

TEST(ParseFormat, KnowsThreeNames)
{
    EXPECT_EQ(ParseFormat("table"), OutputFormat::Table);
    EXPECT_EQ(ParseFormat("CSV"), OutputFormat::Csv);
    EXPECT_EQ(ParseFormat("json"), OutputFormat::Json);
    EXPECT_EQ(ParseFormat("xml"), std::nullopt);
    EXPECT_EQ(ParseFormat(""), std::nullopt);
}

TEST(WriteRows, WritesTheFormAskedFor)
{
    const struct {
        OutputFormat format;
        std::string_view text;
    } cases[] = {
        {OutputFormat::Table, "n\n─\n1\nThe first 1 row. There are more.\n"},
        {OutputFormat::Csv, "n\r\n1\r\n"},
        {OutputFormat::Json, "[\n{\"n\": 1}\n]\n"},
    };
    for (const auto& c : cases) {
        CountingRows rows(2);
        OutputOptions options;
        options.format = c.format;
        options.limit = 1;
        std::ostringstream out;
        WriteRows(rows, options, out);
        EXPECT_EQ(out.str(), c.text);
    }
}

TEST(WriteRows, TellsOfAnOutputThatTakesNoMore)
{
    for (const OutputFormat format : {OutputFormat::Table, OutputFormat::Csv, OutputFormat::Json}) {
        CountingRows rows(100000);
        OutputOptions options;
        options.format = format;
        std::ofstream full("/dev/full");
        EXPECT_THROW(WriteRows(rows, options, full), Error);
    }
}

}  // namespace
}  // namespace kavelin::host
