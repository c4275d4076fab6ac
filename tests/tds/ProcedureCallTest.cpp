#include "support/tds/ProcedureCall.h"

#include "support/tds/Columns.h"

#include <gtest/gtest.h>

namespace kavelin::test::tds {
namespace {

Bytes ByNumber(Procedure procedure)
{
    Bytes bytes("\xFF\xFF", 2);
    Append(bytes, static_cast<std::uint16_t>(procedure));
    Append(bytes, std::uint16_t{0});
    return bytes;
}

void AddInteger(Bytes& bytes, std::int32_t number)
{
    bytes += Bytes("\0\0\x26\x04\x04", 5);
    Append(bytes, number);
}

void AddText(Bytes& bytes, const std::string& text)
{
    const Bytes wide = ToUtf16(text);
    bytes += Bytes("\0\0\xE7\xFE\x1F", 5);
    bytes += kCollation;
    Append(bytes, static_cast<std::uint16_t>(wide.size()));
    bytes += wide;
}

TEST(ReadCall, TakesANumberAndItsArguments)
{
    Bytes bytes = ByNumber(Procedure::ExecuteSql);
    AddText(bytes, "select N'货'");
    AddInteger(bytes, -7);
    bytes += Bytes("\0\0\x26\x04\x00", 5);  // null
    const ProcedureCall call = ReadCall(bytes);
    EXPECT_EQ(call.procedure, Procedure::ExecuteSql);
    EXPECT_EQ(call.arguments, (std::vector<Value>{"select N'货'", -7, Value::Null()}));
}

TEST(ReadCall, TakesANameInAnyCase)
{
    Bytes bytes;
    AppendText16(bytes, "SP_Execute");
    Append(bytes, std::uint16_t{0});
    EXPECT_EQ(ReadCall(bytes).procedure, Procedure::Execute);
}

TEST(ReadCall, KeepsTheNameOfAnotherProcedure)
{
    Bytes bytes;
    AppendText16(bytes, "sp_who");
    Append(bytes, std::uint16_t{0});
    EXPECT_EQ(ReadCall(bytes).procedure, Procedure::Other);
    EXPECT_EQ(ReadCall(bytes).name, "sp_who");
}

TEST(ReadCall, RefusesArgumentsThatItCannotRead)
{
    Bytes bytes = ByNumber(Procedure::Execute);
    bytes += Bytes("\0\0\x6D\x08\x00", 5);  // a float
    EXPECT_THROW(ReadCall(bytes), ProtocolError);
    Bytes ends = ByNumber(Procedure::Execute);
    AddInteger(ends, 7);
    ends.pop_back();
    EXPECT_THROW(ReadCall(ends), ProtocolError);
}

}  // namespace
}  // namespace kavelin::test::tds
