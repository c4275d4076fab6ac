// The objects of the receipt-issue-balance summary, by name.
#include "component/Component.h"

#include "frame/Errors.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

namespace kavelin::test {

namespace {

Value Read(LateBound& object, const char* member)
{
    return ValueOf(object.Get(member), member);
}

Value Read(LateBound& object, const char* member, int index)
{
    return ValueOf(object.Call(member, {Value(index)}), member);
}

// What the engine sends for these arguments, behind what is always sent.
std::string Sent(RecordingHost& host)
{
    std::string all;
    for (const SentStatement& statement : host.Sent())
        all += statement.sql + "\n";
    return all;
}

void Prepare(RecordingHost& host)
{
    host.OpenAccount();
    host.SetParameter("IA", "dIAStartDate", "2008-01-01");
    host.Script().rows["Select cValue from AccInformation Where cName= N'cDispLevel'"] = {{"cValue"},
                                                                                          {{"223"}}};
}

// All 25, told apart by what they do.
std::vector<Variant> AllArguments()
{
    std::vector<Variant> arguments(25, Value());
    arguments[0] = Value("01");
    arguments[3] = Value("2008-07-01");
    arguments[4] = Value("2008-07-31");
    arguments[5] = Value("N'01'");
    arguments[6] = Value(true);
    arguments[7] = Value(false);
    arguments[14] = Value("2");
    arguments[16] = Value(1);
    arguments[17] = Value(1);
    arguments[18] = Value(" 1=1 ");
    arguments[21] = Value("97");
    arguments[22] = Value("P1");
    arguments[23] = Value(3);
    return arguments;
}

}  // namespace

TEST(ClsSFCSumConByName, KeepsPropertiesOfTheirTypes)
{
    const auto object = CreateObject("Kavelin.clsSFCSumCon");
    for (const char* text :
         {"strInvCCode", "strInvCName", "strWhCode", "strWhStyle", "strReportType", "strDefineSub",
          "strDefineRec", "strDefineSal", "itemCls", "itemCode", "strCompareQuantity"}) {
        EXPECT_EQ(Read(*object, text), Value("")) << text;
        object->Put(text, Value(7));
        EXPECT_EQ(Read(*object, text), Value("7")) << text;
    }
    for (const char* number :
         {"intInvGrade", "intRdGrade", "IntThanZero", "IntThanZeroA", "BlnIfOcc", "cAssComUnitNum"}) {
        EXPECT_EQ(Read(*object, number), Value(0)) << number;
        object->Put(number, Value("-300"));
        EXPECT_EQ(Read(*object, number), Value(-300)) << number;
        EXPECT_THROW(object->Put(number, Value(40000)), OverflowError) << number;
        EXPECT_THROW(object->Put(number, Value("x")), ConversionError) << number;
        EXPECT_EQ(Read(*object, number), Value(-300)) << number;
    }
    for (const char* byte : {"bytDirect", "bytFree"}) {
        EXPECT_EQ(Read(*object, byte), Value(0)) << byte;
        object->Put(byte, Value(255));
        EXPECT_EQ(Read(*object, byte), Value(255)) << byte;
        EXPECT_THROW(object->Put(byte, Value(256)), OverflowError) << byte;
    }
    for (const char* flag : {"blnWhSum", "BlnUnAccounted", "BlnAccounted"}) {
        EXPECT_EQ(Read(*object, flag), Value(false)) << flag;
        object->Put(flag, Value(1));
        EXPECT_EQ(Read(*object, flag), Value(true)) << flag;
    }
}

TEST(ClsSFCSumConByName, KeepsIndexedPropertiesByTheirIndex)
{
    const auto object = CreateObject("Kavelin.clsSFCSumCon");
    for (const char* text : {"strInvName", "strInvCode"}) {
        for (const int index : {0, 1}) {
            EXPECT_EQ(Read(*object, text, index), Value("")) << text;
            object->Call(text, {Value(index), Value("v" + std::to_string(index))});
        }
        EXPECT_EQ(Read(*object, text, 0), Value("v0")) << text;
        EXPECT_EQ(Read(*object, text, 1), Value("v1")) << text;
    }
    EXPECT_TRUE(Read(*object, "varDate", 1).IsEmpty());
    object->Call("varDate", {Value(1), Value(39630)});
    EXPECT_EQ(Read(*object, "varDate", 1), Value(39630)) << "a variant keeps its type";

    for (const char* member : {"strInvName", "strInvCode", "varDate"}) {
        EXPECT_THROW(object->Call(member, {Value(2)}), Error) << "the subscript error";
        EXPECT_THROW(object->Call(member, {Value(2), Value("x")}), Error);
        EXPECT_THROW(object->Call(member, {Value(-1)}), OverflowError);
        EXPECT_THROW(object->Call(member, {}), Error);
        EXPECT_THROW(object->Get(member), Error);
        EXPECT_THROW(object->Put(member, Value("x")), Error);
    }
}

TEST(ClsSFCSumConByName, MakesTheTable)
{
    RecordingHost host;
    Prepare(host);
    host.SetFilter({{"cInvCCode", "02"}});
    const auto object = CreateObject("Kavelin.clsSFCSumCon");
    const Variant result =
        object->Call("CreateNewTemplate", {HostObjectPtr(host.Filter()), Value("tempdb..pool")});
    EXPECT_TRUE(ValueOf(result, "result").IsEmpty());
    EXPECT_NE(Sent(host).find(" into tempdb..pool "), std::string::npos);
    EXPECT_EQ(Read(*object, "strInvCCode"), Value("02"));
}

TEST(ClsIASFCReportByName, TakesTwelveToTwentyFiveArguments)
{
    const struct {
        std::size_t count;
        const char* last;  // piece of a statement that the last argument so far makes
        const char* next;  // and one that isn't there yet
    } cases[] = {
        {15, "left(cRdCode,4)", "sfc.cfree1"},    {17, "sfc.cfree1", "cItem_Class"},
        {22, " cItem_Class= N'97'", "cItemCode"}, {23, " cItemCode= N'P1'", "com.iNumber"},
        {24, "com.iNumber=3", nullptr},           {25, "com.iNumber=3", nullptr},
    };
    for (const auto& c : cases) {
        RecordingHost host;
        Prepare(host);
        const auto engine = CreateObject("Kavelin.clsIASFCReport");
        engine->Put("sTable", Value("pool"));
        std::vector<Variant> arguments = AllArguments();
        arguments.resize(c.count);
        EXPECT_TRUE(ValueOf(engine->Call("GetSum", arguments), "result").IsEmpty());
        const std::string sent = Sent(host);
        EXPECT_NE(sent.find("Like N'01%'"), std::string::npos);
        EXPECT_NE(sent.find("dKeepDate<= N'2008-07-31 '"), std::string::npos);
        EXPECT_NE(sent.find("( cwhcode in (N'01' ) or"), std::string::npos);
        EXPECT_NE(sent.find(c.last), std::string::npos) << c.count;
        EXPECT_TRUE(!c.next || sent.find(c.next) == std::string::npos) << c.count;
    }
    RecordingHost host;
    Prepare(host);
    const auto engine = CreateObject("Kavelin.clsIASFCReport");
    EXPECT_NO_THROW(engine->Call("GetSum", std::vector<Variant>(12, Value())));
    EXPECT_THROW(engine->Call("GetSum", std::vector<Variant>(11, Value())), Error);
    EXPECT_THROW(engine->Call("GetSum", std::vector<Variant>(26, Value())), Error);
}

TEST(ClsIASFCReportByName, HasItsTableUnderTwoNames)
{
    const auto engine = CreateObject("Kavelin.clsIASFCReport");
    engine->Put("sTable", Value("a"));
    EXPECT_EQ(Read(*engine, "tmpTable"), Value("a"));
    engine->Put("tmpTable", Value("b"));
    EXPECT_EQ(Read(*engine, "sTable"), Value("b"));
}

TEST(ClsSfcSumInfoByName, RunsTheReport)
{
    RecordingHost host;
    Prepare(host);
    host.SetFilter({});
    const auto report = CreateObject("Kavelin.clsSfcSumInfo");
    EXPECT_EQ(ValueOf(report->Call("MoveDataDetail", {}), "result"), Value(false)) << "no filter yet";
    report->Call("GETSQL", {HostObjectPtr(host.EarlyArgument())});
    EXPECT_EQ(Read(*report, "sarn_tmpTable"), Value("tempdb..result"));
    EXPECT_EQ(ValueOf(report->Call("TempTablename", {}), "table"), Value(""));
    EXPECT_NE(Sent(host).find(" into tempdb..result "), std::string::npos);
}

}  // namespace kavelin::test
