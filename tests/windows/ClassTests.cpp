// The public classes through automation.
#include "Check.h"
#include "Client.h"
#include "FakeObject.h"

#include "com/Utf16.h"
#include "component/TypeLibrary.h"

#include <ocidl.h>

using namespace kavelin;
using namespace kavelin::test;
using com::Pointer;

namespace {

GUID GuidOf(std::string_view id)
{
    GUID guid = {};
    CLSIDFromString(com::Wide(id).c_str(), &guid);
    return guid;
}

Value ValueIn(const Answer& answer)
{
    return std::get<Value>(answer.result);
}

VARIANT TextVariant(const wchar_t* text)
{
    VARIANT variant = {};
    variant.vt = VT_BSTR;
    variant.bstrVal = SysAllocString(text);
    return variant;
}

VARIANT NumberVariant(LONG number)
{
    VARIANT variant = {};
    variant.vt = VT_I4;
    variant.lVal = number;
    return variant;
}

}  // namespace

KAVELIN_TEST(EveryClassIsMadeByNameAndDescribesItself)
{
    for (const AutomationClass& automationClass : AutomationClasses()) {
        const auto object = Create(std::string(automationClass.publicClass->name));
        // Under the identity of its interface it is the same object.
        Pointer<IDispatch> typed;
        CHECK_EQUAL(object->QueryInterface(GuidOf(automationClass.interfaceId),
                                           reinterpret_cast<void**>(typed.Receive())),
                    S_OK);
        CHECK(typed.Get() == object.Get());

        UINT count = 0;
        CHECK_EQUAL(object->GetTypeInfoCount(&count), S_OK);
        CHECK_EQUAL(count, 1U);
        Pointer<ITypeInfo> info;
        CHECK_EQUAL(object->GetTypeInfo(0, 0, info.Receive()), S_OK);
        if (!info)
            continue;
        DISPID id = 0;
        for (const Member& member : automationClass.publicClass->members) {
            std::wstring name = com::Wide(member.name);
            CHECK_EQUAL(IdOf(*object.Get(), name.c_str()), ++id);
            wchar_t* names[] = {name.data()};
            MEMBERID described = 0;
            CHECK_EQUAL(info->GetIDsOfNames(names, 1, &described), S_OK);
            CHECK_EQUAL(described, id);
        }
        Pointer<IProvideClassInfo> provider;
        object->QueryInterface(IID_IProvideClassInfo, reinterpret_cast<void**>(provider.Receive()));
        CHECK(provider);
        Pointer<ITypeInfo> classInfo;
        CHECK_EQUAL(provider->GetClassInfo(classInfo.Receive()), S_OK);
        TYPEATTR* attributes = nullptr;
        CHECK_EQUAL(classInfo->GetTypeAttr(&attributes), S_OK);
        CHECK_EQUAL(attributes->typekind, TKIND_COCLASS);
        CHECK(attributes->guid == GuidOf(automationClass.classId));
        classInfo->ReleaseTypeAttr(attributes);
    }
}

KAVELIN_TEST(TheTypeLibraryIsRegistered)
{
    Pointer<ITypeLib> library;
    CHECK_EQUAL(LoadRegTypeLib(GuidOf(kTypeLibraryId), 1, 0, 0, library.Receive()), S_OK);
    if (!library)
        return;
    CHECK_EQUAL(library->GetTypeInfoCount(), static_cast<UINT>(AutomationClasses().size() * 2));
    // The arguments of a member are described with their names, kinds and whether they may be left out.
    Pointer<ITypeInfo> info;
    GUID engine = {};
    for (const AutomationClass& automationClass : AutomationClasses())
        if (automationClass.publicClass->name == "clsIASFCReport")
            engine = GuidOf(automationClass.interfaceId);
    CHECK_EQUAL(library->GetTypeInfoOfGuid(engine, info.Receive()), S_OK);
    TYPEATTR* attributes = nullptr;
    CHECK_EQUAL(info->GetTypeAttr(&attributes), S_OK);
    bool found = false;
    for (UINT i = 0; i < attributes->cFuncs; ++i) {
        FUNCDESC* function = nullptr;
        info->GetFuncDesc(i, &function);
        if (function->memid == 3) {
            found = true;
            CHECK_EQUAL(function->cParams, 25);
            CHECK_EQUAL(function->lprgelemdescParam[0].tdesc.vt, VT_BSTR);
            CHECK_EQUAL(function->lprgelemdescParam[11].paramdesc.wParamFlags & PARAMFLAG_FOPT, 0);
            CHECK(function->lprgelemdescParam[12].paramdesc.wParamFlags & PARAMFLAG_FOPT);
            CHECK_EQUAL(function->lprgelemdescParam[12].tdesc.vt, VT_PTR);
            BSTR names[26] = {};
            UINT count = 0;
            CHECK_EQUAL(info->GetNames(3, names, 26, &count), S_OK);
            CHECK_EQUAL(com::Narrow(names[25] ? names[25] : L""), "nCount");
            for (BSTR name : names)
                SysFreeString(name);
        }
        info->ReleaseFuncDesc(function);
    }
    CHECK(found);
    info->ReleaseTypeAttr(attributes);
}

