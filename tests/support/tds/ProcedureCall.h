// Calls of procedures, as far as drivers make them on their own: to prepare a statement and to run it.
#pragma once

#include "frame/Value.h"
#include "support/tds/Wire.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kavelin::test::tds {

enum class Procedure : std::uint16_t {
    Other = 0,
    ExecuteSql = 10,
    Prepare = 11,
    Execute = 12,
    PrepareAndExecute = 13,
    Unprepare = 15,
};

struct ProcedureCall {
    Procedure procedure = Procedure::Other;
    std::string name;              // if called by it
    std::vector<Value> arguments;  // whole numbers, texts and nulls
};

// `content` without the heads in front. Throws ProtocolError for arguments of other types.
ProcedureCall ReadCall(std::string_view content);

// The handle of a prepared statement as the procedure's first argument gives it back.
void AppendHandle(Bytes& bytes, std::int32_t handle);

// The end of a procedure that went well, with what it returns: 0.
void AppendProcedureDone(Bytes& bytes);

}  // namespace kavelin::test::tds
