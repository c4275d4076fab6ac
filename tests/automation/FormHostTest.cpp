// A form as the host sees it that shows it.
#include "automation/ScriptedObject.h"
#include "automation/Views.h"
#include "frame/Errors.h"

#include <gtest/gtest.h>

namespace kavelin::test {

using namespace automation;

namespace {

// Closes at "OK" once its field holds "70".
class SmallForm : public Form {
  public:
    std::string Title() const override { return "Limits"; }
    std::span<FormField> Fields() override { return lstFields; }
    std::span<const FormCommand> Commands() const override { return lstCommands; }
    std::string FieldAfter(std::string_view field) const override { return field == "Edit1" ? "Edit2" : ""; }
    bool Click(std::string_view command) override { return command == "OK" && lstFields[1].text == "70"; }
    void Unload() override { ++unloaded; }

    int unloaded = 0;

  private:
    std::vector<FormField> lstFields = {{"Edit1", "top", "100", false}, {"Edit2", "share", "", true}};
    std::vector<FormCommand> lstCommands = {{"OK", "Take it"}};
};

Value Ask(LateBound& form, std::string_view member, const std::vector<Variant>& arguments = {})
{
    return ValueOf(form.Call(member, arguments), member);
}

std::string TextOfError(const std::function<void()>& call)
{
    try {
        call();
        return "no error";
    } catch (const Error& error) {
        return error.what();
    }
}

// Shows the form on a host that does `use` with it.
void Show(Form& form, const std::function<void(LateBound&)>& use)
{
    const auto host = Scripted("host");
    host->actions["ShowModal"] = [&](std::vector<Variant>& arguments) {
        use(*ObjectOf<LateBound>(arguments.at(0), "the form"));
    };
    As<FormHost>(HostObjectPtr(host), "host")->ShowModal(form);
}

}  // namespace

TEST(AShownForm, IsUsedByItsMembersNames)
{
    SmallForm form;
    Show(form, [](LateBound& shown) {
        EXPECT_EQ(shown.Get("title"), Variant(Value("Limits")));
        EXPECT_EQ(shown.Get("FieldCount"), Variant(Value(2)));
        EXPECT_EQ(shown.Get("CommandCount"), Variant(Value(1)));
        EXPECT_EQ(Ask(shown, "FieldName", {Value(1)}), Value("Edit1"));
        EXPECT_EQ(Ask(shown, "FieldLabel", {Value(2)}), Value("share"));
        EXPECT_EQ(Ask(shown, "FieldText", {Value(1)}), Value("100"));
        EXPECT_EQ(Ask(shown, "FieldForInput", {Value(2)}), Value(true));
        EXPECT_EQ(Ask(shown, "FieldAfter", {Value("Edit1")}), Value("Edit2"));
        EXPECT_EQ(Ask(shown, "CommandName", {Value(1)}), Value("OK"));
        EXPECT_EQ(Ask(shown, "CommandCaption", {Value(1)}), Value("Take it"));
        EXPECT_EQ(Ask(shown, "Click", {Value("OK")}), Value(false));
        Ask(shown, "SetFieldText", {Value(2), Value(70)});
        EXPECT_EQ(Ask(shown, "Click", {Value("OK")}), Value(true));
        Ask(shown, "Unload");
    });
    EXPECT_EQ(form.unloaded, 1);
}

TEST(AShownForm, RefusesWhatItDoesNotHave)
{
    SmallForm form;
    Show(form, [](LateBound& shown) {
        const auto error = [&](std::string_view member, const std::vector<Variant>& arguments) {
            return TextOfError([&] { shown.Call(member, arguments); });
        };
        EXPECT_EQ(error("FieldName", {Value(0)}), "The form has no field 0.");
        EXPECT_EQ(error("FieldText", {Value(3)}), "The form has no field 3.");
        EXPECT_EQ(error("CommandName", {Value(2)}), "The form has no command 2.");
        EXPECT_EQ(error("Click", {}), "Click of the form takes 1 arguments, not 0.");
        EXPECT_EQ(error("Print", {}), "The form has no member Print.");
        EXPECT_EQ(TextOfError([&] { shown.Put("Title", Value("x")); }),
                  "The form has no property Title to set.");
    });
}

TEST(AShownForm, IsOfNoUseOnceItHasClosed)
{
    SmallForm form;
    std::shared_ptr<LateBound> kept;
    const auto host = Scripted("host");
    host->actions["ShowModal"] = [&](std::vector<Variant>& arguments) {
        kept = ObjectOf<LateBound>(arguments.at(0), "the form");
    };
    host->failures = {{"ShowModal", "no screen"}};
    const auto view = As<FormHost>(HostObjectPtr(host), "host");
    EXPECT_EQ(TextOfError([&] { view->ShowModal(form); }), "no screen");
    EXPECT_EQ(TextOfError([&] { kept->Call("Unload", {}); }), "The form has closed.");
}

TEST(AFormHost, ShowsMessages)
{
    const auto host = Scripted("host");
    As<FormHost>(HostObjectPtr(host), "host")->ShowMessage("text", 64, "title");
    EXPECT_EQ(host->TakeLines(), (ScriptedObject::Lines{"call ShowMessage('text', 64, 'title')"}));
}

}  // namespace kavelin::test
