#include "component/Component.h"
#include "component/Factories.h"

namespace kavelin {

namespace {

using enum MemberKind;

// clang-format off
constexpr Member kFCSumInfo[] = {
    {"ObjreportManager", Property}, {"ReportTitle", Property},  {"ObjLogin", Property},
    {"mConnectionString", Property}, {"TempTablename", Method}, {"GETSQL", Method, 1},
    {"GetSqlForOld", Method, 1},    {"MoveDataDetail", Method}, {"GetViewFilter", Method, 1},
};
constexpr Member kAreaStockReport[] = {
    {"GETSQL", Method, 1},
};
constexpr Member kSFCSumCon[] = {
    {"strInvCCode", Property},    {"strInvCName", Property},  {"strInvName", Property, 1},
    {"strInvCode", Property, 1},     {"varDate", Property, 1},      {"strWhCode", Property},
    {"strWhStyle", Property},     {"intInvGrade", Property},  {"intRdGrade", Property},
    {"blnWhSum", Property},       {"bytDirect", Property},    {"bytFree", Property},
    {"IntThanZero", Property},    {"IntThanZeroA", Property}, {"strReportType", Property},
    {"BlnIfOcc", Property},       {"BlnUnAccounted", Property}, {"BlnAccounted", Property},
    {"strDefineSub", Property},   {"strDefineRec", Property}, {"strDefineSal", Property},
    {"itemCls", Property},        {"itemCode", Property},     {"cAssComUnitNum", Property},
    {"strCompareQuantity", Property}, {"CreateNewTemplate", Method, 2},
};
constexpr Member kSfcSumInfo[] = {
    {"ObjreportManager", Property},  {"ReportTitle", Property},    {"ObjLogin", Property},
    {"mConnectionString", Property}, {"sarn_tmpTable", Property},  {"TempTablename", Method},
    {"MoveDataDetail", Method},      {"GETSQL", Method, 1},
};
constexpr Member kIASFCReport[] = {
    {"tmpTable", Property}, {"sTable", Property}, {"GetSum", Method, 25},
};
constexpr Member kLastRep[] = {
    {"ObjreportManager", Property},  {"ReportTitle", Property},   {"ObjLogin", Property},
    {"mConnectionString", Property}, {"TempTablename", Property}, {"GetSqlForOld", Method, 1},
    {"GETSQL", Method, 1},           {"MoveDataDetail", Method},  {"Createsql", Method, 2},
};
constexpr Member kWtInfo[] = {
    {"sarn_tmpTable", Property}, {"TempTablename", Method},   {"MoveDataDetail", Method}, {"GETSQL", Method, 1},
    {"GetSqlForOld", Method, 1}, {"Execute", Method, 1},      {"ExecuteForOld", Method, 1},
};
constexpr Member kCinTurnRep[] = {
    {"ObjreportManager", Property},  {"ReportTitle", Property},   {"ObjLogin", Property},
    {"mConnectionString", Property}, {"TempTablename", Property}, {"GetSqlForOld", Method, 1},
    {"GETSQL", Method, 1},           {"MoveDataDetail", Method},
};
constexpr Member kFilterControl[] = {
    {"CallBack_FilterInit", Method, 1},       {"CallBack_ValueChange", Method, 2},
    {"CallBack_FilterClick", Method, 2},      {"CallBack_ReportViewChange", Method, 3},
    {"CallBack_ReportViewInit", Method, 2},   {"InitAccMonth", Method},
};
constexpr Member kAbc[] = {
    {"ObjreportManager", Property},  {"ReportTitle", Property},   {"ObjLogin", Property},
    {"mConnectionString", Property}, {"TempTablename", Property}, {"GetSqlForOld", Method, 1},
    {"GETSQL", Method, 1},           {"MoveDataDetail", Method},  {"ExecuteForOld", Method, 1},
    {"Execute", Method, 1},
};
constexpr Member kProPortion[] = {
    {"ObjreportManager", Property},  {"ReportTitle", Property},   {"ObjLogin", Property},
    {"mConnectionString", Property}, {"TempTablename", Property}, {"GETSQL", Method, 1},
    {"MoveDataDetail", Method},
};
constexpr Member kBusiness[] = {
    {"Init", Method, 1},
};
constexpr Member kStaCostacc[] = {
    {"sarn_tmpTable", Property}, {"MoveDataDetail", Method}, {"GETSQL", Method, 1},
    {"GetSqlForOld", Method, 1}, {"Execute", Method, 1},     {"CreateCostInfoTable", Method, 9},
};
constexpr Member kIaAnalysis[] = {
    {"sarn_tmpTable", Property}, {"MoveDataDetail", Method}, {"GETSQL", Method, 1}, {"Execute", Method, 1},
};
constexpr Member kFCInventory[] = {
    {"sarn_tmpTable", Property}, {"MoveDataDetail", Method}, {"GETSQL", Method, 1},
};
constexpr Member kOutDetailInfo[] = {
    {"sarn_tmpTable", Property}, {"MoveDataDetail", Method}, {"GETSQL", Method, 1}, {"Execute", Method, 1},
};

constexpr PublicClass kPublicClasses[] = {
    {"clsFCSumInfo", kFCSumInfo, CreateFCSumInfo},
    {"clsAreaStockReport", kAreaStockReport, CreateAreaStockReport},
    {"clsSFCSumCon", kSFCSumCon, CreateSFCSumCon},
    {"clsSfcSumInfo", kSfcSumInfo, CreateSfcSumInfo},
    {"clsIASFCReport", kIASFCReport, CreateIASFCReport},
    {"clsLastRep", kLastRep, CreateLastRep},
    {"ClsWtInfo", kWtInfo, CreateWtInfo},
    {"clsCinTurnRep", kCinTurnRep, CreateCinTurnRep},
    {"clsFilterControl", kFilterControl, CreateFilterControl},
    {"ClsABC", kAbc, CreateABC},
    {"clsProPortion", kProPortion, CreateProPortion},
    {"ClsBusiness", kBusiness, CreateBusiness},
    {"clsStaCostacc", kStaCostacc, CreateStaCostacc},
    {"clsIaAnalysis", kIaAnalysis, CreateIaAnalysis},
    {"ClsFCInventory", kFCInventory, CreateFCInventory},
    {"ClsOutDetailInfo", kOutDetailInfo, CreateOutDetailInfo},
};
// clang-format on

}  // namespace

std::span<const PublicClass> PublicClasses()
{
    return kPublicClasses;
}

}  // namespace kavelin