KAVELIN_TEST(NamesOfMembersAndArgumentsAreResolvedInAnyCase)
{
    const auto object = Create("clsFCSumInfo");
    wchar_t member[] = L"getviewfilter";
    wchar_t argument[] = L"STRFILTER";
    wchar_t wrong[] = L"nothing";
    wchar_t* names[] = {member, argument, wrong};
    DISPID ids[3] = {};
    CHECK_EQUAL(object->GetIDsOfNames(IID_NULL, names, 2, LOCALE_USER_DEFAULT, ids), S_OK);
    CHECK_EQUAL(ids[0], 9);
    CHECK_EQUAL(ids[1], 0);
    CHECK_EQUAL(object->GetIDsOfNames(IID_NULL, names, 3, LOCALE_USER_DEFAULT, ids), DISP_E_UNKNOWNNAME);
    CHECK_EQUAL(ids[2], DISPID_UNKNOWN);
    CHECK_EQUAL(object->GetIDsOfNames(IID_IDispatch, names, 1, LOCALE_USER_DEFAULT, ids),
                DISP_E_UNKNOWNINTERFACE);
    CHECK_EQUAL(IdOf(*object.Get(), L"Nothing"), DISPID_UNKNOWN);
    CHECK_EQUAL(Call(*object.Get(), L"Nothing").code, DISP_E_MEMBERNOTFOUND);
}

KAVELIN_TEST(PropertiesHaveTheirKinds)
{
    const auto object = Create("clsSFCSumCon");
    IDispatch& con = *object.Get();
    CHECK_EQUAL(Put(con, L"strInvCCode", {Value("0301存货")}).code, S_OK);
    CHECK(ValueIn(Get(con, L"STRINVCCODE")) == Value("0301存货"));
    CHECK_EQUAL(Put(con, L"strInvCCode", {Value(7)}).code, S_OK);
    CHECK(ValueIn(Get(con, L"strInvCCode")) == Value("7"));
    CHECK_EQUAL(Get(con, L"bytFree").type, VT_UI1);
    CHECK_EQUAL(Get(con, L"intInvGrade").type, VT_I2);
    CHECK_EQUAL(Get(con, L"blnWhSum").type, VT_BOOL);
    CHECK_EQUAL(Get(con, L"strWhCode").type, VT_BSTR);
    CHECK_EQUAL(Put(con, L"bytFree", {Value(255)}).code, S_OK);
    CHECK_EQUAL(Put(con, L"bytFree", {Value(256)}).code, DISP_E_OVERFLOW);
    CHECK_EQUAL(Put(con, L"intInvGrade", {Value(40000)}).code, DISP_E_OVERFLOW);
    CHECK_EQUAL(Put(con, L"intInvGrade", {Value("x")}).code, DISP_E_TYPEMISMATCH);
    CHECK_EQUAL(Put(con, L"strWhCode", {Value::Null()}).code, DISP_E_TYPEMISMATCH);
    CHECK(ValueIn(Get(con, L"bytFree")) == Value(255));
    CHECK_EQUAL(Put(con, L"strWhCode", {Value("a")}, DISPATCH_PROPERTYPUTREF).code, DISP_E_MEMBERNOTFOUND);
    // A call that asks for a method or a property gets the property; one for a method alone finds none.
    CHECK_EQUAL(Invoke(con, L"strWhCode", DISPATCH_METHOD | DISPATCH_PROPERTYGET, {}).code, S_OK);
    CHECK_EQUAL(Call(con, L"strWhCode").code, DISP_E_MEMBERNOTFOUND);
    CHECK_EQUAL(Get(con, L"strWhCode", {Value(1)}).code, DISP_E_BADPARAMCOUNT);
}

