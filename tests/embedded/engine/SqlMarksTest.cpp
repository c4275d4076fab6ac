// Every rule of docs/t-sql.md has a test that names its mark, and no test names a rule that is not there.
#include "embedded/engine/SqlTestFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <regex>
#include <string>
#include <vector>

namespace kavelin::embedded {

namespace {

// The marks of the page in its order: each begins a list item, "- **T14** ...".
std::vector<std::string> MarksOfThePage()
{
    static const std::regex kItem(R"(- \*\*([A-Z][0-9]+)\*\* .*)");
    std::ifstream page(KAVELIN_SOURCE_DIR "/docs/t-sql.md");
    std::vector<std::string> marks;
    std::smatch match;
    for (std::string line; std::getline(page, line);)
        if (std::regex_match(line, match, kItem))
            marks.push_back(match[1]);
    return marks;
}

struct MarkUse {
    std::string where;      // file and line of the first block that names it
    bool compared = false;  // by a block that looks at rows, names, an error or a number of rows
};

std::map<std::string, MarkUse> MarksOfTheTests()
{
    std::map<std::string, MarkUse> marks;
    for (const std::string& path : SqlTestFiles())
        for (const SqlBlock& block : ReadSqlTestFile(path))
            for (const std::string& mark : block.marks) {
                MarkUse& use = marks.try_emplace(mark).first->second;
                if (use.where.empty())
                    use.where = path + ':' + std::to_string(block.line);
                use.compared = use.compared || Compares(block);
            }
    return marks;
}

TEST(SqlMarks, StandOnThePageOnce)
{
    std::vector<std::string> marks = MarksOfThePage();
    ASSERT_GE(marks.size(), 200u) << "docs/t-sql.md is not read as it is written";
    std::sort(marks.begin(), marks.end());
    for (auto twice = std::adjacent_find(marks.begin(), marks.end()); twice != marks.end();
         twice = std::adjacent_find(std::next(twice), marks.end()))
        ADD_FAILURE() << "docs/t-sql.md has " << *twice << " twice";
}

TEST(SqlMarks, OfThePageAreTestedEach)
{
    const std::map<std::string, MarkUse> tested = MarksOfTheTests();
    for (const std::string& mark : MarksOfThePage()) {
        const auto use = tested.find(mark);
        if (use == tested.end())
            ADD_FAILURE() << mark << " of docs/t-sql.md is named by no test in tests/embedded/sql";
        else if (!use->second.compared)
            ADD_FAILURE() << mark << " is named at " << use->second.where
                          << ", but nothing is compared there";
    }
}

TEST(SqlMarks, OfTheTestsStandOnThePage)
{
    const std::vector<std::string> page = MarksOfThePage();
    for (const auto& [mark, use] : MarksOfTheTests())
        if (std::find(page.begin(), page.end(), mark) == page.end())
            ADD_FAILURE() << use.where << " names " << mark << ", which docs/t-sql.md does not have";
}

}  // namespace

}  // namespace kavelin::embedded
