#include "win/app_test.h"

#include <utility>

#include "settings/app_settings.h"
#include "shell/frmNotePad.h"
#include "win/clipboard.h"
#include "win/message_loop.h"
#include "win/unique.h"

namespace {

constexpr char kScratchKey[] = "Software\\Quillon tests";

void DeleteKeyTree(HKEY parent, const std::string& name) {
    HKEY opened = nullptr;
    if (::RegOpenKeyExA(parent, name.c_str(), 0, KEY_ALL_ACCESS, &opened) != ERROR_SUCCESS) return;
    {
        const win::UniqueKey key(opened);
        char child[256];
        while (::RegEnumKeyA(opened, 0, child, sizeof child) == ERROR_SUCCESS) DeleteKeyTree(opened, child);
    }
    ::RegDeleteKeyA(parent, name.c_str());
}

std::string ScratchFolder() {
    char folder[MAX_PATH];
    if (::GetEnvironmentVariableA("QUILLON_SCRATCH", folder, sizeof folder) == 0)
        ::lstrcpyA(folder, "C:\\scratch");
    return std::string(folder) + "\\win";
}

}  // namespace

void DeleteTree(const std::string& folder) {
    std::string from = folder + '\0';
    SHFILEOPSTRUCTA operation{};
    operation.wFunc = FO_DELETE;
    operation.pFrom = from.c_str();
    operation.fFlags = FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
    ::SHFileOperationA(&operation);
}

std::vector<HWND> ControlsOfClass(HWND form, const std::string& cls) {
    std::vector<HWND> controls = seen::Below(form);
    std::erase_if(controls, [&](HWND control) {
        return seen::ClassOf(control) != cls || ::GetParent(control) != form;
    });
    return controls;
}

ScratchRegistry::ScratchRegistry() {
    HKEY key = nullptr;
    DeleteKeyTree(HKEY_CURRENT_USER, kScratchKey);
    ::RegCreateKeyA(HKEY_CURRENT_USER, kScratchKey, &key);
    const win::UniqueKey scratch(key);
    ::RegOverridePredefKey(HKEY_CURRENT_USER, key);
}

ScratchRegistry::~ScratchRegistry() {
    ::RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    DeleteKeyTree(HKEY_CURRENT_USER, kScratchKey);
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
    registry_.emplace();
    folder_ = ScratchFolder();
    DeleteTree(folder_);
    ::CreateDirectoryA(folder_.substr(0, folder_.rfind('\\')).c_str(), nullptr);
    ::CreateDirectoryA(folder_.c_str(), nullptr);
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
    DeleteTree(folder_);
    registry_.reset();
}

void AppTest::closeMain() {
    // A test may have closed the main window, and its object went with it.
    if (!::FindWindowA("frmNotePad", nullptr)) return;
    if (!main_) return;
    for (frmChild* page : main_->documents()) page->txtPad().setChanged(false);
    ::SendMessageA(std::exchange(main_, nullptr)->mainHwnd(), WM_CLOSE, 0, 0);
}

frmChild& AppTest::newPage(const std::string& text) {
    return frmChild::open(main(), "Untitled" + std::to_string(main().nextUntitled()), text);
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

std::string AppTest::clipboard() {
    return win::ClipboardText(main().mainHwnd());
}

void AppTest::writeFile(const std::string& path, const std::string& bytes) {
    const win::UniqueFile file(
        ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
    DWORD written = 0;
    ::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    ASSERT_EQ(written, bytes.size()) << path;
}

std::string AppTest::readFile(const std::string& path) {
    const win::UniqueFile file(
        ::CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    if (!file) return "(no file)";
    std::string bytes(::GetFileSize(file.get(), nullptr), '\0');
    DWORD read = 0;
    ::ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    return bytes;
}
