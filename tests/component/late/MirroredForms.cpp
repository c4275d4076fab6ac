// The host of forms: what it gets is late-bound, what the recording one shows is a Form.
#include "component/late/MirroredInterfaces.h"
#include "frame/host/Form.h"

namespace kavelin::test {

namespace {

// A form read through its late-bound members. What the user types goes there before a command is clicked.
class ReadForm : public Form {
  public:
    explicit ReadForm(std::shared_ptr<LateBound> form) : objForm(std::move(form))
    {
        for (std::int32_t i = 1; i <= ToInt32(Get("FieldCount")); ++i)
            lstFields.push_back({Text("FieldName", i), Text("FieldLabel", i), Text("FieldText", i),
                                 ToBoolean(Ask("FieldForInput", {Value(i)}))});
        for (std::int32_t i = 1; i <= ToInt32(Get("CommandCount")); ++i)
            lstCommands.push_back({Text("CommandName", i), Text("CommandCaption", i)});
    }

    std::string Title() const override { return ToText(Get("Title")); }
    std::span<FormField> Fields() override { return lstFields; }
    std::span<const FormCommand> Commands() const override { return lstCommands; }
    std::string FieldAfter(std::string_view field) const override
    {
        return ToText(Ask("FieldAfter", {Value(field)}));
    }
    bool Click(std::string_view command) override
    {
        for (std::size_t i = 0; i < lstFields.size(); ++i)
            Ask("SetFieldText", {Value(static_cast<std::int32_t>(i + 1)), Value(lstFields[i].text)});
        return ToBoolean(Ask("Click", {Value(command)}));
    }
    void Unload() override { Ask("Unload", {}); }

  private:
    Value Get(std::string_view member) const { return ValueOf(objForm->Get(member), member); }
    Value Ask(std::string_view member, const std::vector<Variant>& arguments) const
    {
        return ValueOf(objForm->Call(member, arguments), member);
    }
    std::string Text(std::string_view member, std::int32_t position) const
    {
        return ToText(Ask(member, {Value(position)}));
    }

    std::shared_ptr<LateBound> objForm;
    std::vector<FormField> lstFields;
    std::vector<FormCommand> lstCommands;
};

}  // namespace

std::shared_ptr<LateMirror> MirrorOfForms(const HostObjectPtr& recording)
{
    const auto host = std::dynamic_pointer_cast<FormHost>(recording);
    if (!host)
        return nullptr;
    const auto show = [host](std::vector<Variant>& a) {
        ReadForm form(ObjectOf<LateBound>(a.at(0), "the form"));
        host->ShowModal(form);
        return Value();
    };
    const auto showMessage = [host](std::vector<Variant>& a) {
        const auto value = [&](std::size_t i) { return ValueOf(a.at(i), "an argument"); };
        host->ShowMessage(ToText(value(0)), ToInt32(value(1)), ToText(value(2)));
        return Value();
    };
    return std::make_shared<LateMirror>(
        recording, "FormHost",
        MirroredMembers{{"ShowModal", {.call = show}}, {"ShowMessage", {.call = showMessage}}});
}

}  // namespace kavelin::test
