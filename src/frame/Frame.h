// What stands between a host's call and a report's own work: the frame takes the filter, the login and
// the name of the result table out of the argument, opens the connections, calls MoveDataDetail and closes.
//
// It is the same dozen steps for every report, with small differences that are wanted. They stand in one
// table, kFrameRows in Frame.cpp: a row for each entry of each class, which RunFrame follows.
#pragma once

#include "frame/Connection.h"
#include "frame/Value.h"
#include "frame/host/ReportCallArgs.h"

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace kavelin {

enum class FrameEntry { GETSQL, GetSqlForOld };

// Members of the argument, in the order in which an entry reads them. A new gcnnAccount is made before
// Login is read, and all connections are opened right behind it; with DataSource its type is set to 2.
enum class FrameRead {
    RawFilter,
    Login,
    ObjreportManager,
    ArgABC,
    DataSource,
    sql,
    LangID,
    ArgIADataTable,
    ArgIAAreeTable,
};

enum class FrameConnections {
    Account,
    AccountAndSystem,  // and gcnnSystem, with the login's password and without time-outs
    AccountAndOwn,     // and one that the report owns, opened as gcnnAccount
};

// What MoveDataDetail gives for a success.
enum class FrameSuccess { EmptyText, True, Always };

// What a success closes and sets to nothing.
enum class FrameEnd { CloseAndForget, CloseAndForgetLogin, Close, CloseOwn };

struct FrameRow {
    std::string_view className;
    FrameEntry entry;
    // The data source's name of the type property where the argument is late-bound; empty where it is not.
    std::string_view lateTypeMember;
    std::span<const FrameRead> reads;
    FrameConnections connections;
    FrameSuccess success;
    FrameEnd end;
};

// All entries of all report classes.
std::span<const FrameRow> FrameRows();

// The row of an entry. Throws Error if the class has no such entry.
const FrameRow& FindFrameRow(std::string_view className, FrameEntry entry);

// What the frame found in the argument and made for the report. A member of the report object, so that it
// stays between calls.
struct FrameContext {
    std::shared_ptr<ReportFilterObject> objFilter;
    std::string strTable;  // the result table
    HostObjectPtr objReportManager;
    std::map<FrameRead, Value> dicArgs;  // the Arg... members that the entry reads
    std::shared_ptr<Connection> cnnOwn;
};

using MoveDataDetailCall = std::function<Value()>;

// Runs an entry with an early-bound or a late-bound argument. Errors of the reads and of the connections go
// to the caller; those of MoveDataDetail too, unless it traps them itself.
void RunFrame(const FrameRow& row, ReportCallArgs& e, FrameContext& context,
              const MoveDataDetailCall& moveDataDetail);
void RunFrame(const FrameRow& row, LateBound& e, FrameContext& context,
              const MoveDataDetailCall& moveDataDetail);

}  // namespace kavelin
