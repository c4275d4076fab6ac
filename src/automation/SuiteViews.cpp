// Views of objects of the suite: texts, the machine, settings.
#include "automation/Border.h"
#include "automation/HostView.h"
#include "automation/Views.h"

namespace kavelin::automation {

namespace {

class ResourceView : public ResourceObject, public HostView {
  public:
    using HostView::HostView;

    void SetLogin(std::shared_ptr<LoginContext> login) override
    {
        Write("Login", HostObjectPtr(std::move(login)));
    }
    std::string GetResString(const std::string& key) override
    {
        return CallForText("GetResString", {Value(key)});
    }
    std::string GetEnumName(const std::string& type, const std::string& code) override
    {
        return CallForText("GetEnumName", {Value(type), Value(code)});
    }
    std::string GetEnumCode(const std::string& type, const std::string& text) override
    {
        return CallForText("GetEnumCode", {Value(type), Value(text)});
    }
    void ShowMessage(const std::string& text, int icon) override
    {
        Call("ShowMessage", {Value(text), Value(icon)});
    }
    void Unload() override { Call("Unload", {}); }
};

class MachineInfoView : public MachineInfo, public HostView {
  public:
    using HostView::HostView;

    std::string MachineName() override { return ReadText("MachineName"); }
};

class ClientNumberView : public ClientNumber, public HostView {
  public:
    using HostView::HostView;

    // Known by its place in the object only, not by name.
    Value Number() override { return CallForValue("[DISPID=1]", {}); }
};

class SettingsView : public SettingsStore, public HostView {
  public:
    using HostView::HostView;

    std::string Read(const std::string& application, const std::string& section, const std::string& key,
                     const std::string& byDefault) override
    {
        return CallForText("Read", {Value(application), Value(section), Value(key), Value(byDefault)});
    }
    void Write(const std::string& application, const std::string& section, const std::string& key,
               const std::string& value) override
    {
        Call("Write", {Value(application), Value(section), Value(key), Value(value)});
    }
};

}  // namespace

template <>
std::shared_ptr<ResourceObject> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<ResourceView>(std::move(object), "ResourceObject");
}

template <>
std::shared_ptr<MachineInfo> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<MachineInfoView>(std::move(object), "MachineInfo");
}

template <>
std::shared_ptr<ClientNumber> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<ClientNumberView>(std::move(object), "ClientNumber");
}

template <>
std::shared_ptr<SettingsStore> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<SettingsView>(std::move(object), "SettingsStore");
}

}  // namespace kavelin::automation
