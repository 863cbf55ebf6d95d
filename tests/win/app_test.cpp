#include "win/app_test.h"

#include <utility>

#include "files/open_file.h"
#include "settings/app_settings.h"
#include "shell/frmNotePad.h"
#include "win/clipboard.h"
#include "win/message_loop.h"

#include <shlwapi.h>

namespace {

constexpr char kScratchKey[] = "Software\\Quillon tests";

}  // namespace

std::vector<HWND> ControlsOfClass(HWND form, const std::string& cls) {
    std::vector<HWND> controls = seen::Below(form);
    std::erase_if(controls, [&](HWND control) {
        return seen::ClassOf(control) != cls || ::GetParent(control) != form;
    });
    return controls;
}

void Notify(HWND control, WORD code) {
    ::SendMessageA(::GetParent(control), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(control), code),
                   reinterpret_cast<LPARAM>(control));
}

ScratchRegistry::ScratchRegistry() {
    HKEY key = nullptr;
    ::SHDeleteKeyA(HKEY_CURRENT_USER, kScratchKey);
    ::RegCreateKeyA(HKEY_CURRENT_USER, kScratchKey, &key);
    const win::UniqueKey scratch(key);
    ::RegOverridePredefKey(HKEY_CURRENT_USER, key);
}

ScratchRegistry::~ScratchRegistry() {
    ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    ::SHDeleteKeyA(HKEY_CURRENT_USER, kScratchKey);
}

User::User(std::vector<Act> acts)
    : thread_([this, acts = std::move(acts)] {
          const DWORD process = ::GetCurrentProcessId();
          HWND last = nullptr;
          for (const Act& act : acts) {
              HWND dialog = nullptr;
              const bool came = seen::Until([&] {
                  dialog = seen::Dialog(process, act.title);
                  return dialog && dialog != last && ::IsWindowEnabled(dialog);
              });
              if (!came) {
                  missing_ = act.title;
                  heard_.resize(acts.size());  // what was not said is empty
                  return;
              }
              heard_.push_back(seen::LabelsOf(dialog));
              act.act(dialog);
              last = dialog;
          }
      }) {}

void User::finish() {
    if (!thread_.joinable()) return;
    thread_.join();
    const std::string missing = std::exchange(missing_, {});
    if (!missing.empty()) ADD_FAILURE() << "No window came with the title \"" << missing << '"';
}

const std::vector<std::string>& User::heard() {
    finish();
    return heard_;
}

User::Act User::press(const std::string& title, WORD button) {
    return {title, [button](HWND dialog) { ::PostMessageA(dialog, WM_COMMAND, button, 0); }};
}

User::Act User::chooseFile(const std::string& title, const std::string& path) {
    return {title, [path](HWND dialog) { seen::ChooseFile(dialog, path); }};
}

void AppTest::SetUp() {
    FilesTest::SetUp();
    registry_.emplace();
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
    registry_.reset();
}

void AppTest::closeMain() {
    // A test may have closed the main window, and its object went with it.
    if (!::FindWindowA("frmNotePad", nullptr)) return;
    if (!main_) return;
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
        ::CreateFileA(path.c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING, 0, nullptr));
}

frmChild& AppTest::newPage(const std::string& text) {
    return frmChild::open(main(), "Untitled" + std::to_string(main().nextUntitled()), text);
}

void AppTest::activate(const frmChild& page) {
    ::SendMessageA(main().mdiClient(), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(page.hwnd()), 0);
}

void AppTest::type(const std::string& text) {
    for (const char c : text) {
        ::SendMessageA(active().txtPad().hwnd(), WM_CHAR, static_cast<unsigned char>(c), 0);
    }
}

std::string AppTest::selected() {
    const document::Selection selection = active().txtPad().selection();
    return std::to_string(selection.start) + "-" + std::to_string(selection.end);
}

std::string AppTest::heard(const std::function<void()>& act, std::vector<User::Act> acts) {
    User user(std::move(acts));
    act();
    return user.heard().back();
}

std::string AppTest::said(const std::function<void()>& act, const std::string& title) {
    return heard(act, {User::press(title, IDOK)});
}

std::string AppTest::said(Command command, const std::string& title) {
    return said([&] { run(command); }, title);
}

std::string AppTest::clipboard() {
    return win::ClipboardText(main().mainHwnd());
}