KAVELIN_TEST(PropertiesWithAnIndexTakeItFirst)
{
    const auto object = Create("clsSFCSumCon");
    IDispatch& con = *object.Get();
    CHECK_EQUAL(Put(con, L"strInvName", {Value(0), Value("from")}).code, S_OK);
    CHECK_EQUAL(Put(con, L"strInvName", {Value("1"), Value("to")}).code, S_OK);
    CHECK(ValueIn(Get(con, L"strInvName", {Value(0)})) == Value("from"));
    CHECK(ValueIn(Get(con, L"strInvName", {Value(1)})) == Value("to"));
    CHECK_EQUAL(Get(con, L"varDate", {Value(0)}).type, VT_EMPTY);
    const DateTime day = std::chrono::sys_days(std::chrono::year(2008) / 7 / 31);
    CHECK_EQUAL(Put(con, L"varDate", {Value(0), Value(day)}).code, S_OK);
    CHECK_EQUAL(Get(con, L"varDate", {Value(0)}).type, VT_DATE);
    const Answer outside = Get(con, L"strInvName", {Value(2)});
    CHECK_EQUAL(outside.code, DISP_E_EXCEPTION);
    CHECK_EQUAL(outside.source, "Kavelin.clsSFCSumCon");
    CHECK_EQUAL(Get(con, L"strInvName").code, DISP_E_BADPARAMCOUNT);
    CHECK_EQUAL(Put(con, L"strInvName", {Value("no index")}).code, DISP_E_BADPARAMCOUNT);
    const Answer wrong = Put(con, L"strInvName", {Value("x"), Value("y")});
    CHECK_EQUAL(wrong.code, DISP_E_TYPEMISMATCH);
    CHECK_EQUAL(wrong.argument, 1U);
}

KAVELIN_TEST(ObjectsArePutByReferenceAndByValue)
{
    FakeLife life;
    {
        const auto fake = MakeFake(life);
        const auto object = Create("clsProPortion");
        IDispatch& report = *object.Get();
        CHECK(std::get<HostObjectPtr>(Get(report, L"ObjLogin").result) == nullptr);
        for (const WORD flags : {DISPATCH_PROPERTYPUT, DISPATCH_PROPERTYPUTREF}) {
            CHECK_EQUAL(Put(report, L"ObjLogin", {ObjectArgument(fake.Get())}, flags).code, S_OK);
            const Answer held = Get(report, L"ObjLogin");
            CHECK_EQUAL(held.type, VT_DISPATCH);
            CHECK(com::ToAutomation(held.result).Get().pdispVal == fake.Get());
            CHECK_EQUAL(Put(report, L"ObjLogin", {HostObjectPtr()}, flags).code, S_OK);
        }
        CHECK_EQUAL(Put(report, L"ObjLogin", {Value("text")}).code, DISP_E_TYPEMISMATCH);
        // Its own kind comes back as the very object too.
        CHECK_EQUAL(Put(report, L"ObjLogin", {ObjectArgument(object.Get())}).code, S_OK);
        CHECK(com::ToAutomation(Get(report, L"ObjLogin").result).Get().pdispVal == object.Get());
        CHECK_EQUAL(Put(report, L"ObjLogin", {HostObjectPtr()}).code, S_OK);
        // Where a value belongs an object stands for its default member.
        fake->WithValue("", Value("of the default"));
        CHECK_EQUAL(Put(report, L"ReportTitle", {ObjectArgument(fake.Get())}).code, S_OK);
        CHECK(ValueIn(Get(report, L"ReportTitle")) == Value("of the default"));
    }
    CHECK_EQUAL(life.alive, 0);
}

