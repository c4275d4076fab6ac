#include "component/Component.h"

#include "frame/Errors.h"
#include "support/RecordingHost.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

namespace kavelin::test {

namespace {

std::string Members(const PublicClass& publicClass)
{
    std::string text;
    for (const Member& member : publicClass.members)
        text += std::string(text.empty() ? "" : " ") + std::string(member.name) +
                (member.kind == MemberKind::Method ? "(" + std::to_string(member.Arguments()) + ")" : "");
    return text;
}

// Whether the object has the member as the table lists it. A method is called with one argument too many,
// which every object that has it refuses by the method's name before it runs. So is a property with an index,
// which takes its index and a value.
std::string Offered(LateBound& object, const Member& member)
{
    const bool property = member.kind == MemberKind::Property;
    const std::size_t taken = property ? member.Arguments() + 1 : member.Arguments();
    try {
        if (property && member.Arguments() == 0) {
            object.Get(member.name);
            return std::string(member.name);
        }
        object.Call(member.name, std::vector<Variant>(taken + 1));
    } catch (const Error& error) {
        const std::string wanted = std::string(member.name) + " takes " + std::to_string(taken) +
                                   " arguments, not " + std::to_string(taken + 1) + ".";
        return error.what() == wanted ? std::string(member.name) : error.what();
    }
    return "it ran";
}

}  // namespace

TEST(PublicClasses, HaveTheMembersOfTheirInterfacesInOrder)
{
    constexpr const char* kFour = "ObjreportManager ReportTitle ObjLogin mConnectionString ";
    const std::vector<std::pair<std::string, std::string>> wanted = {
        {"clsFCSumInfo", std::string(kFour) +
                             "TempTablename(0) GETSQL(1) GetSqlForOld(1) MoveDataDetail(0) GetViewFilter(1)"},
        {"clsAreaStockReport", "GETSQL(1)"},
        {"clsSfcSumInfo", std::string(kFour) + "sarn_tmpTable TempTablename(0) MoveDataDetail(0) GETSQL(1)"},
        {"clsLastRep",
         std::string(kFour) + "TempTablename GetSqlForOld(1) GETSQL(1) MoveDataDetail(0) Createsql(2)"},
        {"ClsWtInfo",
         "sarn_tmpTable TempTablename(0) MoveDataDetail(0) GETSQL(1) GetSqlForOld(1) Execute(1) "
         "ExecuteForOld(1)"},
        {"clsCinTurnRep", std::string(kFour) + "TempTablename GetSqlForOld(1) GETSQL(1) MoveDataDetail(0)"},
        {"ClsABC",
         std::string(kFour) +
             "TempTablename GetSqlForOld(1) GETSQL(1) MoveDataDetail(0) ExecuteForOld(1) Execute(1)"},
        {"clsProPortion", std::string(kFour) + "TempTablename GETSQL(1) MoveDataDetail(0)"},
        {"ClsBusiness", "Init(1)"},
        {"clsStaCostacc",
         "sarn_tmpTable MoveDataDetail(0) GETSQL(1) GetSqlForOld(1) Execute(1) CreateCostInfoTable(9)"},
        {"clsIaAnalysis", "sarn_tmpTable MoveDataDetail(0) GETSQL(1) Execute(1)"},
        {"ClsFCInventory", "sarn_tmpTable MoveDataDetail(0) GETSQL(1)"},
        {"ClsOutDetailInfo", "sarn_tmpTable MoveDataDetail(0) GETSQL(1) Execute(1)"},
    };
    std::map<std::string, std::string> given;
    for (const PublicClass& publicClass : PublicClasses())
        EXPECT_TRUE(given.emplace(publicClass.name, Members(publicClass)).second) << publicClass.name;
    for (const auto& [name, members] : wanted)
        EXPECT_EQ(given[name], members) << name;

    std::set<std::string> names;
    for (const auto& [name, members] : given)
        names.insert(name);
    EXPECT_EQ(names,
              (std::set<std::string>{
                  "clsFCSumInfo", "clsAreaStockReport", "clsSFCSumCon", "clsSfcSumInfo", "clsIASFCReport",
                  "clsLastRep", "ClsWtInfo", "clsCinTurnRep", "clsFilterControl", "ClsABC", "clsProPortion",
                  "ClsBusiness", "clsStaCostacc", "clsIaAnalysis", "ClsFCInventory", "ClsOutDetailInfo"}));
}

TEST(PublicClasses, OfTheFilterDialogHaveTheCallbacksInOrder)
{
    for (const PublicClass& publicClass : PublicClasses()) {
        if (publicClass.name == "clsFilterControl") {
            std::string names;
            for (const Member& member : publicClass.members)
                names += std::string(member.name) + " ";
            EXPECT_EQ(names,
                      "CallBack_FilterInit CallBack_ValueChange CallBack_FilterClick "
                      "CallBack_ReportViewChange CallBack_ReportViewInit InitAccMonth ");
        }
        if (publicClass.name == "clsSFCSumCon") {
            ASSERT_EQ(publicClass.members.size(), 26U);
            for (std::size_t i = 0; i < 25; ++i)
                EXPECT_EQ(publicClass.members[i].kind, MemberKind::Property);
            EXPECT_EQ(publicClass.members[25].name, "CreateNewTemplate");
            EXPECT_EQ(publicClass.members[25].Arguments(), 2U);
        }
    }
}

TEST(CreateObject, OffersExactlyTheMembersOfEveryClass)
{
    for (const PublicClass& publicClass : PublicClasses()) {
        const std::string progId = "Kavelin." + std::string(publicClass.name);
        const auto object = CreateObject(progId);
        std::set<std::string_view> own;
        for (const Member& member : publicClass.members) {
            EXPECT_EQ(Offered(*object, member), member.name) << progId;
            own.insert(member.name);
        }
        for (const PublicClass& other : PublicClasses()) {
            for (const Member& member : other.members) {
                if (own.contains(member.name))
                    continue;
                EXPECT_EQ(Offered(*object, member),
                          "The object has no member " + std::string(member.name) + ".")
                    << progId;
            }
        }
    }
}

TEST(CreateObject, KnowsClassesAndMembersWithoutRegardToCase)
{
    const auto object = CreateObject("KAVELIN.clsproportion");
    object->Put("REPORTTITLE", Value("capital"));
    EXPECT_EQ(ValueOf(object->Get("reporttitle"), "title"), Value("capital"));
    EXPECT_NE(CreateObject("Kavelin.clsProPortion"), object);
}

TEST(CreateObject, RefusesNamesThatAreNoClass)
{
    for (const char* name : {"", "Kavelin", "Kavelin.", "clsProPortion", "Kavelin.clsNothing",
                             "Kavelin.clsProPortion ", "Other.clsProPortion", "Kavelin.ClsFcSumCon"}) {
        EXPECT_THROW(CreateObject(name), Error) << name;
    }
}

TEST(ACreatedObject, RefusesWrongNamesKindsAndArguments)
{
    RecordingHost host;
    const auto object = CreateObject("Kavelin.clsProPortion");
    EXPECT_THROW(object->Get("Nothing"), Error);
    EXPECT_THROW(object->Put("Nothing", Value(1)), Error);
    EXPECT_THROW(object->Call("Nothing", {}), Error);
    EXPECT_THROW(object->Get("GETSQL"), Error) << "a method is no property";
    EXPECT_THROW(object->Put("GETSQL", Value(1)), Error);
    EXPECT_THROW(object->Call("ReportTitle", {}), Error) << "a property is no method";
    EXPECT_THROW(object->Call("GETSQL", {}), Error);
    EXPECT_THROW(object->Call("GETSQL", {Value(1), Value(2)}), Error);
    EXPECT_THROW(object->Call("GETSQL", {Value(1)}), Error) << "no object";
    EXPECT_THROW(object->Call("GETSQL", {HostObjectPtr()}), Error) << "nothing";
    EXPECT_THROW(object->Call("GETSQL", {HostObjectPtr(host.Filter())}), Error) << "another object";
    EXPECT_THROW(object->Put("ReportTitle", HostObjectPtr()), Error) << "an object is no text";
    EXPECT_THROW(object->Put("ObjLogin", Value("x")), Error) << "a text is no object";
    EXPECT_EQ(host.Events().Text(), "");
}

// Nothing has opened a connection or handed in a filter yet.
TEST(ACreatedObject, CanBeCalledInAnyOrderWithoutHarm)
{
    for (const PublicClass& publicClass : PublicClasses())
        for (const Member& member : publicClass.members) {
            if (member.kind != MemberKind::Method)
                continue;
            RecordingHost host;
            const auto object = CreateObject("Kavelin." + std::string(publicClass.name));
            try {
                object->Call(member.name, std::vector<Variant>(member.Arguments()));
            } catch (const Error& error) {
                EXPECT_STRNE(error.what(), "") << publicClass.name << "." << member.name;
            }
        }
}

TEST(ACreatedObject, KeepsItsPlainProperties)
{
    RecordingHost host;
    const auto object = CreateObject("Kavelin.clsProPortion");
    EXPECT_EQ(ValueOf(object->Get("ReportTitle"), "title"), Value(""));
    object->Put("mConnectionString", Value(7));
    EXPECT_EQ(ValueOf(object->Get("mConnectionString"), "text"), Value("7"));
    const HostObjectPtr login = host.Login();
    object->Put("ObjLogin", login);
    EXPECT_EQ(std::get<HostObjectPtr>(object->Get("ObjLogin")), login);
    object->Put("ObjLogin", HostObjectPtr());
    EXPECT_EQ(std::get<HostObjectPtr>(object->Get("ObjLogin")), nullptr);
    object->Put("TempTablename", Value("t"));
    EXPECT_EQ(ValueOf(object->Get("TempTablename"), "table"), Value("t"));
}

TEST(ACreatedObject, RunsAReportWhenItsMethodIsCalledByName)
{
    RecordingHost host;
    const auto object = CreateObject("Kavelin.clsAreaStockReport");
    const Variant result = object->Call("getsql", {HostObjectPtr(host.EarlyArgument())});
    EXPECT_TRUE(ValueOf(result, "result").IsEmpty());
    EXPECT_EQ(host.Sent().size(), 1U);

    const auto share = CreateObject("Kavelin.clsProPortion");
    share->Call("GETSQL", {HostObjectPtr(host.EarlyArgument())});
    EXPECT_EQ(ValueOf(share->Get("TempTablename"), "table"), Value("tempdb..result"));
}

TEST(ACreatedObject, SharesNothingWithAnotherOfItsClass)
{
    auto object = CreateObject("Kavelin.clsProPortion");
    object->Put("ReportTitle", Value("kept"));
    const auto second = CreateObject("Kavelin.clsProPortion");
    EXPECT_EQ(ValueOf(second->Get("ReportTitle"), "title"), Value(""));
    object.reset();
    EXPECT_EQ(ValueOf(second->Get("ReportTitle"), "title"), Value(""));
}

TEST(ClsBusinessByName, KeepsThePortal)
{
    RecordingHost host;
    const HostObjectPtr portal = host.LateArgument();
    CreateObject("Kavelin.ClsBusiness")->Call("Init", {portal});
    EXPECT_EQ(HostObjectPtr(ModPub().gobjBusiness), portal);
}

TEST(FilterControlByName, HandsViewAndCancelBackInTheirArguments)
{
    RecordingHost host;
    host.SetFilter({{"rdGrade", "1"}, {"vouEstate", ""}});
    host.Filter()->filterId = "F3D99620-46E3-465E-97C7-ECD73735B108";
    host.Filter()->login = host.Login();
    const HostObjectPtr filter = host.Filter();
    const auto control = CreateObject("Kavelin.clsFilterControl");
    EXPECT_TRUE(ValueOf(control->Call("CallBack_FilterInit", {filter}), "result").IsEmpty());
    EXPECT_EQ(host.Filter()->From("rdGrade"), Value("0"));

    std::vector<Variant> arguments = {filter, Value()};
    control->CallByReference("CallBack_ReportViewInit", arguments);
    EXPECT_EQ(ValueOf(arguments[1], "view"), Value("ordin"));

    host.Filter()->SetFieldValue("rdGrade", "2");
    arguments = {Value("rdGrade"), filter, Value("ordin")};
    control->CallByReference("CallBack_ReportViewChange", arguments);
    EXPECT_EQ(ValueOf(arguments[2], "view"), Value("cross"));
    arguments = {Value("vouEstate"), filter, Value("kept")};
    control->CallByReference("CallBack_ReportViewChange", arguments);
    EXPECT_EQ(ValueOf(arguments[2], "view"), Value("kept"));

    arguments = {filter, Value(false)};
    control->CallByReference("CallBack_FilterClick", arguments);
    EXPECT_EQ(ValueOf(arguments[1], "Cancel"), Value(true));
    host.Filter()->SetFieldValue("vouEstate", "已记账单据");
    control->CallByReference("callback_filterclick", arguments);
    EXPECT_EQ(ValueOf(arguments[1], "Cancel"), Value(false));
    ASSERT_EQ(host.Filter()->contextArgs.size(), 2U) << "two clicks";
    EXPECT_EQ(host.Filter()->contextArgs[1].second, Value("cross")) << "one object kept the view";
}

TEST(FilterControlByName, CanBeCalledWithoutTakingAnythingBack)
{
    RecordingHost host;
    host.SetFilter({{"bOutJust", "是"}});
    host.Filter()->filterId = "正常单据记账";
    const HostObjectPtr filter = host.Filter();
    const auto control = CreateObject("Kavelin.clsFilterControl");
    control->Call("CallBack_ValueChange", {Value("bOutJust"), filter});
    EXPECT_NE(host.Events().Text().find("RawFilter.SetFieldLocked bSaleCost, True"), std::string::npos);
    EXPECT_TRUE(ValueOf(control->Call("CallBack_FilterClick", {filter, Value(true)}), "result").IsEmpty());

    EXPECT_THROW(control->Call("CallBack_FilterClick", {HostObjectPtr(), Value(true)}), Error);
    EXPECT_THROW(control->Call("CallBack_ValueChange", {filter, filter}), Error) << "a key is no object";
    EXPECT_THROW(control->Call("InitAccMonth", {}), Error) << "nothing has connected yet";
    std::vector<Variant> arguments = {filter};
    EXPECT_THROW(control->CallByReference("CallBack_FilterClick", arguments), Error);
}

}  // namespace kavelin::test
