#include "demo/CsvReader.h"

#include <gtest/gtest.h>

#include <sstream>

namespace kavelin::demo {
namespace {

// Each record as `[a][NULL][""]` behind its line number.
std::string ReadAll(const std::string& text)
{
    std::istringstream input(text);
    CsvReader reader(input);
    std::vector<CsvField> record;
    std::string all;
    while (reader.Next(record)) {
        all += std::to_string(reader.Line());
        for (const CsvField& field : record)
            all += field.IsNull() ? "[NULL]" : field.text.empty() ? "[\"\"]" : "[" + field.text + "]";
        all += ' ';
    }
    return all;
}

TEST(CsvReader, ReadsFieldsAndRecords)
{
    const struct {
        std::string text, expected;
    } cases[] = {
        {"", ""},
        {"a,b\nc,d\n", "1[a][b] 2[c][d] "},
        {"a,b\r\nc,d\r\n", "1[a][b] 2[c][d] "},
        {"a,b\nc,d", "1[a][b] 2[c][d] "},  // no line end behind the last line
        {"\xEF\xBB\xBF"
         "a,b\n",
         "1[a][b] "},
        {"\xEF\xBC\x8C", "1[\xEF\xBC\x8C] "},  // begins like a mark and is a comma of full width
        {"\xEF\xBB\xBF", ""},
        {"a,,\"\"\n", "1[a][NULL][\"\"] "},
        {",\n", "1[NULL][NULL] "},
        {"a\n\nb\n", "1[a] 2[NULL] 3[b] "},  // an empty line is one null field
        {"\"a,b\",c\n", "1[a,b][c] "},
        {"\"say \"\"hi\"\"\"\n", "1[say \"hi\"] "},
        {"\"\"\"\"\n", "1[\"] "},
        {"\"two\nlines\",x\ny,z\n", "1[two\nlines][x] 3[y][z] "},
        {"\"two\r\nlines\",x\r\ny,z", "1[two\r\nlines][x] 3[y][z] "},
        {"\"lone\rreturn\"\n", "1[lone\rreturn] "},
        {" a , b \n", "1[ a ][ b ] "},  // blanks belong to the field
        {"不锈钢板,2mm\n", "1[不锈钢板][2mm] "},
        {"a,\"b\"", "1[a][b] "},
        {"a,", "1[a][NULL] "},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ReadAll(c.text), c.expected) << c.text;
}

TEST(CsvReader, TellsTheLineOfWhatIsNotWellFormed)
{
    const struct {
        std::string text;
        std::int64_t line;
        std::string message;
    } cases[] = {
        {"a\nb,\"c\nd\n", 2, "the field that begins with a quote here never ends"},
        {"a\nb\"c\n", 2, "a quote stands within a field that does not begin with one"},
        {"a\n\"b\"c\n", 2, "more text stands behind a closing quote"},
        {"\"a\n\n\" ,b\n", 3, "more text stands behind a closing quote"},
        {"a\rb\n", 1, "a carriage return stands without a line feed behind it"},
    };
    for (const auto& c : cases) {
        try {
            ReadAll(c.text);
            ADD_FAILURE() << c.text;
        } catch (const CsvError& error) {
            EXPECT_EQ(error.Line(), c.line) << c.text;
            EXPECT_EQ(error.what(), c.message) << c.text;
        }
    }
}

}  // namespace
}  // namespace kavelin::demo
