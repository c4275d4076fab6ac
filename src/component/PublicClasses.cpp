// The members of the public interfaces. Their order is that of the dispatch identifiers: it never changes.
#include "component/Component.h"
#include "component/Factories.h"

namespace kavelin {

namespace {

using enum MemberKind;
using enum Kind;

constexpr bool kByReference = true;
constexpr bool kOptional = true;

// clang-format off
constexpr Parameter kCallArgs[] = {{"e", Object}};  // the host's argument of a report's entry

constexpr Parameter kIndex[] = {{"Index", Byte}};

constexpr Parameter kViewFilter[] = {{"strFilter", Text}};

constexpr Parameter kNewTemplate[] = {{"objFilter", Object, kByReference}, {"sTableName", Text}};

constexpr Parameter kCreateSql[] = {{"sSumTable", Text, kByReference}, {"bOM", Boolean}};

constexpr Parameter kBusinessInit[] = {{"oBusiness", Object}};

constexpr Parameter kFilterInit[] = {{"objFilter", Object, kByReference}};
constexpr Parameter kValueChange[] = {{"sKey", Text, kByReference}, {"flt", Object, kByReference}};
constexpr Parameter kFilterClick[] = {{"objFilter", Object, kByReference}, {"Cancel", Boolean, kByReference}};
constexpr Parameter kReportViewChange[] = {
    {"sKey", Text, kByReference}, {"flt", Object, kByReference}, {"ReturnViewClass", Any, kByReference},
};
constexpr Parameter kReportViewInit[] = {
    {"flt", Object, kByReference}, {"ReturnViewClass", Any, kByReference},
};

constexpr Parameter kGetSum[] = {
    {"strInvCCode", Text},
    {"strInvStart", Text},
    {"strInvEnd", Text},
    {"varDateStart", Any},
    {"varDateEnd", Any},
    {"strWhDepCode", Text},
    {"bAccount", Boolean},
    {"BUnAccount", Boolean},
    {"iEndbz", Int16},
    {"iEndbzPrice", Int16},
    {"BFsbz", Int16},
    {"strCompareQuantity", Text},
    {"intInvCGrade", Int16, kByReference, kOptional},
    {"blnUpGrade", Boolean, kByReference, kOptional},
    {"intRdGrade", Int16, kByReference, kOptional},
    {"blnWhSum", Boolean, kByReference, kOptional},
    {"bytFree", Byte, kByReference, kOptional},
    {"bytDirect", Byte, kByReference, kOptional},
    {"strDefineSub", Text, kByReference, kOptional},
    {"strDefineRec", Text, kByReference, kOptional},
    {"strDefineSal", Text, kByReference, kOptional},
    {"itemCls", Text, kByReference, kOptional},
    {"itemCode", Text, kByReference, kOptional},
    {"cAssComUnitNum", Int16, kByReference, kOptional},
    {"nCount", Int32, kByReference, kOptional},
};

constexpr Parameter kCostInfoTable[] = {
    {"bAccounted", Boolean},
    {"bUnAccounted", Boolean},
    {"WtTableName", Text},
    {"sConditionWhere", Text},
    {"sVouTypeWhere", Text},
    {"sBusTypeWhere", Text},
    {"sLang", Text},
    {"m_cAssunitNo", Int32},
    {"varReserved", Any, !kByReference, kOptional},
};

constexpr Member kFCSumInfo[] = {
    {"ObjreportManager", Property, Object},
    {"ReportTitle", Property, Text},
    {"ObjLogin", Property, Object},
    {"mConnectionString", Property, Text},
    {"TempTablename", Method, Text},
    {"GETSQL", Method, Nothing, kCallArgs},
    {"GetSqlForOld", Method, Nothing, kCallArgs},
    {"MoveDataDetail", Method, Boolean},
    {"GetViewFilter", Method, Text, kViewFilter},
};
constexpr Member kAreaStockReport[] = {
    {"GETSQL", Method, Nothing, kCallArgs},
};
constexpr Member kSFCSumCon[] = {
    {"strInvCCode", Property, Text},
    {"strInvCName", Property, Text},
    {"strInvName", Property, Text, kIndex},
    {"strInvCode", Property, Text, kIndex},
    {"varDate", Property, Any, kIndex},
    {"strWhCode", Property, Text},
    {"strWhStyle", Property, Text},
    {"intInvGrade", Property, Int16},
    {"intRdGrade", Property, Int16},
    {"blnWhSum", Property, Boolean},
    {"bytDirect", Property, Byte},
    {"bytFree", Property, Byte},
    {"IntThanZero", Property, Int16},
    {"IntThanZeroA", Property, Int16},
    {"strReportType", Property, Text},
    {"BlnIfOcc", Property, Int16},
    {"BlnUnAccounted", Property, Boolean},
    {"BlnAccounted", Property, Boolean},
    {"strDefineSub", Property, Text},
    {"strDefineRec", Property, Text},
    {"strDefineSal", Property, Text},
    {"itemCls", Property, Text},
    {"itemCode", Property, Text},
    {"cAssComUnitNum", Property, Int16},
    {"strCompareQuantity", Property, Text},
    {"CreateNewTemplate", Method, Nothing, kNewTemplate},
};
constexpr Member kSfcSumInfo[] = {
    {"ObjreportManager", Property, Object},
    {"ReportTitle", Property, Text},
    {"ObjLogin", Property, Object},
    {"mConnectionString", Property, Text},
    {"sarn_tmpTable", Property, Text},
    {"TempTablename", Method, Text},
    {"MoveDataDetail", Method, Boolean},
    {"GETSQL", Method, Nothing, kCallArgs},
};
constexpr Member kIASFCReport[] = {
    {"tmpTable", Property, Text},
    {"sTable", Property, Text},
    {"GetSum", Method, Any, kGetSum},
};
constexpr Member kLastRep[] = {
    {"ObjreportManager", Property, Object},
    {"ReportTitle", Property, Text},
    {"ObjLogin", Property, Object},
    {"mConnectionString", Property, Text},
    {"TempTablename", Property, Text},
    {"GetSqlForOld", Method, Nothing, kCallArgs},
    {"GETSQL", Method, Nothing, kCallArgs},
    {"MoveDataDetail", Method, Boolean},
    {"Createsql", Method, Boolean, kCreateSql},
};
constexpr Member kWtInfo[] = {
    {"sarn_tmpTable", Property, Text},
    {"TempTablename", Method, Text},
    {"MoveDataDetail", Method, Text},
    {"GETSQL", Method, Nothing, kCallArgs},
    {"GetSqlForOld", Method, Nothing, kCallArgs},
    {"Execute", Method, Nothing, kCallArgs},
    {"ExecuteForOld", Method, Nothing, kCallArgs},
};
constexpr Member kCinTurnRep[] = {
    {"ObjreportManager", Property, Object},
    {"ReportTitle", Property, Text},
    {"ObjLogin", Property, Object},
    {"mConnectionString", Property, Text},
    {"TempTablename", Property, Text},
    {"GetSqlForOld", Method, Nothing, kCallArgs},
    {"GETSQL", Method, Nothing, kCallArgs},
    {"MoveDataDetail", Method, Boolean},
};
constexpr Member kFilterControl[] = {
    {"CallBack_FilterInit", Method, Any, kFilterInit},
    {"CallBack_ValueChange", Method, Nothing, kValueChange},
    {"CallBack_FilterClick", Method, Any, kFilterClick},
    {"CallBack_ReportViewChange", Method, Nothing, kReportViewChange},
    {"CallBack_ReportViewInit", Method, Nothing, kReportViewInit},
    {"InitAccMonth", Method, Nothing},
};
constexpr Member kAbc[] = {
    {"ObjreportManager", Property, Object},
    {"ReportTitle", Property, Text},
    {"ObjLogin", Property, Object},
    {"mConnectionString", Property, Text},
    {"TempTablename", Property, Text},
    {"GetSqlForOld", Method, Nothing, kCallArgs},
    {"GETSQL", Method, Nothing, kCallArgs},
    {"MoveDataDetail", Method, Boolean},
    {"ExecuteForOld", Method, Nothing, kCallArgs},
    {"Execute", Method, Nothing, kCallArgs},
};
constexpr Member kProPortion[] = {
    {"ObjreportManager", Property, Object},
    {"ReportTitle", Property, Text},
    {"ObjLogin", Property, Object},
    {"mConnectionString", Property, Text},
    {"TempTablename", Property, Text},
    {"GETSQL", Method, Nothing, kCallArgs},
    {"MoveDataDetail", Method, Boolean},
};
constexpr Member kBusiness[] = {
    {"Init", Method, Nothing, kBusinessInit},
};
constexpr Member kStaCostacc[] = {
    {"sarn_tmpTable", Property, Text},
    {"MoveDataDetail", Method, Text},
    {"GETSQL", Method, Nothing, kCallArgs},
    {"GetSqlForOld", Method, Nothing, kCallArgs},
    {"Execute", Method, Nothing, kCallArgs},
    {"CreateCostInfoTable", Method, Boolean, kCostInfoTable},
};
constexpr Member kIaAnalysis[] = {
    {"sarn_tmpTable", Property, Text},
    {"MoveDataDetail", Method, Text},
    {"GETSQL", Method, Nothing, kCallArgs},
    {"Execute", Method, Nothing, kCallArgs},
};
constexpr Member kFCInventory[] = {
    {"sarn_tmpTable", Property, Text},
    {"MoveDataDetail", Method, Text},
    {"GETSQL", Method, Nothing, kCallArgs},
};
constexpr Member kOutDetailInfo[] = {
    {"sarn_tmpTable", Property, Text},
    {"MoveDataDetail", Method, Text},
    {"GETSQL", Method, Nothing, kCallArgs},
    {"Execute", Method, Nothing, kCallArgs},
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
