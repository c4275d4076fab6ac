#include "support/tds/ProcedureCall.h"

#include "frame/Text.h"
#include "support/tds/Columns.h"

#include <utility>

namespace kavelin::test::tds {

namespace {

constexpr std::uint16_t kByNumber = 0xFFFF;
constexpr std::uint16_t kNoText = 0xFFFF;
constexpr std::uint32_t kNoLongText = 0xFFFFFFFF;
constexpr std::uint8_t kFixedInteger = 0x38;  // four bytes that are never null

// Drivers call them by number or by name.
Procedure ProcedureOf(std::string_view name)
{
    constexpr std::pair<std::string_view, Procedure> kNames[] = {
        {"sp_executesql", Procedure::ExecuteSql}, {"sp_prepare", Procedure::Prepare},
        {"sp_execute", Procedure::Execute},       {"sp_prepexec", Procedure::PrepareAndExecute},
        {"sp_unprepare", Procedure::Unprepare},
    };
    for (const auto& [known, procedure] : kNames)
        if (EqualsNoCase(known, name))
            return procedure;
    return Procedure::Other;
}

std::string_view TakeText8(Reader& reader)
{
    return reader.Take(std::size_t{2} * reader.Take<std::uint8_t>());
}

Value TakeInteger(Reader& reader, std::size_t length)
{
    if (length == 0)
        return Value::Null();
    if (length != sizeof(std::int32_t))
        throw ProtocolError("an argument is an integer of another size");
    return reader.Take<std::int32_t>();
}

Value TakeArgument(Reader& reader)
{
    TakeText8(reader);            // the name
    reader.Take<std::uint8_t>();  // whether it gives something back
    const auto type = reader.Take<std::uint8_t>();
    if (type == kFixedInteger)
        return TakeInteger(reader, sizeof(std::int32_t));
    switch (static_cast<WireType>(type)) {
        case WireType::Integer:
            reader.Take<std::uint8_t>();  // the greatest length
            return TakeInteger(reader, reader.Take<std::uint8_t>());
        case WireType::Nvarchar: {
            const auto greatest = reader.Take<std::uint16_t>();
            reader.Take(kCollation.size());
            if (greatest == kNoText)
                throw ProtocolError("an argument comes in pieces");
            const auto length = reader.Take<std::uint16_t>();
            return length == kNoText ? Value::Null() : Value(FromUtf16(reader.Take(length)));
        }
        case WireType::Ntext: {
            reader.Take<std::uint32_t>();
            reader.Take(kCollation.size());
            const auto length = reader.Take<std::uint32_t>();
            return length == kNoLongText ? Value::Null() : Value(FromUtf16(reader.Take(length)));
        }
        default: throw ProtocolError("an argument is of a type that is not read");
    }
}

}  // namespace

ProcedureCall ReadCall(std::string_view content)
{
    Reader reader(content);
    ProcedureCall call;
    const auto length = reader.Take<std::uint16_t>();
    if (length == kByNumber) {
        call.procedure = static_cast<Procedure>(reader.Take<std::uint16_t>());
    } else {
        call.name = FromUtf16(reader.Take(std::size_t{2} * length));
        call.procedure = ProcedureOf(call.name);
    }
    reader.Take<std::uint16_t>();  // options
    while (!reader.AtEnd())
        call.arguments.push_back(TakeArgument(reader));
    return call;
}

void AppendHandle(Bytes& bytes, std::int32_t handle)
{
    bytes += '\xAC';
    Append(bytes, std::uint16_t{0});  // the first argument
    AppendText8(bytes, "");
    bytes += '\1';                    // an output
    Append(bytes, std::uint32_t{0});  // no type of a user's own
    Append(bytes, std::uint16_t{0});
    bytes += static_cast<char>(WireType::Integer);
    bytes += static_cast<char>(sizeof handle);
    bytes += static_cast<char>(sizeof handle);
    Append(bytes, handle);
}

void AppendProcedureDone(Bytes& bytes)
{
    bytes += '\x79';
    Append(bytes, std::int32_t{0});
    bytes += '\xFE';
    Append(bytes, std::uint16_t{0});
    Append(bytes, std::uint16_t{0});
    Append(bytes, std::int64_t{0});
}

}  // namespace kavelin::test::tds
