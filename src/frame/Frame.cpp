#include "frame/Frame.h"

#include "frame/CallArguments.h"
#include "frame/Errors.h"
#include "frame/ModPub.h"

namespace kavelin {

namespace {

using enum FrameRead;
using enum FrameEntry;

constexpr FrameRead kOrdinary[] = {RawFilter, Login, DataSource, sql, LangID};
constexpr FrameRead kWithoutLanguage[] = {RawFilter, Login, DataSource, sql};
constexpr FrameRead kLanguageFirst[] = {RawFilter, Login, DataSource, LangID, sql};
constexpr FrameRead kManagerOld[] = {RawFilter, Login, ObjreportManager, DataSource, LangID, sql};
constexpr FrameRead kManagerWithoutLanguage[] = {RawFilter, Login, ObjreportManager, DataSource, sql};
constexpr FrameRead kAbc[] = {RawFilter, Login, ArgABC, DataSource, sql};
constexpr FrameRead kArea[] = {Login, DataSource, sql, ArgIADataTable, ArgIAAreeTable};

constexpr auto kAccount = FrameConnections::Account;
constexpr auto kSystem = FrameConnections::AccountAndSystem;
constexpr auto kOwn = FrameConnections::AccountAndOwn;
constexpr auto kEmptyText = FrameSuccess::EmptyText;
constexpr auto kTrue = FrameSuccess::True;
constexpr auto kForget = FrameEnd::CloseAndForget;
constexpr auto kClose = FrameEnd::Close;

// clang-format off
constexpr FrameRow kFrameRows[] = {
    // class              entry         late type   reads                    opens     success  end
    {"ClsWtInfo",         GETSQL,       "",         kOrdinary,               kAccount, kEmptyText, kForget},
    {"ClsWtInfo",         GetSqlForOld, "Typecode", kOrdinary,               kAccount, kEmptyText, kForget},
    {"clsStaCostacc",     GETSQL,       "",         kOrdinary,               kAccount, kEmptyText, kForget},
    {"clsStaCostacc",     GetSqlForOld, "Typecode", kOrdinary,               kAccount, kEmptyText, kForget},
    {"clsIaAnalysis",     GETSQL,       "",         kOrdinary,               kAccount, kEmptyText, kForget},
    {"ClsFCInventory",    GETSQL,       "",         kOrdinary,               kAccount, kEmptyText, kForget},
    {"ClsOutDetailInfo",  GETSQL,       "",         kOrdinary,               kAccount, kEmptyText, kForget},
    {"clsFCSumInfo",      GETSQL,       "",         kOrdinary,               kAccount, kTrue,      kForget},
    {"clsFCSumInfo",      GetSqlForOld, "Typecode", kOrdinary,               kAccount, kTrue,      kForget},
    {"clsSfcSumInfo",     GETSQL,       "",         kWithoutLanguage,        kSystem,  kTrue,      kClose},
    {"clsCinTurnRep",     GetSqlForOld, "Typecode", kManagerOld,             kSystem,  kTrue,      kClose},
    {"clsCinTurnRep",     GETSQL,       "",         kManagerWithoutLanguage, kSystem,  kTrue,      kClose},
    {"clsLastRep",        GetSqlForOld, "Typecode", kManagerOld,             kAccount, kTrue,      kClose},
    {"clsLastRep",        GETSQL,       "Type",     kLanguageFirst,          kAccount, kTrue,      FrameEnd::CloseAndForgetLogin},
    {"ClsABC",            GetSqlForOld, "Typecode", kManagerOld,             kAccount, kTrue,      kClose},
    {"ClsABC",            GETSQL,       "Type",     kAbc,                    kAccount, kTrue,      kClose},
    {"clsProPortion",     GETSQL,       "",         kWithoutLanguage,        kOwn,     kTrue,      FrameEnd::CloseOwn},
    {"clsAreaStockReport", GETSQL,      "",         kArea,                   kAccount, FrameSuccess::Always, kClose},
};
// clang-format on

constexpr std::int16_t kDataFromTable = 2;
constexpr std::int32_t kNoOptions = -1;

void OpenAccountDatabase(Connection& connection, LoginContext& login)
{
    connection.SetCursorLocation(CursorLocation::Client);
    connection.SetConnectionString(login.VosDbName());
    connection.SetConnectionTimeout(0);
    connection.SetCommandTimeout(0);
    connection.Open("", "", kNoOptions);
}

void OpenSystemDatabase(ModPubState& state)
{
    state.gcnnSystem = CurrentPlatform().CreateConnection();
    state.gcnnSystem->SetCursorLocation(CursorLocation::Client);
    const auto database =
        ObjectOf<LateBound>(state.gobjLogin->SystemDatabase()->Get("DbConnect"), "DbConnect");
    state.gcnnSystem->SetConnectionString(
        ToText(ValueOf(database->Get("ConnectionString"), "ConnectionString")));
    state.gcnnSystem->Open("", state.gobjLogin->Password(), kNoOptions);
}

void TakeLogin(const FrameRow& row, CallArguments& arguments, FrameContext& context)
{
    ModPubState& state = ModPub();
    state.gcnnAccount = CurrentPlatform().CreateConnection();
    state.gobjLogin = arguments.Login();
    OpenAccountDatabase(*state.gcnnAccount, *state.gobjLogin);
    if (row.connections == FrameConnections::AccountAndSystem)
        OpenSystemDatabase(state);
    if (row.connections == FrameConnections::AccountAndOwn) {
        context.cnnOwn = CurrentPlatform().CreateConnection();
        OpenAccountDatabase(*context.cnnOwn, *state.gobjLogin);
    }
}

void Take(FrameRead read, const FrameRow& row, CallArguments& arguments, FrameContext& context)
{
    switch (read) {
        case RawFilter: context.objFilter = arguments.RawFilter(); break;
        case Login: TakeLogin(row, arguments, context); break;
        case ObjreportManager: context.objReportManager = arguments.ObjreportManager(); break;
        case ArgABC: context.dicArgs[read] = arguments.ArgItem("ABC"); break;
        case DataSource: arguments.SetDataSourceType(kDataFromTable); break;
        case sql: context.strTable = arguments.Sql(); break;
        case LangID: ModPub().gstrLanguage = arguments.LangID(); break;
        case ArgIADataTable: context.dicArgs[read] = arguments.ArgItem("IADataTable"); break;
        case ArgIAAreeTable: context.dicArgs[read] = arguments.ArgItem("IAAreeTable"); break;
    }
}

bool Succeeded(FrameSuccess success, const Value& outcome)
{
    switch (success) {
        case FrameSuccess::EmptyText: return EqualsNoCase(ToText(outcome), "");
        case FrameSuccess::True: return ToBoolean(outcome);
        case FrameSuccess::Always: break;
    }
    return true;
}

void CloseIfOpen(Connection& connection)
{
    if (connection.State() != ConnectionState::Closed)
        connection.Close();
}

void Finish(FrameEnd end, FrameContext& context)
{
    ModPubState& state = ModPub();
    CloseIfOpen(end == FrameEnd::CloseOwn ? *context.cnnOwn : *state.gcnnAccount);
    if (end == FrameEnd::CloseAndForget || end == FrameEnd::CloseAndForgetLogin)
        state.gcnnAccount.reset();
    if (end == FrameEnd::CloseAndForgetLogin)
        state.gobjLogin.reset();
}

void Run(const FrameRow& row, CallArguments& arguments, FrameContext& context,
         const MoveDataDetailCall& moveDataDetail)
{
    for (const FrameRead read : row.reads)
        Take(read, row, arguments, context);
    if (Succeeded(row.success, moveDataDetail()))
        Finish(row.end, context);
}

}  // namespace

std::span<const FrameRow> FrameRows()
{
    return kFrameRows;
}

const FrameRow& FindFrameRow(std::string_view className, FrameEntry entry)
{
    for (const FrameRow& row : kFrameRows)
        if (row.className == className && row.entry == entry)
            return row;
    throw Error("The class " + std::string(className) + " has no such entry.");
}

void RunFrame(const FrameRow& row, ReportCallArgs& e, FrameContext& context,
              const MoveDataDetailCall& moveDataDetail)
{
    EarlyArguments arguments(e);
    Run(row, arguments, context, moveDataDetail);
}

void RunFrame(const FrameRow& row, LateBound& e, FrameContext& context,
              const MoveDataDetailCall& moveDataDetail)
{
    LateArguments arguments(e, row.lateTypeMember);
    Run(row, arguments, context, moveDataDetail);
}

}  // namespace kavelin
