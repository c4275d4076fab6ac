#include "embedded/engine/EngineErrors.h"

#include <gtest/gtest.h>

namespace kavelin::embedded {

namespace {

TEST(EngineErrors, TakeDuckDbsDressOffTheMessage)
{
    const struct {
        const char *duck, *message;
        int number;
        const char* state;
    } cases[] = {
        {"Invalid Input Error: [8134] Divide by zero error encountered.", "Divide by zero error encountered.",
         8134, "22012"},
        {"Invalid Input Error: [515] Cannot insert the value NULL into column 'a: b'.",
         "Cannot insert the value NULL into column 'a: b'.", 515, "23000"},
        {"Out of Memory Error: failed to allocate data of size 1.0 GiB (2.0 GiB/2.0 GiB used)",
         "There is insufficient system memory to run this query. KAVELIN_MEMORY and KAVELIN_SPILL allow more.",
         701, "HY001"},
        {"Failed to append: could not allocate block of size 256.0 KiB (59.8 MiB/60.0 MiB used)\nDatabase is",
         "There is insufficient system memory to run this query. KAVELIN_MEMORY and KAVELIN_SPILL allow more.",
         701, "HY001"},
        {"IO Error: Could not write all bytes to file \"x\": wanted=1 wrote=0: No space left on device",
         "The disk is full. Make room and try again.", 1105, "HY000"},
        {"IO Error: Corrupt database file: computed checksum 1 does not match stored checksum 2 in block 3",
         "The account's file is damaged: what was read is not what was written. Put back a copy of it.", 824,
         "HY000"},
        {"IO Error: Could not read enough bytes from file \"x\": attempted to read 3192 bytes from location 0",
         "The account's file is damaged: what was read is not what was written. Put back a copy of it.", 823,
         "HY000"},
        {"Constraint Error: Duplicate key \"a: 1\" violates primary key constraint.",
         "Violation of PRIMARY KEY constraint. Cannot insert duplicate key.", 2627, "23000"},
        {"INTERRUPT Error: Interrupted!", "The statement was cancelled.", 0, "HY008"},
        {"Internal Error: what nobody foresaw\n\nLINE 1: SELECT", "what nobody foresaw", 0, ""},
    };
    for (const auto& c : cases) {
        const DatabaseError::Details details = DetailsOf(DuckError(c.duck), "select 1", {});
        EXPECT_EQ(details.strMessage, c.message);
        EXPECT_EQ(details.lngNumber, c.number) << c.duck;
        EXPECT_EQ(details.strSqlState, c.state) << c.duck;
    }
}

TEST(EngineErrors, HaveNoPlaceWhereThereIsNoStatement)
{
    const DatabaseError::Details details = DetailsOf(DuckError("IO Error: x"), "", {});
    EXPECT_EQ(details.lngLine, 0);
    EXPECT_EQ(details.lngColumn, 0);
}

TEST(EngineErrors, TellTheLineAndColumnInCharacters)
{
    const std::string batch = "select 1\r\nselect N'直运', x";
    const auto details = DetailsOf(SqlError(207, "Invalid column name 'x'.", {28, 1}), batch);
    EXPECT_EQ(details.lngNumber, 207);
    EXPECT_EQ(details.strSqlState, "42S22");
    EXPECT_EQ(details.lngLine, 2);
    EXPECT_EQ(details.lngColumn, 15);
    EXPECT_EQ(details.strStatement, batch);
    EXPECT_EQ(details.strMessage, "Invalid column name 'x'.");
}

}  // namespace

}  // namespace kavelin::embedded