KAVELIN_TEST(ArgumentsAreCountedNamedAndLeftOut)
{
    const auto object = Create("clsFCSumInfo");
    IDispatch& info = *object.Get();
    CHECK(ValueIn(Call(info, L"GetViewFilter", {Value("x")})) == Value(""));
    CHECK_EQUAL(Call(info, L"GetViewFilter").code, DISP_E_BADPARAMCOUNT);
    CHECK_EQUAL(Call(info, L"GetViewFilter", {Value("x"), Value("y")}).code, DISP_E_BADPARAMCOUNT);
    CHECK_EQUAL(Get(info, L"GetViewFilter", {Value("x")}).code, DISP_E_MEMBERNOTFOUND);
    CHECK_EQUAL(Put(info, L"GetViewFilter", {Value("x")}).code, DISP_E_MEMBERNOTFOUND);
    const Answer wrongKind = Call(info, L"GETSQL", {Value("no object")});
    CHECK_EQUAL(wrongKind.code, DISP_E_TYPEMISMATCH);
    CHECK_EQUAL(wrongKind.argument, 0U);
    VARIANT text = TextVariant(L"x");
    CHECK_EQUAL(Invoke(info, L"GetViewFilter", DISPATCH_METHOD, {text}, {0}).code, S_OK);
    CHECK_EQUAL(Invoke(info, L"GetViewFilter", DISPATCH_METHOD, {text}, {5}).code, DISP_E_PARAMNOTFOUND);
    const Answer required = Invoke(info, L"GetViewFilter", DISPATCH_METHOD, {Missing()});
    CHECK_EQUAL(required.code, DISP_E_PARAMNOTOPTIONAL);

    // Without a connection the engine fails, once its arguments are in order: so far each of these calls
    // comes.
    const auto engineObject = Create("clsIASFCReport");
    IDispatch& engine = *engineObject.Get();
    std::vector<VARIANT> twelve(12, NumberVariant(0));
    CHECK_EQUAL(Invoke(engine, L"GetSum", DISPATCH_METHOD, twelve).code, DISP_E_EXCEPTION);
    std::vector<VARIANT> eleven(11, NumberVariant(0));
    CHECK_EQUAL(Invoke(engine, L"GetSum", DISPATCH_METHOD, eleven).code, DISP_E_BADPARAMCOUNT);
    std::vector<VARIANT> left = twelve;
    left.insert(left.end(), 12, Missing());
    left.push_back(NumberVariant(1));
    CHECK_EQUAL(Invoke(engine, L"GetSum", DISPATCH_METHOD, left).code, DISP_E_EXCEPTION);
    std::vector<VARIANT> named = twelve;
    named.push_back(text);
    CHECK_EQUAL(Invoke(engine, L"GetSum", DISPATCH_METHOD, named, {22}).code, DISP_E_EXCEPTION);
    CHECK_EQUAL(Invoke(engine, L"GetSum", DISPATCH_METHOD, named, {3}).code, DISP_E_PARAMNOTFOUND);
    named.back() = NumberVariant(1);
    named.push_back(text);
    const Answer mismatch = Invoke(engine, L"GetSum", DISPATCH_METHOD, named, {22, 14});
    CHECK_EQUAL(mismatch.code, DISP_E_TYPEMISMATCH);
    CHECK_EQUAL(mismatch.argument, 0U);
    VariantClear(&text);
}

