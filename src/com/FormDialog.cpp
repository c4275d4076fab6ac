#include "com/FormDialog.h"

#include "com/Failure.h"
#include "com/Module.h"
#include "com/Utf16.h"
#include "com/Windows.h"
#include "frame/Errors.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <string>

namespace kavelin::com {

namespace {

// Identifiers of the controls; those of the system's own commands lie below.
constexpr int kFirstField = 100;
constexpr int kFirstCommand = 1000;

// In dialog units, which follow the font.
constexpr int kMargin = 7;
constexpr int kRow = 16;
constexpr int kLine = 12;
constexpr int kLabelWidth = 150;
constexpr int kFieldWidth = 60;
constexpr int kButtonWidth = 50;
constexpr int kButtonHeight = 14;
constexpr int kWidth = kMargin + kLabelWidth + kFieldWidth + kMargin;

// The template without a control: they are made when the window stands.
struct EmptyTemplate {
    DLGTEMPLATE head;
    WORD menu, windowClass, title, fontSize;
    wchar_t font[13];
};

struct OpenForm {
    Form& form;
    HWND window = nullptr;
    std::exception_ptr failed = {};
    bool filling = false;  // the program changes a box, not the user

    void Add(const wchar_t* kind, const std::string& text, DWORD style, int id, RECT place) const
    {
        MapDialogRect(window, &place);
        const HWND control =
            CreateWindowExW(0, kind, Wide(text).c_str(), WS_CHILD | WS_VISIBLE | style, place.left, place.top,
                            place.right - place.left, place.bottom - place.top, window,
                            reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), ModuleInstance(), nullptr);
        SendMessageW(control, WM_SETFONT, static_cast<WPARAM>(SendMessageW(window, WM_GETFONT, 0, 0)), FALSE);
    }

    void AddControls()
    {
        filling = true;
        SetWindowTextW(window, Wide(form.Title()).c_str());
        int top = kMargin;
        int id = kFirstField;
        for (const FormField& field : form.Fields()) {
            Add(L"STATIC", field.label, SS_LEFT | SS_NOPREFIX, -1,
                {kMargin, top + 2, kMargin + kLabelWidth - 4, top + kLine});
            const int left = kMargin + kLabelWidth;
            Add(L"EDIT", field.text, WS_BORDER | ES_AUTOHSCROLL | (field.forInput ? WS_TABSTOP : 0U), id++,
                {left, top, left + kFieldWidth, top + kLine});
            top += kRow;
        }
        int left = kMargin;
        id = kFirstCommand;
        for (const FormCommand& command : form.Commands()) {
            Add(L"BUTTON", command.caption, WS_TABSTOP | BS_PUSHBUTTON, id++,
                {left, top + 2, left + kButtonWidth, top + 2 + kButtonHeight});
            left += kButtonWidth + 6;
        }
        filling = false;
    }

    // The box of that name.
    HWND BoxOf(const std::string& name) const
    {
        int id = kFirstField;
        for (const FormField& field : form.Fields()) {
            if (field.name == name)
                return GetDlgItem(window, id);
            ++id;
        }
        return nullptr;
    }

    FormField* FieldOf(int id) const
    {
        const auto fields = form.Fields();
        const int place = id - kFirstField;
        return place >= 0 && static_cast<std::size_t>(place) < fields.size() ? &fields[place] : nullptr;
    }

    void FocusFirst() const
    {
        for (const FormField& field : form.Fields())
            if (field.forInput)
                return Focus(BoxOf(field.name));
    }

    static void Focus(HWND box)
    {
        SetFocus(box);
        SendMessageW(box, EM_SETSEL, 0, -1);
    }

    void OnEnter() const
    {
        const FormField* field = FieldOf(GetDlgCtrlID(GetFocus()));
        const std::string next = field ? form.FieldAfter(field->name) : "";
        if (!next.empty())
            Focus(BoxOf(next));
    }

    void OnChange(int id) const
    {
        FormField* field = FieldOf(id);
        if (!field || filling)
            return;
        const HWND box = GetDlgItem(window, id);
        std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(box)) + 1, L'\0');
        text.resize(
            static_cast<std::size_t>(GetWindowTextW(box, text.data(), static_cast<int>(text.size()))));
        field->text = Narrow(text);
    }

    void OnCommand(int id)
    {
        const auto commands = form.Commands();
        const int place = id - kFirstCommand;
        if (place < 0 || static_cast<std::size_t>(place) >= commands.size())
            return;
        if (form.Click(commands[static_cast<std::size_t>(place)].name))
            EndDialog(window, 1);
    }

    bool On(UINT message, WPARAM parameter)
    {
        const int id = LOWORD(parameter);
        if (message == WM_INITDIALOG) {
            AddControls();
            FocusFirst();
            return false;  // the focus stands already
        }
        if (message != WM_COMMAND)
            return false;
        if (id == IDCANCEL)
            EndDialog(window, 0);
        else if (id == IDOK)
            OnEnter();
        else if (HIWORD(parameter) == EN_CHANGE && id < kFirstCommand)
            OnChange(id);
        else if (HIWORD(parameter) == BN_CLICKED)
            OnCommand(id);
        return true;
    }
};

INT_PTR CALLBACK OnMessage(HWND window, UINT message, WPARAM parameter, LPARAM creation)
{
    if (message == WM_INITDIALOG) {
        reinterpret_cast<OpenForm*>(creation)->window = window;
        SetWindowLongPtrW(window, DWLP_USER, creation);
    }
    auto* open = reinterpret_cast<OpenForm*>(GetWindowLongPtrW(window, DWLP_USER));
    if (!open)
        return FALSE;
    // Nothing may be thrown through the system's code.
    try {
        return open->On(message, parameter);
    } catch (...) {
        open->failed = std::current_exception();
        EndDialog(window, -1);
        return TRUE;
    }
}

EmptyTemplate TemplateFor(Form& form)
{
    EmptyTemplate empty = {};
    empty.head.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME | DS_CENTER | DS_SETFONT;
    empty.head.cx = kWidth;
    empty.head.cy =
        static_cast<short>(2 * kMargin + kRow * static_cast<int>(form.Fields().size()) + kButtonHeight + 2);
    empty.fontSize = 9;
    std::copy_n(L"MS Shell Dlg", 13, empty.font);  // the system's choice for the user's language
    return empty;
}

}  // namespace

void FormDialog::ShowModal(Form& form)
{
    OpenForm open{form};
    const EmptyTemplate empty = TemplateFor(form);
    const INT_PTR shown = DialogBoxIndirectParamW(ModuleInstance(), &empty.head, GetActiveWindow(), OnMessage,
                                                  reinterpret_cast<LPARAM>(&open));
    const DWORD code = GetLastError();
    form.Unload();
    if (open.failed)
        std::rethrow_exception(open.failed);
    if (shown == -1)
        throw Error("The form can't be shown: " + MessageOf(HRESULT_FROM_WIN32(code)));
}

void FormDialog::ShowMessage(const std::string& text, int icon, const std::string& title)
{
    MessageBoxW(GetActiveWindow(), Wide(text).c_str(), Wide(title).c_str(), MB_OK | static_cast<UINT>(icon));
}

}  // namespace kavelin::com
