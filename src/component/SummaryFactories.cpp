// Late-bound objects of the receipt-issue-balance summary and of the estimate balance.
#include "component/Dispatch.h"
#include "component/Factories.h"
#include "frame/host/ReportCallArgs.h"
#include "frame/host/ReportFilterObject.h"
#include "summary/clsIASFCReport.h"
#include "summary/clsLastRep.h"
#include "summary/clsSFCSumCon.h"
#include "summary/clsSfcSumInfo.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace kavelin {

namespace {

// ---- fields of their types

void Take(const Value& value, Value& field)
{
    field = value;
}

void Take(const Value& value, std::string& field)
{
    field = ToText(value);
}

void Take(const Value& value, bool& field)
{
    field = ToBoolean(value);
}

void Take(const Value& value, std::uint8_t& field)
{
    field = ToByte(value);
}

void Take(const Value& value, std::int16_t& field)
{
    field = ToInt16(value);
}

void Take(const Value& value, std::int32_t& field)
{
    field = ToInt32(value);
}

Value Given(std::int16_t field)
{
    return std::int32_t{field};
}

Value Given(std::uint8_t field)
{
    return std::int32_t{field};
}

template <class T>
Value Given(const T& field)
{
    return field;
}

template <class T>
Dispatch Property(std::string_view name, T& field)
{
    Dispatch property{.name = name};
    property.get = [&field] { return Variant(Given(field)); };
    property.put = [name, &field](const Variant& value) { Take(ValueOf(value, name), field); };
    return property;
}

template <class T>
Dispatch Property(std::string_view name, IndexedPair<T>& pair)
{
    return IndexedProperty(
        name, [&pair](std::uint8_t index) { return Given(pair(index)); },
        [&pair](std::uint8_t index, const Value& value) { Take(value, pair(index)); });
}

// ---- the arguments of GetSum

// Puts the arguments one after the other into fields; those that were left out keep their defaults.
class ArgumentReader {
  public:
    explicit ArgumentReader(const std::vector<Variant>& arguments) : arrArguments(arguments) {}

    template <class T>
    ArgumentReader& operator>>(T& field)
    {
        if (lngNext < arrArguments.size())
            Take(ValueOf(arrArguments[lngNext], "GetSum"), field);
        ++lngNext;
        return *this;
    }

  private:
    const std::vector<Variant>& arrArguments;
    std::size_t lngNext = 0;
};

Variant GetSum(clsIASFCReport& engine, const std::vector<Variant>& arguments)
{
    SumArguments a;
    ArgumentReader(arguments) >> a.strInvCCode >> a.strInvStart >> a.strInvEnd >> a.varDateStart >>
        a.varDateEnd >> a.strWhDepCode >> a.bAccount >> a.BUnAccount >> a.iEndbz >> a.iEndbzPrice >>
        a.BFsbz >> a.strCompareQuantity >> a.intInvCGrade >> a.blnUpGrade >> a.intRdGrade >> a.blnWhSum >>
        a.bytFree >> a.bytDirect >> a.strDefineSub >> a.strDefineRec >> a.strDefineSal >> a.itemCls >>
        a.itemCode >> a.cAssComUnitNum >> a.nCount;
    return engine.GetSum(a);
}

}  // namespace