KAVELIN_TEST(ArgumentsByReferenceAreWrittenBackInTheirTypes)
{
    FakeLife life;
    const auto control = Create("clsFilterControl");
    const auto fake = MakeFake(life);
    fake->WithValue("FilterID", Value("none"));
    VARIANT filter = {};
    filter.vt = VT_DISPATCH;
    filter.pdispVal = fake.Get();

    // No dialog of that identity: OK closes it.
    VARIANT cancel = {};
    cancel.vt = VT_BOOL;
    cancel.boolVal = VARIANT_TRUE;
    CHECK_EQUAL(
        Invoke(*control.Get(), L"CallBack_FilterClick", DISPATCH_METHOD, {filter, ReferenceTo(cancel)}).code,
        S_OK);
    CHECK_EQUAL(cancel.vt, VT_BOOL);
    CHECK_EQUAL(cancel.boolVal, VARIANT_FALSE);

    VARIANT_BOOL flag = VARIANT_TRUE;
    VARIANT reference = {};
    reference.vt = VT_BYREF | VT_BOOL;
    reference.pboolVal = &flag;
    CHECK_EQUAL(Invoke(*control.Get(), L"CallBack_FilterClick", DISPATCH_METHOD, {filter, reference}).code,
                S_OK);
    CHECK_EQUAL(flag, VARIANT_FALSE);

    // A text that holds a Boolean stays a text; by value there is nowhere to write to.
    BSTR text = SysAllocString(L"True");
    reference.vt = VT_BYREF | VT_BSTR;
    reference.pbstrVal = &text;
    CHECK_EQUAL(Invoke(*control.Get(), L"CallBack_FilterClick", DISPATCH_METHOD, {filter, reference}).code,
                S_OK);
    CHECK_EQUAL(com::Narrow(text), "False");
    SysFreeString(text);
    CHECK_EQUAL(
        Invoke(*control.Get(), L"CallBack_FilterClick", DISPATCH_METHOD, {filter, NumberVariant(1)}).code,
        S_OK);

    // What a member leaves alone isn't touched.
    VARIANT view = TextVariant(L"kept");
    BSTR before = view.bstrVal;
    CHECK_EQUAL(
        Invoke(*control.Get(), L"CallBack_ReportViewInit", DISPATCH_METHOD, {filter, ReferenceTo(view)}).code,
        S_OK);
    CHECK(view.bstrVal == before);
    VariantClear(&view);
}

KAVELIN_TEST(AFailureIsReportedInBothWays)
{
    FakeLife life;
    const auto fake = MakeFake(life);
    fake->WithFailure("RawFilter", 0x800A03E9, L"过滤条件丢失", L"Host.Filter");
    const auto report = Create("clsProPortion");
    const Answer answer = Call(*report.Get(), L"GETSQL", {ObjectArgument(fake.Get())});
    CHECK_EQUAL(answer.code, DISP_E_EXCEPTION);
    CHECK_EQUAL(static_cast<long>(answer.error), static_cast<long>(0x800A03E9));
    CHECK_EQUAL(answer.description, "过滤条件丢失");
    CHECK_EQUAL(answer.source, "Host.Filter");

    Pointer<ISupportErrorInfo> supports;
    report->QueryInterface(IID_ISupportErrorInfo, reinterpret_cast<void**>(supports.Receive()));
    CHECK(supports && supports->InterfaceSupportsErrorInfo(IID_IDispatch) == S_OK);
    CHECK(supports && supports->InterfaceSupportsErrorInfo(IID_IUnknown) == S_FALSE);
    Pointer<IErrorInfo> info;
    CHECK_EQUAL(GetErrorInfo(0, info.Receive()), S_OK);
    BSTR text = nullptr;
    CHECK(info && SUCCEEDED(info->GetDescription(&text)));
    CHECK_EQUAL(com::Narrow(text ? text : L""), "过滤条件丢失");
    SysFreeString(text);

    // A member that the host's object doesn't have at all.
    const auto bare = MakeFake(life);
    const Answer missing = Call(*report.Get(), L"GETSQL", {ObjectArgument(bare.Get())});
    CHECK_EQUAL(missing.code, DISP_E_EXCEPTION);
    CHECK_EQUAL(missing.source, "Kavelin.clsProPortion");
    CHECK(missing.description.find("RawFilter") != std::string::npos);
    // And nothing where an object belongs.
    const Answer nothing = Call(*report.Get(), L"GETSQL", {HostObjectPtr()});
    CHECK_EQUAL(nothing.code, DISP_E_EXCEPTION);
    // A call that succeeds leaves no error behind.
    Get(*report.Get(), L"ReportTitle");
    info = {};
    CHECK_EQUAL(GetErrorInfo(0, info.Receive()), S_FALSE);
}
