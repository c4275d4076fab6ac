// A host that shows the library's forms, and the form as it sees it.
#include "automation/Border.h"
#include "automation/HostView.h"
#include "automation/Views.h"
#include "frame/Errors.h"
#include "frame/Text.h"

namespace kavelin::automation {

namespace {

// A form, called late-bound by the host that shows it. Positions count from 1. It is of use only while
// ShowModal runs.
class LateForm : public LateBound {
  public:
    explicit LateForm(Form& form) : frmForm(&form) {}

    void Forget() { frmForm = nullptr; }

    Variant Get(std::string_view member) override { return Call(member, {}); }

    void Put(std::string_view member, const Variant& /*value*/) override
    {
        throw Error("The form has no property " + std::string(member) + " to set.");
    }

    Variant Call(std::string_view member, const std::vector<Variant>& arguments) override
    {
        for (const Method& method : kMethods)
            if (EqualsNoCase(method.name, member)) {
                if (arguments.size() != method.arguments)
                    throw Error(std::string(method.name) + " of the form takes " +
                                std::to_string(method.arguments) + " arguments, not " +
                                std::to_string(arguments.size()) + ".");
                return (this->*method.call)(arguments);
            }
        throw Error("The form has no member " + std::string(member) + ".");
    }

  private:
    using Arguments = std::vector<Variant>;

    struct Method {
        std::string_view name;
        std::size_t arguments;
        Variant (LateForm::*call)(const Arguments&);
    };

    Form& Shown() const
    {
        if (!frmForm)
            throw Error("The form has closed.");
        return *frmForm;
    }

    FormField& Field(const Variant& position) const
    {
        const std::int32_t number = ToInt32(ValueOf(position, "the number of a field"));
        const auto fields = Shown().Fields();
        if (number < 1 || static_cast<std::size_t>(number) > fields.size())
            throw Error("The form has no field " + std::to_string(number) + ".");
        return fields[static_cast<std::size_t>(number) - 1];
    }

    const FormCommand& Command(const Variant& position) const
    {
        const std::int32_t number = ToInt32(ValueOf(position, "the number of a command"));
        const auto commands = Shown().Commands();
        if (number < 1 || static_cast<std::size_t>(number) > commands.size())
            throw Error("The form has no command " + std::to_string(number) + ".");
        return commands[static_cast<std::size_t>(number) - 1];
    }

    static std::string Text(const Variant& argument) { return ToText(ValueOf(argument, "a name or text")); }

    Variant Title(const Arguments&) { return Value(Shown().Title()); }
    Variant FieldCount(const Arguments&) { return Value(static_cast<std::int32_t>(Shown().Fields().size())); }
    Variant CommandCount(const Arguments&)
    {
        return Value(static_cast<std::int32_t>(Shown().Commands().size()));
    }
    Variant FieldName(const Arguments& a) { return Value(Field(a[0]).name); }
    Variant FieldLabel(const Arguments& a) { return Value(Field(a[0]).label); }
    Variant FieldText(const Arguments& a) { return Value(Field(a[0]).text); }
    Variant FieldForInput(const Arguments& a) { return Value(Field(a[0]).forInput); }
    Variant SetFieldText(const Arguments& a)
    {
        Field(a[0]).text = Text(a[1]);
        return Value();
    }
    Variant FieldAfter(const Arguments& a) { return Value(Shown().FieldAfter(Text(a[0]))); }
    Variant CommandName(const Arguments& a) { return Value(Command(a[0]).name); }
    Variant CommandCaption(const Arguments& a) { return Value(Command(a[0]).caption); }
    Variant Click(const Arguments& a) { return Value(Shown().Click(Text(a[0]))); }
    Variant Unload(const Arguments&)
    {
        Shown().Unload();
        return Value();
    }

    static constexpr Method kMethods[] = {
        {"Title", 0, &LateForm::Title},
        {"FieldCount", 0, &LateForm::FieldCount},
        {"CommandCount", 0, &LateForm::CommandCount},
        {"FieldName", 1, &LateForm::FieldName},
        {"FieldLabel", 1, &LateForm::FieldLabel},
        {"FieldText", 1, &LateForm::FieldText},
        {"FieldForInput", 1, &LateForm::FieldForInput},
        {"SetFieldText", 2, &LateForm::SetFieldText},
        {"FieldAfter", 1, &LateForm::FieldAfter},
        {"CommandName", 1, &LateForm::CommandName},
        {"CommandCaption", 1, &LateForm::CommandCaption},
        {"Click", 1, &LateForm::Click},
        {"Unload", 0, &LateForm::Unload},
    };

    Form* frmForm;  // null once it has closed
};

// A form while it is shown. The host may keep its reference longer than the form lives.
class Showing {
  public:
    explicit Showing(Form& form) : objLate(std::make_shared<LateForm>(form)) {}
    ~Showing() { objLate->Forget(); }
    Showing(const Showing&) = delete;
    Showing& operator=(const Showing&) = delete;

    const std::shared_ptr<LateForm>& Late() const { return objLate; }

  private:
    std::shared_ptr<LateForm> objLate;
};

class FormHostView : public FormHost, public HostView {
  public:
    using HostView::HostView;

    void ShowModal(Form& form) override
    {
        const Showing showing(form);
        Call("ShowModal", {HostObjectPtr(showing.Late())});
    }
    void ShowMessage(const std::string& text, int icon, const std::string& title) override
    {
        Call("ShowMessage", {Value(text), Value(icon), Value(title)});
    }
};

}  // namespace

template <>
std::shared_ptr<FormHost> ViewOf(std::shared_ptr<LateBound> object)
{
    return std::make_shared<FormHostView>(std::move(object), "FormHost");
}

}  // namespace kavelin::automation
