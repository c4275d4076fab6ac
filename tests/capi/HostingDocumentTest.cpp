// docs/hosting.md shows the examples as they are compiled and run, and leaves nothing out.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

namespace kavelin::test {

namespace {

const std::filesystem::path kSources = KAVELIN_SOURCE_DIR;
const std::filesystem::path kDocument = kSources / "docs" / "hosting.md";

std::string ReadText(const std::filesystem::path& file)
{
    std::ifstream stream(file);
    EXPECT_TRUE(stream) << file;
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

// The document with the text of each named file between the fences behind its name:
//   <!-- examples/c/capital_share.c -->
//   ```c
std::string WithFiles(const std::string& document, std::set<std::string>& files)
{
    std::istringstream lines(document);
    std::string result;
    std::smatch match;
    for (std::string line; std::getline(lines, line);) {
        result += line + "\n";
        if (!std::regex_match(line, match, std::regex("<!-- (examples/\\S+) -->")))
            continue;
        const std::string name = match[1];
        files.insert(name);
        std::getline(lines, line);
        EXPECT_EQ(line.rfind("```", 0), 0u) << "no code behind the name of " << name;
        result += line + "\n" + ReadText(kSources / name) + "```\n";
        while (std::getline(lines, line) && line != "```") {
        }
    }
    return result;
}

// All matches of the pattern's first group.
std::set<std::string> Names(const std::string& text, const std::string& pattern)
{
    const std::regex expression(pattern);
    std::set<std::string> names;
    for (std::sregex_iterator at(text.begin(), text.end(), expression), end; at != end; ++at)
        names.insert((*at)[1]);
    return names;
}

}  // namespace

TEST(TheHostingPage, ShowsTheExamplesAsTheyAre)
{
    const std::string document = ReadText(kDocument);
    std::set<std::string> files;
    const std::string wanted = WithFiles(document, files);
    for (const char* example :
         {"examples/c/capital_share.c", "examples/cpp/capital_share.cpp", "examples/com/capital_share.vbs"})
        EXPECT_TRUE(files.contains(example)) << example;
    if (std::getenv("KAVELIN_REWRITE"))
        std::ofstream(kDocument) << wanted;
    else
        EXPECT_TRUE(document == wanted) << "KAVELIN_REWRITE=1 writes the examples into " << kDocument;
}

TEST(TheHostingPage, TellsEveryFunctionOfTheCInterface)
{
    const std::string document = ReadText(kDocument);
    const auto functions =
        Names(ReadText(kSources / "include" / "kavelin.h"), "KAVELIN_API [^;(]*?(kavelin_\\w+)\\(");
    EXPECT_GE(functions.size(), 19u);
    for (const std::string& function : functions)
        EXPECT_NE(document.find("`" + function + "`"), std::string::npos) << function;
}

TEST(TheHostingPage, TellsEveryNameUnderWhichTheLibraryAsksForAnObject)
{
    const std::string document = ReadText(kDocument);
    const auto names =
        Names(ReadText(kSources / "src" / "automation" / "ObjectNames.h"), "\"(\\w+\\.\\w+)\"");
    EXPECT_GE(names.size(), 12u);
    for (const std::string& name : names)
        EXPECT_NE(document.find("| " + name + " |"), std::string::npos) << name;
}

}  // namespace kavelin::test
