// The form of the library as a dialog, worked by messages as a user's keys would.
#include "Check.h"

#include "com/FormDialog.h"
#include "com/Utf16.h"
#include "com/Windows.h"
#include "frame/Errors.h"

#include <functional>
#include <thread>

using namespace kavelin;
using namespace kavelin::test;

namespace {

constexpr const wchar_t* kTitle = L"控制比 test";

class TestForm : public Form {
  public:
    std::string Title() const override { return com::Narrow(kTitle); }
    std::span<FormField> Fields() override { return lstFields; }
    std::span<const FormCommand> Commands() const override { return lstCommands; }
    std::string FieldAfter(std::string_view field) const override { return field == "Edit1" ? "Edit3" : ""; }
    bool Click(std::string_view command) override
    {
        strClicked += std::string(command) + " ";
        if (command == "Fail")
            throw Error("the command failed");
        return command == "Close";
    }
    void Unload() override { strClicked += "Unload"; }

    std::vector<FormField> lstFields = {
        {"Edit1", "一", "10", true}, {"Edit2", "二", "20", false}, {"Edit3", "三", "30", true}};
    std::vector<FormCommand> lstCommands = {{"Close", "确定"}, {"Stay", "停"}, {"Fail", "坏"}};
    std::string strClicked;
};

HWND WaitForForm()
{
    for (int i = 0; i < 500; ++i) {
        const HWND window = FindWindowW(nullptr, kTitle);
        if (window && IsWindowVisible(window))
            return window;
        Sleep(20);
    }
    return nullptr;
}

void Click(HWND window, const wchar_t* caption)
{
    const HWND button = FindWindowExW(window, nullptr, L"Button", caption);
    CHECK(button);
    SendMessageW(button, BM_CLICK, 0, 0);
}

HWND FocusOf(HWND window)
{
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
}

HWND Box(HWND window, int place)
{
    HWND box = nullptr;
    for (int i = 0; i <= place; ++i)
        box = FindWindowExW(window, box, L"Edit", nullptr);
    return box;
}

std::string TextOf(HWND box)
{
    wchar_t text[64] = {};
    SendMessageW(box, WM_GETTEXT, 64, reinterpret_cast<LPARAM>(text));
    return com::Narrow(text);
}

// Shows the form while `user` works it on another thread.
std::string Shown(TestForm& form, const std::function<void(HWND)>& user)
{
    std::thread worker([&] {
        const HWND window = WaitForForm();
        CHECK(window);
        if (window)
            user(window);
    });
    std::string failure;
    try {
        com::FormDialog().ShowModal(form);
    } catch (const Error& error) {
        failure = error.what();
    }
    worker.join();
    return failure;
}

}  // namespace

KAVELIN_TEST(TheFormTakesTextsAndRunsItsCommands)
{
    TestForm form;
    const std::string failure = Shown(form, [&](HWND window) {
        CHECK_EQUAL(TextOf(Box(window, 0)), "10");
        CHECK_EQUAL(TextOf(Box(window, 2)), "30");
        CHECK(FocusOf(window) == Box(window, 0));
        // Enter leads past the box that isn't for input, and stays in the last.
        PostMessageW(Box(window, 0), WM_KEYDOWN, VK_RETURN, 1);
        for (int i = 0; i < 100 && FocusOf(window) != Box(window, 2); ++i)
            Sleep(20);
        CHECK(FocusOf(window) == Box(window, 2));
        SendMessageW(Box(window, 1), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"二十"));
        Click(window, L"停");
        CHECK(IsWindow(window));
        Click(window, L"确定");
    });
    CHECK_EQUAL(failure, "");
    CHECK_EQUAL(form.strClicked, "Stay Close Unload");
    CHECK_EQUAL(form.lstFields[0].text, "10");
    CHECK_EQUAL(form.lstFields[1].text, "二十");
}

KAVELIN_TEST(EscapeClosesTheFormWithoutACommand)
{
    TestForm form;
    CHECK_EQUAL(Shown(form, [](HWND window) { SendMessageW(window, WM_COMMAND, IDCANCEL, 0); }), "");
    CHECK_EQUAL(form.strClicked, "Unload");
}

KAVELIN_TEST(AFailingCommandClosesTheFormAndGoesToTheCaller)
{
    TestForm form;
    CHECK_EQUAL(Shown(form, [](HWND window) { Click(window, L"坏"); }), "the command failed");
    CHECK_EQUAL(form.strClicked, "Fail Unload");
}
