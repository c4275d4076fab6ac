#include "component/late/MirroredInterfaces.h"

#include "automation/Views.h"
#include "frame/ModPub.h"
#include "frame/host/ConnectionObject.h"
#include "frame/host/DrillDownArgs.h"
#include "frame/host/ReportCallArgs.h"

namespace kavelin::test {

namespace {

using Arguments = std::vector<Variant>;

const Value& ValueAt(const Arguments& arguments, std::size_t i)
{
    return ValueOf(arguments.at(i), "an argument");
}

std::string TextAt(const Arguments& arguments, std::size_t i)
{
    return ToText(ValueAt(arguments, i));
}

template <class T>
std::shared_ptr<T> RecordedAs(const Variant& argument)
{
    return ObjectOf<T>(Recorded(argument), "an argument");
}

MirroredMember Property(std::function<Variant()> get)
{
    return {.get = std::move(get)};
}

template <class Get>
MirroredMember ObjectProperty(Get get)
{
    return {.get = [get] { return Mirrored(Variant(HostObjectPtr(get()))); }};
}

MirroredMember WriteOnly(std::function<void(const Variant&)> put)
{
    return {.put = std::move(put)};
}

MirroredMember Method(std::size_t arguments, std::function<Variant(Arguments&)> call)
{
    return {.call = [arguments, call = std::move(call)](Arguments& given) {
        if (given.size() != arguments)
            throw std::logic_error("a member was called with another number of arguments");
        return call(given);
    }};
}

Variant Nothing()
{
    return Value();
}

MirroredMembers MembersOf(const std::shared_ptr<DataSource>& object)
{
    return {
        {"Type", WriteOnly([=](const Variant& type) { object->SetType(ToInt16(ValueOf(type, "Type"))); })},
        {"sql", Property([=] { return Value(object->sql()); })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<ReportCallArgs>& object)
{
    return {
        {"DataSource", ObjectProperty([=] { return object->DataSource(); })},
        {"Login", ObjectProperty([=] { return object->Login(); })},
        {"RawFilter", ObjectProperty([=] { return object->RawFilter(); })},
        {"Args", ObjectProperty([=] { return object->Args(); })},
        {"LangID", Property([=] { return Value(object->LangID()); })},
        {"ObjreportManager", Property([=] { return Mirrored(object->Get("ObjreportManager")); })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<DrillDownArgs>& object)
{
    return {
        {"Login", ObjectProperty([=] { return object->Login(); })},
        {"Action", Property([=] { return Value(object->Action()); })},
        {"RelateData", ObjectProperty([=] { return object->RelateData(); })},
        {"FltArgs", Property([=] { return Mirrored(object->Get("FltArgs")); })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<RelateData>& object)
{
    return {
        {"GetData", Method(1, [=](Arguments& a) { return Value(object->GetData(TextAt(a, 0))); })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<LoginContext>& object)
{
    return {
        {"VosDbName", Property([=] { return Value(object->VosDbName()); })},
        {"AccountId", Property([=] { return Value(object->AccountId()); })},
        {"Year", Property([=] { return Value(object->Year()); })},
        {"Month", Property([=] { return Value(object->Month()); })},
        {"Date", Property([=] { return Value(object->Date()); })},
        {"Password", Property([=] { return Value(object->Password()); })},
        {"UserId", Property([=] { return Value(object->UserId()); })},
        {"ConnectionText", Property([=] { return Value(object->ConnectionText()); })},
        {"LanguageRegion", Property([=] { return Value(object->LanguageRegion()); })},
        {"SystemDatabase", ObjectProperty([=] { return object->SystemDatabase(); })},
        {"AuthService", ObjectProperty([=] { return object->AuthService(); })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<AuthService>& object)
{
    return {
        {"Initialise",
         Method(2, [=](Arguments& a) { return object->Initialise(TextAt(a, 0), TextAt(a, 1)), Nothing(); })},
        {"GetList", Method(3,
                           [=](Arguments& a) {
                               return Value(object->GetList(TextAt(a, 0), TextAt(a, 1), TextAt(a, 2)));
                           })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<NamedValues>& object)
{
    return {
        {"Count", Property([=] { return Value(object->Count()); })},
        {"Item", Method(1,
                        [=](Arguments& a) {
                            const Value& key = ValueAt(a, 0);
                            return Mirrored(key.IsText() ? object->Item(ToText(key))
                                                         : object->Item(ToInt32(key)));
                        })},
        {"Add",
         Method(2, [=](Arguments& a) { return object->Add(Recorded(a[0]), TextAt(a, 1)), Nothing(); })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<FilterItem>& object)
{
    const auto value = [](const Variant& given) { return ValueOf(given, "a value"); };
    return {
        {"Name", Property([=] { return Value(object->Name()); })},
        {"ControlKey", Property([=] { return Value(object->ControlKey()); })},
        {"varValue",
         {.get = [=] { return object->varValue(); },
          .put = [=](const Variant& v) { object->SetvarValue(value(v)); }}},
        {"varValue2",
         {.get = [=] { return object->varValue2(); },
          .put = [=](const Variant& v) { object->SetvarValue2(value(v)); }}},
        {"RangeInput", Property([=] { return Value(object->RangeInput()); })},
        {"IsMultSel", Property([=] { return Value(object->IsMultSel()); })},
        {"ListSource",
         {.get = [=] { return Value(object->ListSource()); },
          .put = [=](const Variant& v) { object->SetListSource(ToText(value(v))); }}},
        {"LngGrouptoken", WriteOnly([=](const Variant& v) { object->SetLngGrouptoken(ToInt32(value(v))); })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<FilterList>& object)
{
    return {
        {"Count", Property([=] { return Value(object->Count()); })},
        {"Item", Method(1,
                        [=](Arguments& a) {
                            const Value& key = ValueAt(a, 0);
                            return Mirrored(Variant(HostObjectPtr(
                                key.IsText() ? object->Item(ToText(key)) : object->Item(ToInt32(key)))));
                        })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<ReportFilterObject>& object)
{
    return {
        {"FilterID", Property([=] { return Value(object->FilterID()); })},
        {"Login", ObjectProperty([=] { return object->Login(); })},
        {"FilterList", ObjectProperty([=] { return object->FilterList(); })},
        {"ContextArgs", ObjectProperty([=] { return object->ContextArgs(); })},
        {"GetFieldValue", Method(1, [=](Arguments& a) { return object->GetFieldValue(TextAt(a, 0)); })},
        {"SetFieldValue",
         Method(2,
                [=](Arguments& a) { return object->SetFieldValue(TextAt(a, 0), ValueAt(a, 1)), Nothing(); })},
        {"SetFieldRefCondition", Method(3,
                                        [=](Arguments& a) {
                                            object->SetFieldRefCondition(TextAt(a, 0), TextAt(a, 1),
                                                                         TextAt(a, 2));
                                            return Nothing();
                                        })},
        {"SetFieldFlag", Method(2,
                                [=](Arguments& a) {
                                    return object->SetFieldFlag(TextAt(a, 0), ToBoolean(ValueAt(a, 1))),
                                           Nothing();
                                })},
        {"SetFieldLocked", Method(2,
                                  [=](Arguments& a) {
                                      return object->SetFieldLocked(TextAt(a, 0), ToBoolean(ValueAt(a, 1))),
                                             Nothing();
                                  })},
        {"RefreshFieldList",
         Method(3,
                [=](Arguments& a) {
                    return object->RefreshFieldList(TextAt(a, 0), TextAt(a, 1), TextAt(a, 2)), Nothing();
                })},
        {"SetFieldRangeList", Method(2,
                                     [=](Arguments& a) {
                                         return object->SetFieldRangeList(TextAt(a, 0), TextAt(a, 1)),
                                                Nothing();
                                     })},
        {"GetWhereWithToken",
         Method(1, [=](Arguments& a) { return Value(object->GetWhereWithToken(ToInt32(ValueAt(a, 0)))); })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<ResourceObject>& object)
{
    return {
        {"Login",
         WriteOnly([=](const Variant& login) { object->SetLogin(RecordedAs<LoginContext>(login)); })},
        {"GetResString", Method(1, [=](Arguments& a) { return Value(object->GetResString(TextAt(a, 0))); })},
        {"GetEnumName",
         Method(2, [=](Arguments& a) { return Value(object->GetEnumName(TextAt(a, 0), TextAt(a, 1))); })},
        {"GetEnumCode",
         Method(2, [=](Arguments& a) { return Value(object->GetEnumCode(TextAt(a, 0), TextAt(a, 1))); })},
        {"ShowMessage", Method(2,
                               [=](Arguments& a) {
                                   return object->ShowMessage(TextAt(a, 0), ToInt32(ValueAt(a, 1))),
                                          Nothing();
                               })},
        {"Unload", Method(0, [=](Arguments&) { return object->Unload(), Nothing(); })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<LedgerLogin>& object)
{
    return {
        {"Initialise", Method(4,
                              [=](Arguments& a) {
                                  object->Initialise(TextAt(a, 0), TextAt(a, 1), ToBoolean(ValueAt(a, 2)),
                                                     ToBoolean(ValueAt(a, 3)));
                                  return Nothing();
                              })},
        {"DbConnection",
         ObjectProperty([=] { return std::make_shared<ConnectionObject>(object->DbConnection()); })},
    };
}

std::shared_ptr<LateMirror> YearsMirror(const std::vector<std::string>& years)
{
    const auto item = [years](Arguments& a) { return Value(years.at(std::stoul(TextAt(a, 0)) - 1)); };
    return std::make_shared<LateMirror>(
        nullptr, "years",
        MirroredMembers{
            {"Count", Property([years] { return Value(static_cast<std::int32_t>(years.size())); })},
            {"Item", Method(1, item)},
        });
}

// The recording object compares what it is given with what the library keeps, which is a view here.
std::shared_ptr<LedgerLogin> KnownLogin(const Variant& login)
{
    const auto kept = ModPub().gobjLedgerLogin;
    const auto* given = std::get_if<HostObjectPtr>(&login);
    return given && *given == automation::LateBoundOf(kept) ? kept : RecordedAs<LedgerLogin>(login);
}

MirroredMembers MembersOf(const std::shared_ptr<LedgerPub>& object)
{
    const auto connection = [](const Variant& given) -> Connection& {
        return *RecordedAs<ConnectionObject>(given)->Connection();
    };
    return {
        {"Login", WriteOnly([=](const Variant& login) { object->SetLogin(KnownLogin(login)); })},
        {"Reload",
         Method(2, [=](Arguments& a) { return Value(object->Reload(TextAt(a, 0), TextAt(a, 1))); })},
        {"GetYearMonthRange", Method(4,
                                     [=](Arguments& a) {
                                         const auto [first, last] =
                                             object->GetYearMonthRange(TextAt(a, 0), connection(a[1]));
                                         a[2] = Value(first);
                                         a[3] = Value(last);
                                         return Nothing();
                                     })},
        {"GetAccountYears", Method(2,
                                   [=](Arguments& a) {
                                       return HostObjectPtr(YearsMirror(
                                           object->GetAccountYears(TextAt(a, 0), connection(a[1]))));
                                   })},
        {"GetAccountYearParams", Method(3,
                                        [=](Arguments& a) {
                                            object->GetAccountYearParams(*RecordedAs<LedgerLogin>(a[0]),
                                                                         TextAt(a, 1),
                                                                         *RecordedAs<LedgerParams>(a[2]));
                                            return Nothing();
                                        })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<LedgerParams>& object)
{
    return {
        {"Year", Property([=] { return Value(object->Year()); })},
        {"ValueStyle", Property([=] { return Value(object->ValueStyle()); })},
        {"InventoryQualifier", Property([=] { return Value(object->InventoryQualifier()); })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<MachineInfo>& object)
{
    return {{"MachineName", Property([=] { return Value(object->MachineName()); })}};
}

MirroredMembers MembersOf(const std::shared_ptr<ClientNumber>& object)
{
    return {{"[DISPID=1]", Method(0, [=](Arguments&) { return object->Number(); })}};
}

MirroredMembers MembersOf(const std::shared_ptr<SettingsStore>& object)
{
    return {
        {"Read", Method(4,
                        [=](Arguments& a) {
                            return Value(
                                object->Read(TextAt(a, 0), TextAt(a, 1), TextAt(a, 2), TextAt(a, 3)));
                        })},
        {"Write", Method(4,
                         [=](Arguments& a) {
                             object->Write(TextAt(a, 0), TextAt(a, 1), TextAt(a, 2), TextAt(a, 3));
                             return Nothing();
                         })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<XmlNode>& object)
{
    const auto children = [=] {
        const auto nodes = object->childNodes();
        const auto item = [nodes](Arguments& a) {
            return Mirrored(
                Variant(HostObjectPtr(nodes.at(static_cast<std::size_t>(ToInt32(ValueAt(a, 0)))))));
        };
        return std::make_shared<LateMirror>(
            nullptr, "nodes",
            MirroredMembers{
                {"length", Property([nodes] { return Value(static_cast<std::int32_t>(nodes.size())); })},
                {"item", Method(1, item)},
            });
    };
    return {
        {"nodeName", Property([=] { return Value(object->nodeName()); })},
        {"text", Property([=] { return Value(object->text()); })},
        {"getAttribute", Method(1, [=](Arguments& a) { return object->getAttribute(TextAt(a, 0)); })},
        {"childNodes", Property([=] { return HostObjectPtr(children()); })},
    };
}

MirroredMembers MembersOf(const std::shared_ptr<XmlDocument>& object)
{
    return {
        {"async", WriteOnly([](const Variant&) {})},
        {"loadXML", Method(1, [=](Arguments& a) { return Value(object->loadXML(TextAt(a, 0))); })},
        {"documentElement", ObjectProperty([=] { return object->documentElement(); })},
    };
}

template <class T>
std::shared_ptr<LateMirror> Try(const HostObjectPtr& recording, const char* name)
{
    const auto typed = std::dynamic_pointer_cast<T>(recording);
    return typed ? std::make_shared<LateMirror>(recording, name, MembersOf(typed)) : nullptr;
}

using Attempt = std::shared_ptr<LateMirror> (*)(const HostObjectPtr&);

template <class T>
std::shared_ptr<LateMirror> As(const HostObjectPtr& recording)
{
    return Try<T>(recording, typeid(T).name());
}

constexpr Attempt kAttempts[] = {
    As<ReportCallArgs>, As<DrillDownArgs>, As<DataSource>,  As<RelateData>,   As<LoginContext>,
    As<AuthService>,    As<NamedValues>,   As<FilterItem>,  As<FilterList>,   As<ReportFilterObject>,
    As<ResourceObject>, As<LedgerLogin>,   As<LedgerPub>,   As<LedgerParams>, As<MachineInfo>,
    As<ClientNumber>,   As<SettingsStore>, As<XmlDocument>, As<XmlNode>,      MirrorOfConnection,
    MirrorOfForms,
};

}  // namespace

std::shared_ptr<LateMirror> MirrorOfInterface(const HostObjectPtr& recording)
{
    for (const Attempt attempt : kAttempts)
        if (auto mirror = attempt(recording))
            return mirror;
    return nullptr;
}

}  // namespace kavelin::test
