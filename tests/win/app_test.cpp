#include "win/app_test.h"

#include <atomic>
#include <thread>
#include <utility>

#include "files/open_file.h"
#include "settings/app_settings.h"
#include "shell/frmNotePad.h"
#include "support/wide.h"
#include "win/clipboard.h"
#include "win/message_loop.h"

#include <shlwapi.h>

std::vector<HWND> ControlsOfClass(HWND form, const std::string& cls) {
    std::vector<HWND> controls = seen::Below(form);
    std::erase_if(controls, [&](HWND control) {
        return seen::ClassOf(control) != cls || ::GetParent(control) != form;
    });
    return controls;
}

std::vector<TBBUTTON> ToolButtons::buttons() const {
    std::vector<TBBUTTON> all(static_cast<std::size_t>(::SendMessageW(bar_, TB_BUTTONCOUNT, 0, 0)));
    for (std::size_t i = 0; i < all.size(); ++i)
        ::SendMessageW(bar_, TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&all[i]));
    std::erase_if(all, [](const TBBUTTON& button) { return (button.fsStyle & BTNS_SEP) != 0; });
    return all;
}

std::string ToolButtons::names(bool enabledOnly) const {
    std::string names;
    for (const TBBUTTON& button : buttons()) {
        if (enabledOnly && (button.fsState & TBSTATE_ENABLED) == 0) continue;
        wchar_t name[64] = L"";
        ::SendMessageW(bar_, TB_GETBUTTONTEXTW, static_cast<WPARAM>(button.idCommand),
                       reinterpret_cast<LPARAM>(name));
        names.append("|").append(win::ToUtf8(name));
    }
    return names;
}

RECT ToolButtons::place(int index) const {
    RECT place{};
    ::SendMessageW(bar_, TB_GETRECT,
                   static_cast<WPARAM>(buttons()[static_cast<std::size_t>(index)].idCommand),
                   reinterpret_cast<LPARAM>(&place));
    return place;
}

void ToolButtons::click(int index) const {
    const RECT button = place(index);
    const LPARAM middle = MAKELPARAM((button.left + button.right) / 2, (button.top + button.bottom) / 2);
    ::SendMessageW(bar_, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    ::SendMessageW(bar_, WM_LBUTTONUP, 0, middle);
}

void Notify(HWND control, WORD code) {
    ::SendMessageA(::GetParent(control), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), code),
                   reinterpret_cast<LPARAM>(control));
}

std::vector<std::string> User::hears(const std::function<void()>& busy, const std::vector<Act>& acts) {
    std::vector<std::string> heard(acts.size());
    std::atomic<bool> done = false;
    const std::jthread user([&] {
        HWND last = nullptr;
        for (std::size_t i = 0; i < acts.size(); ++i) {
            HWND dialog = nullptr;
            const bool came = seen::Until([&] {
                dialog = seen::Dialog(::GetCurrentProcessId(), acts[i].title);
                return dialog && dialog != last && ::IsWindowEnabled(dialog);
            });
            if (!came) {
                ADD_FAILURE() << "No window came with the title \"" << acts[i].title << '"';
                break;
            }
            heard[i] = seen::LabelsOf(dialog);
            acts[i].act(dialog);
            last = dialog;
        }
        done = true;
    });
    busy();
    // The search for dialogs asks the windows of this thread for their texts: those messages have to be
    // answered.
    for (MSG message; !done; ::Sleep(1))
        ::PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
    return heard;
}

User::Act User::press(const std::string& title, WORD button) {
    return {title, [button](HWND dialog) { ::PostMessageA(dialog, WM_COMMAND, button, 0); }};
}

User::Act User::enter(const std::string& title, const std::string& text, WORD button) {
    return {title, [=](HWND box) {
                seen::PutText(seen::ChildOfClass(box, "Edit"), text);
                ::PostMessageA(box, WM_COMMAND, button, 0);
            }};
}

User::Act User::chooseFile(const std::string& title, const std::string& path) {
    return {title, [path](HWND dialog) { seen::ChooseFile(dialog, path); }};
}

void AppTest::SetUp() {
    FilesTest::SetUp();
    constexpr char kScratchKey[] = "Software\\Quillon tests";
    HKEY key = nullptr;
    ::SHDeleteKeyA(HKEY_CURRENT_USER, kScratchKey);
    ::RegCreateKeyA(HKEY_CURRENT_USER, kScratchKey, &key);
    ::RegOverridePredefKey(HKEY_CURRENT_USER, key);
    ::RegCloseKey(key);
    settings::Save("File Count", "Count", "0");
    frmNotePad& window = frmNotePad::open();
    ::ShowWindow(window.hwnd(), SW_SHOW);
    main_ = &window;
    win::RunPending();
}

void AppTest::TearDown() {
    closeMain();
    MSG message{};
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageA(&message);
    ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
}

void AppTest::closeMain() {
    // A test may have closed the main window and thereby deleted its object.
    if (!main_ || !::FindWindowA("frmNotePad", nullptr)) return;
    for (frmChild* page : main_->documents()) page->txtPad().setChanged(false);
    ::SendMessageA(std::exchange(main_, nullptr)->mainHwnd(), WM_CLOSE, 0, 0);
}

frmChild& AppTest::openPage(const std::string& name, const std::string& bytes, const std::string& typed) {
    writeFile(scratch(name), bytes);
    frmChild* page = files::OpenFile(main(), scratch(name));
    EXPECT_TRUE(page);
    type(typed);
    return *page;
}

win::UniqueFile AppTest::hold(const std::string& path, DWORD share) {
    return win::UniqueFile(
        ::CreateFileW(Wide(path).c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr));
}

frmChild& AppTest::newPage(const std::string& text) {
    return frmChild::open(main(), "Untitled" + std::to_string(main().nextUntitled()),
                          document::NewPage(text));
}

void AppTest::activate(const frmChild& page) {
    ::SendMessageA(main().mdiClient(), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(page.hwnd()), 0);
}

void AppTest::type(const std::string& text) {
    for (const char16_t unit : win::Utf16FromUtf8(text)) {
        ::SendMessageW(active().txtPad().hwnd(), WM_CHAR, unit, 0);
    }
}

std::string AppTest::selected() {
    const document::Selection selection = active().txtPad().selection();
    return std::to_string(selection.start) + "-" + std::to_string(selection.end);
}

std::string AppTest::heard(const std::function<void()>& busy, const std::vector<User::Act>& acts) {
    return User::hears(busy, acts).back();
}

std::string AppTest::said(const std::function<void()>& act, const std::string& title) {
    return heard(act, {User::press(title, IDOK)});
}

std::string AppTest::said(Command command, const std::string& title) {
    return said([&] { run(command); }, title);
}

void AppTest::setClipboard(const std::string& text) {
    win::SetClipboardText(main().mainHwnd(), win::Utf16FromUtf8(text));
}

std::string AppTest::clipboard() {
    return win::Utf8FromUtf16(win::ClipboardText(main().mainHwnd()));
}