std::shared_ptr<LateBound> CreateSFCSumCon()
{
    auto object = std::make_shared<clsSFCSumCon>();
    clsSFCSumCon& members = *object;
    std::vector<Dispatch> dispatch = {
        Property("strInvCCode", members.strInvCCode),
        Property("strInvCName", members.strInvCName),
        Property("strInvName", members.strInvName),
        Property("strInvCode", members.strInvCode),
        Property("varDate", members.varDate),
        Property("strWhCode", members.strWhCode),
        Property("strWhStyle", members.strWhStyle),
        Property("intInvGrade", members.intInvGrade),
        Property("intRdGrade", members.intRdGrade),
        Property("blnWhSum", members.blnWhSum),
        Property("bytDirect", members.bytDirect),
        Property("bytFree", members.bytFree),
        Property("IntThanZero", members.IntThanZero),
        Property("IntThanZeroA", members.IntThanZeroA),
        Property("strReportType", members.strReportType),
        Property("BlnIfOcc", members.BlnIfOcc),
        Property("BlnUnAccounted", members.BlnUnAccounted),
        Property("BlnAccounted", members.BlnAccounted),
        Property("strDefineSub", members.strDefineSub),
        Property("strDefineRec", members.strDefineRec),
        Property("strDefineSal", members.strDefineSal),
        Property("itemCls", members.itemCls),
        Property("itemCode", members.itemCode),
        Property("cAssComUnitNum", members.cAssComUnitNum),
        Property("strCompareQuantity", members.strCompareQuantity),
        Method("CreateNewTemplate", 2,
               [&members](const std::vector<Variant>& arguments) {
                   const auto filter = automation::As<ReportFilterObject>(arguments[0], "objFilter");
                   members.CreateNewTemplate(*filter, ToText(ValueOf(arguments[1], "sTableName")));
                   return Variant(Value());
               }),
    };
    return MakeLateBound(object, std::move(dispatch));
}

std::shared_ptr<LateBound> CreateSfcSumInfo()
{
    auto report = std::make_shared<clsSfcSumInfo>();
    clsSfcSumInfo& members = *report;
    std::vector<Dispatch> dispatch = {
        ObjectProperty("ObjreportManager", members.ObjreportManager),
        TextProperty("ReportTitle", members.ReportTitle),
        ObjectProperty("ObjLogin", members.ObjLogin),
        TextProperty("mConnectionString", members.mConnectionString),
        TextProperty(
            "sarn_tmpTable", [&members] { return members.sarn_tmpTable(); },
            [&members](const std::string& table) { members.SetTempTable(table); }),
        Method("TempTablename", 0,
               [&members](const auto&) { return Variant(Value(members.TempTablename())); }),
        Method("MoveDataDetail", 0,
               [&members](const auto&) { return Variant(Value(members.MoveDataDetail())); }),
        MethodOn<ReportCallArgs>("GETSQL", [&members](ReportCallArgs& e) { members.GETSQL(e); }),
    };
    return MakeLateBound(report, std::move(dispatch));
}

std::shared_ptr<LateBound> CreateIASFCReport()
{
    auto engine = std::make_shared<clsIASFCReport>();
    clsIASFCReport& members = *engine;
    Dispatch getSum = Method("GetSum", 25, [&members](const std::vector<Variant>& arguments) {
        return GetSum(members, arguments);
    });
    getSum.optional = 13;
    std::vector<Dispatch> dispatch = {
        TextProperty("tmpTable", members.tmpTable),
        TextProperty(
            "sTable", [&members] { return members.sTable(); },
            [&members](const std::string& table) { members.SetsTable(table); }),
        std::move(getSum),
    };
    return MakeLateBound(engine, std::move(dispatch));
}

std::shared_ptr<LateBound> CreateLastRep()
{
    auto report = std::make_shared<clsLastRep>();
    clsLastRep& members = *report;
    std::vector<Dispatch> dispatch = {
        ObjectProperty("ObjreportManager", members.ObjreportManager()),
        TextProperty("ReportTitle", members.ReportTitle),
        ObjectProperty("ObjLogin", members.ObjLogin),
        TextProperty("mConnectionString", members.mConnectionString),
        TextProperty(
            "TempTablename", [&members] { return members.TempTablename(); },
            [&members](const std::string& table) { members.SetTempTablename(table); }),
        LateMethod("GetSqlForOld", [&members](LateBound& e) { members.GetSqlForOld(e); }),
        LateMethod("GETSQL", [&members](LateBound& e) { members.GETSQL(e); }),
        Method("MoveDataDetail", 0,
               [&members](const auto&) { return Variant(Value(members.MoveDataDetail())); }),
        Method("Createsql", 2,
               [&members](const std::vector<Variant>& arguments) {
                   const std::string table = ToText(ValueOf(arguments[0], "sSumTable"));
                   return Variant(Value(members.Createsql(table, ToBoolean(ValueOf(arguments[1], "bOM")))));
               }),
    };
    return MakeLateBound(report, std::move(dispatch));
}

}  // namespace kavelin
