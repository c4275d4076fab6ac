#include "support/GoldenFile.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string_view>

namespace kavelin::test {

namespace {

bool Rewrites()
{
    const char* rewrite = std::getenv("KAVELIN_REWRITE");
    return rewrite && std::string_view(rewrite) == "1";
}

void Write(const std::string& text, const std::filesystem::path& file)
{
    std::filesystem::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out << text;
    out.close();
    if (!out)
        throw std::runtime_error("cannot write " + file.string());
}

std::string FirstDifference(const std::string& wanted, const std::string& given)
{
    std::istringstream wantedLines(wanted);
    std::istringstream givenLines(given);
    std::string wantedLine;
    std::string givenLine;
    for (int line = 1;; ++line) {
        const bool more = static_cast<bool>(std::getline(wantedLines, wantedLine));
        const bool moreGiven = static_cast<bool>(std::getline(givenLines, givenLine));
        if (!more && !moreGiven)
            return "only the end of the last line differs";
        if (more != moreGiven || wantedLine != givenLine)
            return "line " + std::to_string(line) + "\n  wanted: " + (more ? wantedLine : "(no more lines)") +
                   "\n  given:  " + (moreGiven ? givenLine : "(no more lines)");
    }
}

}  // namespace

std::string ReadFile(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in)
        throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(in), {}};
}

void ExpectFile(const std::string& text, const std::filesystem::path& file)
{
    if (Rewrites()) {
        Write(text, file);
        return;
    }
    const std::string wanted = std::filesystem::exists(file) ? ReadFile(file) : "";
    if (text != wanted)
        ADD_FAILURE() << file.filename().string() << ": " << FirstDifference(wanted, text)
                      << "\nKAVELIN_REWRITE=1 writes the file anew; review the difference.";
}

}  // namespace kavelin::test
