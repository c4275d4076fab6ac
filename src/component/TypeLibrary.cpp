#include "component/TypeLibrary.h"

#include "component/HostObjectsClass.h"
#include "frame/Errors.h"

#include <vector>

namespace kavelin {

namespace {

struct Identifiers {
    std::string_view name;
    std::string_view classId;
    std::string_view interfaceId;
};

// clang-format off
constexpr Identifiers kIdentifiers[] = {
    {"clsFCSumInfo",       "9F6E896D-3A85-4B98-A587-773CFAC54AA2", "32BF72D3-2871-4B83-9368-D49CF7E622DD"},
    {"clsAreaStockReport", "1663781C-6319-44B4-A7C5-485E70F8B522", "3F8E10FD-C807-4650-A69A-9E62C0EBA153"},
    {"clsSFCSumCon",       "BDED551F-3A54-4EC2-90A2-671704024847", "A1C76DC3-96E7-4E09-8338-DFD0E3381F22"},
    {"clsSfcSumInfo",      "63F7CCF0-CEB9-43F0-B9B9-9A7F0910FF1E", "68AD4CEE-6C34-41A5-BF48-5D93B2F552E2"},
    {"clsIASFCReport",     "CB53CED2-C1D3-4AEA-A0B8-F71D00F29825", "BC0C2EEA-2544-453A-AD7D-79FC394CEF80"},
    {"clsLastRep",         "1DF9A038-D46D-4E6C-ACF3-1765F1959B52", "E7E51862-5847-4A4F-8D72-083138C48183"},
    {"ClsWtInfo",          "37414979-963B-4159-A12E-FC4FD3455979", "32BE9672-213A-4B99-961B-E64CA9D87551"},
    {"clsCinTurnRep",      "9E759470-C241-46D8-9D67-FAECAAD1B7FC", "C1FDEDD7-C7BA-4946-B80C-53D86A2F336B"},
    {"clsFilterControl",   "42203053-92BA-46ED-A2CB-F3B8E3F39358", "18793335-C125-45BB-B842-A872A69CB637"},
    {"ClsABC",             "B645A95E-506E-4847-B929-69422FB9A13B", "14286D85-09FE-4126-ACE7-67579BDF7B73"},
    {"clsProPortion",      "8ACB9F69-EAC9-4B71-B16F-B985898EA21A", "4DCBE097-7C88-4E20-8959-AEF94E5CD2C6"},
    {"ClsBusiness",        "1A713C46-E0A4-4955-A7CB-B5C92A0148EA", "59DC31FF-084C-42D4-A771-DB51E4D4EDF5"},
    {"clsStaCostacc",      "9CBD45C8-2506-4C8F-9539-085C79AA9492", "994A7033-DE94-4BEF-A163-58C8A91B883B"},
    {"clsIaAnalysis",      "33C4A44D-7116-4FD3-85E4-A4D60AFDF33D", "211234BB-4BAA-4587-9A72-C9B8D354A55D"},
    {"ClsFCInventory",     "0F95DB7E-BAAB-4A17-9570-36416AE526BE", "95085B0F-DA68-47FB-B135-764E2CC5ACDD"},
    {"ClsOutDetailInfo",   "32CBE6BB-F601-4B8A-8A62-524562A057A9", "5F577ECE-F071-4AF1-9C9A-F33247C526E1"},
    {"HostObjects",        "9BD088E0-AAE2-49E3-982C-51C1FC07E603", "426516BE-4C1A-4F9A-B15F-CCED3288DC4E"},
};
// clang-format on

std::string Braced(std::string_view identifier)
{
    return "{" + std::string(identifier) + "}";
}

AutomationClass Identified(const PublicClass& publicClass)
{
    for (const Identifiers& known : kIdentifiers)
        if (known.name == publicClass.name)
            return {&publicClass, Braced(known.classId), Braced(known.interfaceId)};
    throw Error("The class " + std::string(publicClass.name) + " has no identifiers.");
}

std::string_view TypeText(Kind kind)
{
    switch (kind) {
        case Kind::Nothing: return "void";
        case Kind::Text: return "BSTR";
        case Kind::Boolean: return "VARIANT_BOOL";
        case Kind::Byte: return "unsigned char";
        case Kind::Int16: return "short";
        case Kind::Int32: return "long";
        case Kind::Any: return "VARIANT";
        case Kind::Object: return "IDispatch*";
    }
    return {};
}

// What stands for an argument that was left out. A variant can tell by itself that it was, and the language
// has no default for a text by reference.
std::string_view DefaultText(const Parameter& parameter)
{
    if (parameter.kind == Kind::Any || (parameter.kind == Kind::Text && parameter.byReference))
        return "";
    return parameter.kind == Kind::Text ? ", defaultvalue(\"\")" : ", defaultvalue(0)";
}

std::string ParameterText(const Parameter& parameter)
{
    std::string text = parameter.byReference ? "[in, out" : "[in";
    if (parameter.optional)
        text += ", optional" + std::string(DefaultText(parameter));
    return text + "] " + std::string(TypeText(parameter.kind)) + (parameter.byReference ? "* " : " ") +
           std::string(parameter.name);
}

// The parameters between their brackets, each in a line of its own where there are many.
std::string Joined(const std::vector<std::string>& parameters)
{
    const std::string lineBreak = parameters.size() > 3 ? "\n            " : "";
    std::string text;
    for (const std::string& parameter : parameters) {
        if (!text.empty())
            text += lineBreak.empty() ? ", " : ",";
        text += lineBreak + parameter;
    }
    return text;
}

// The lines of one member, with the dispatch identifier `id`.
std::string MemberText(const Member& member, std::size_t id)
{
    const std::string attributes = "        [id(" + std::to_string(id) + ")";
    const std::string type(TypeText(member.type));
    const std::string name(member.name);
    std::vector<std::string> parameters;
    for (const Parameter& parameter : member.parameters)
        parameters.push_back(ParameterText(parameter));
    const std::string taken = name + "(" + Joined(parameters) + ");\n";
    if (member.kind == MemberKind::Method)
        return attributes + "] " + type + " " + taken;

    parameters.push_back("[in] " + type + " value");
    const std::string put = "] void " + name + "(" + Joined(parameters) + ");\n";
    std::string text = attributes + ", propget] " + type + " " + taken + attributes + ", propput" + put;
    if (member.type == Kind::Object)
        text += attributes + ", propputref" + put;
    return text;
}

// An identifier as attributes have it, without braces.
std::string Bare(std::string_view identifier)
{
    return std::string(identifier.substr(1, identifier.size() - 2));
}

std::string ClassText(const AutomationClass& automationClass)
{
    const std::string name(automationClass.publicClass->name);
    std::string text = "\n    [uuid(" + Bare(automationClass.interfaceId) + ")]\n    dispinterface _" + name +
                       "\n    {\n    properties:\n    methods:\n";
    std::size_t id = 0;
    for (const Member& member : automationClass.publicClass->members)
        text += MemberText(member, ++id);
    return text + "    };\n\n    [uuid(" + Bare(automationClass.classId) + ")]\n    coclass " + name +
           "\n    {\n        [default] dispinterface _" + name + ";\n    };\n";
}

}  // namespace

std::span<const AutomationClass> AutomationClasses()
{
    static const std::vector<AutomationClass> classes = [] {
        std::vector<AutomationClass> all;
        for (const PublicClass& publicClass : PublicClasses())
            all.push_back(Identified(publicClass));
        all.push_back(Identified(HostObjectsClass()));
        return all;
    }();
    return classes;
}

std::string TypeLibraryText()
{
    std::string text =
        "// Written from the table of the public classes by the test that compares the two.\n"
        "import \"automation.idl\";\n\n"
        "[uuid(" +
        Bare(kTypeLibraryId) + "), version(" + std::to_string(kTypeLibraryMajor) + "." +
        std::to_string(kTypeLibraryMinor) +
        "), helpstring(\"Kavelin\")]\n"
        "library Kavelin\n{\n    importlib(\"stdole2.tlb\");\n";
    for (const AutomationClass& automationClass : AutomationClasses())
        text += ClassText(automationClass);
    return text + "};\n";
}

}  // namespace kavelin
