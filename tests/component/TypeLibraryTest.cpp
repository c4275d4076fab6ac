// The tables of the public classes as automation sees them.
#include "component/TypeLibrary.h"

#include "frame/Errors.h"
#include "support/GoldenFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <regex>
#include <set>

namespace kavelin::test {

namespace {

std::size_t OptionalCount(const Member& member)
{
    return static_cast<std::size_t>(
        std::count_if(member.parameters.begin(), member.parameters.end(),
                      [](const Parameter& parameter) { return parameter.optional; }));
}

// The error of a call with that many arguments.
std::string CallError(LateBound& object, const Member& member, std::size_t arguments)
{
    try {
        object.Call(member.name, std::vector<Variant>(arguments));
    } catch (const Error& error) {
        return error.what();
    }
    return "";
}

bool IsOfKind(const Variant& given, Kind kind)
{
    if (kind == Kind::Object)
        return std::holds_alternative<HostObjectPtr>(given);
    const Value& value = std::get<Value>(given);
    switch (kind) {
        case Kind::Text: return value.IsText();
        case Kind::Boolean: return value.As<bool>();
        case Kind::Byte:
        case Kind::Int16:
        case Kind::Int32: return value.As<std::int64_t>();
        default: return true;
    }
}

}  // namespace

TEST(TypeLibrary, IsTheOneThatIsBuiltIntoTheComponent)
{
    ExpectFile(TypeLibraryText(), KAVELIN_SOURCE_DIR "/src/com/Kavelin.idl");
}

TEST(TypeLibrary, HasEveryPublicClassAndTheMakersOfTheHost)
{
    ASSERT_EQ(AutomationClasses().size(), PublicClasses().size() + 1);
    for (std::size_t i = 0; i < PublicClasses().size(); ++i)
        EXPECT_EQ(AutomationClasses()[i].publicClass, &PublicClasses()[i]);
    EXPECT_EQ(AutomationClasses().back().publicClass->name, "HostObjects");
}

TEST(Identifiers, AreWellFormedAndAllDifferent)
{
    const std::regex form("\\{[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}\\}");
    std::set<std::string> seen = {std::string(kTypeLibraryId)};
    for (const AutomationClass& automationClass : AutomationClasses()) {
        for (const std::string_view id : {automationClass.classId, automationClass.interfaceId}) {
            EXPECT_TRUE(std::regex_match(std::string(id), form)) << id;
            EXPECT_TRUE(seen.insert(std::string(id)).second) << id;
        }
    }
}

TEST(Identifiers, NeverChange)
{
    // A host that was built against the classes holds these.
    const auto of = [](std::string_view name) {
        for (const AutomationClass& automationClass : AutomationClasses())
            if (automationClass.publicClass->name == name)
                return std::string(automationClass.classId);
        return std::string();
    };
    EXPECT_EQ(of("ClsWtInfo"), "{37414979-963B-4159-A12E-FC4FD3455979}");
    EXPECT_EQ(of("clsProPortion"), "{8ACB9F69-EAC9-4B71-B16F-B985898EA21A}");
    EXPECT_EQ(of("clsFilterControl"), "{42203053-92BA-46ED-A2CB-F3B8E3F39358}");
    EXPECT_EQ(kTypeLibraryId, "{C1D2B2C2-95A3-4B51-A418-2DE6F20E8029}");
}

TEST(TheTableOfMembers, HasTheArgumentCountsOfTheObjects)
{
    for (const AutomationClass& automationClass : AutomationClasses()) {
        const auto object = automationClass.publicClass->create();
        for (const Member& member : automationClass.publicClass->members) {
            const std::string takes = std::string(member.name) + " takes ";
            const std::size_t most = member.Arguments() + (member.kind == MemberKind::Property ? 1 : 0);
            const std::size_t least = member.Arguments() - OptionalCount(member);
            if (member.Arguments() == 0)
                continue;
            EXPECT_EQ(CallError(*object, member, most + 1).rfind(takes, 0), 0U) << member.name;
            EXPECT_EQ(CallError(*object, member, least - 1).rfind(takes, 0), 0U) << member.name;
            EXPECT_NE(CallError(*object, member, least).rfind(takes, 0), 0U) << member.name;
        }
    }
}

TEST(TheTableOfMembers, HasTheKindsOfTheProperties)
{
    for (const PublicClass& publicClass : PublicClasses()) {
        const auto object = publicClass.create();
        for (const Member& member : publicClass.members) {
            if (member.kind != MemberKind::Property)
                continue;
            const Variant given =
                member.Arguments() ? object->Call(member.name, {Value(0)}) : object->Get(member.name);
            EXPECT_TRUE(IsOfKind(given, member.type)) << publicClass.name << "." << member.name;
        }
    }
}

TEST(TheTableOfMembers, HasOptionalArgumentsOnlyAtTheEnd)
{
    for (const AutomationClass& automationClass : AutomationClasses())
        for (const Member& member : automationClass.publicClass->members)
            EXPECT_TRUE(std::is_sorted(
                member.parameters.begin(), member.parameters.end(),
                [](const Parameter& a, const Parameter& b) { return a.optional < b.optional; }))
                << member.name;
}

}  // namespace kavelin::test
