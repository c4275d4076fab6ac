#include "Check.h"

#include "frame/Text.h"

#include <cstdio>
#include <cstdlib>

namespace kavelin::fuzz {

namespace {

// Words of DuckDB and of the statements that the writer makes, none of which a user knows.
constexpr std::string_view kForeignWords[] = {
    "duckdb",       "INTERNAL",
    "Binder Error", "Catalog Error",
    "Parser Error", "Conversion Error",
    "Out of Range", "Invalid Input",
    "LINE 1",       "Candidate",
    "\"main\"",     "kavelin_",
    "HUGEINT",      "UINT8",
    "INT16",        "INT32",
    "INT64",        "UTINYINT",
    "vossystem.",   "work.",
    "temp.main",    "TransactionContext",
    "CAST(",        "rowid",
};

}  // namespace

void Require(bool fact, const std::string& what)
{
    if (fact)
        return;
    std::fprintf(stderr, "FINDING: %s\n", what.c_str());
    std::abort();
}

void RequireGoodError(const embedded::SqlError& error, std::string_view text)
{
    const std::string message = error.what();
    Require(error.Number() > 0, "an error without a number: " + message);
    Require(!message.empty(), "an error without a message");
    Require(std::size_t{error.Where().offset} + error.Where().length <= text.size(),
            "an error that points behind the text: " + message);
    RequireOwnWords(message, text);
}

void RequireOwnWords(std::string_view message, std::string_view text)
{
    for (const std::string_view word : kForeignWords) {
        if (message.find(word) == std::string_view::npos)
            continue;
        const bool ofText = ToLower(std::string(text)).find(ToLower(std::string(word))) != std::string::npos;
        Require(ofText, "a message with a word of the engine's: " + std::string(message));
    }
}

}  // namespace kavelin::fuzz
