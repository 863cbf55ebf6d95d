#include "authoring/preview/modPreview.h"

#include <exception>
#include <optional>
#include <string>
#include <utility>

#include "authoring/preview/core/preview_path.h"
#include "document/frmChild.h"
#include "files/mBinOpen.h"
#include "files/modPubFuncs.h"
#include "files/page_bytes.h"
#include "win/error.h"
#include "win/message_box.h"
#include "win/message_loop.h"
#include "win/shell_open.h"
#include "win/unicode.h"
#include "win/unique.h"
#include "win/wide_path.h"
#include "win/window.h"

namespace modPreview {
namespace {

bool WriteNew(HANDLE file, const std::string& bytes) {
    DWORD written = 0;
    return ::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
           written == bytes.size();
}

// The file that a browser is shown. A copy is deleted with its last owner.
class ShownFile {
 public:
    // The page's own file, which stays.
    explicit ShownFile(std::string path) : path_(std::move(path)) {}
    // A new file with these bytes. Throws win::Error where there is a file already, or none can be made.
    ShownFile(std::string path, const std::string& bytes) : path_(std::move(path)) {
        win::UniqueFile file(::CreateFileW(win::WidePath(path_).c_str(), GENERIC_WRITE, 0, nullptr,
                                           CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!file) win::ThrowLastError();
        const bool written = WriteNew(file.get(), bytes);
        const DWORD error = ::GetLastError();
        file.reset();
        isCopy_ = true;
        made_ = look();
        if (written) return;
        remove();
        throw win::Error(error);
    }
    ShownFile(ShownFile&& other) noexcept
        : path_(std::move(other.path_)), isCopy_(std::exchange(other.isCopy_, false)), made_(other.made_) {}
    ShownFile& operator=(ShownFile&&) = delete;
    ~ShownFile() { remove(); }

    const std::string& path() const { return path_; }
    std::string folder() const { return path_.substr(0, path_.rfind('\\') + 1); }  // with its backslash
    // False while another program keeps the copy from being deleted.
    bool remove() {
        if (!isCopy_) return true;
        const auto now = look();
        // Another file than the one made here, or one that somebody has written since, is not ours to delete.
        const bool isOurs = now && made_ && now->nFileSizeLow == made_->nFileSizeLow &&
                            ::CompareFileTime(&now->ftLastWriteTime, &made_->ftLastWriteTime) == 0;
        if (isOurs && !::DeleteFileW(win::WidePath(path_).c_str())) return false;
        isCopy_ = false;
        return true;
    }

 private:
    // Nothing when it is no longer there.
    std::optional<WIN32_FILE_ATTRIBUTE_DATA> look() const {
        WIN32_FILE_ATTRIBUTE_DATA data{};
        if (!::GetFileAttributesExW(win::WidePath(path_).c_str(), GetFileExInfoStandard, &data))
            return std::nullopt;
        return data;
    }

    std::string path_;
    bool isCopy_ = false;
    std::optional<WIN32_FILE_ATTRIBUTE_DATA> made_;
};

void TellNotOpened(HWND owner) {
    win::ShowMessage(owner, "Web Page Could Not Be Opened.", "URL Failed", MB_ICONEXCLAMATION);
}

// Waits without blocking the program: a hidden window with a timer, owned by the main window, so that it is
// destroyed, and the copy deleted, when the program is closed.
class PreviewWait : public win::Window {
 public:
    // Until the user is told that no browser was found.
    static void forBrowser(HWND owner, ShownFile file) { begin(owner, std::move(file), false); }
    // Until the browser has had time to read the file.
    static void forLoading(HWND owner, ShownFile file) { begin(owner, std::move(file), true); }

    // Ends a wait for this file now, if the copy can be deleted.
    static void hurry(const std::string& path) {
        const HWND wait = ::FindWindowW(kClass, win::ToWide(path).c_str());
        if (::GetWindowThreadProcessId(wait, nullptr) == ::GetCurrentThreadId())
            ::SendMessageW(wait, kHurry, 0, 0);
    }

 private:
    static constexpr wchar_t kClass[] = L"modPreview";
    static constexpr UINT kHurry = WM_APP;

    PreviewWait(ShownFile file, bool found) : file_(std::move(file)), found_(found) {}

    static void begin(HWND owner, ShownFile file, bool found) {
        constexpr UINT kLookup = 5 * 500;  // milliseconds
        constexpr UINT kLoad = 3000;
        WNDCLASSEXW cls{};
        cls.lpszClassName = kClass;
        auto* wait = new PreviewWait(std::move(file), found);
        wait->create(cls, wait->file_.path(), WS_POPUP, 0, {0, 0, 0, 0}, owner);
        ::SetTimer(wait->hwnd(), 1, found ? kLoad : kLookup, nullptr);
    }

    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override {
        switch (message) {
            case WM_TIMER:
                elapsed();
                return 0;
            case kHurry:
                if (file_.remove()) ::DestroyWindow(hwnd());
                return 0;
            case WM_ENDSESSION:
                // The process ends without its windows being destroyed.
                if (wParam) file_.remove();
                return 0;
            default:
                return defaultHandling(message, wParam, lParam);
        }
    }

    void elapsed() {
        const bool removed = file_.remove();
        if (found_) {
            // Otherwise the browser still has it open, and the timer fires again.
            if (removed) ::DestroyWindow(hwnd());
            return;
        }
        ::KillTimer(hwnd(), 1);
        const HWND owner = ::GetWindow(hwnd(), GW_OWNER);
        win::ShowMessage(owner, "Could not find associated Browser", "Browser Not Found", MB_ICONEXCLAMATION);
        TellNotOpened(owner);
        if (hwnd()) ::DestroyWindow(hwnd());
    }

    ShownFile file_;
    bool found_;
};

// Where the author has a file of the copy's name, the copy takes another name.
ShownFile WriteCopy(const std::string& path, bool edited, const std::string& bytes) {
    constexpr int kNames = 20;
    for (int taken = 0;; ++taken) {
        std::string copy = authoring::PreviewCopy(path, edited, taken);
        PreviewWait::hurry(copy);
        try {
            return ShownFile(std::move(copy), bytes);
        } catch (const win::Error& error) {
            // The last is the error of a file that has been deleted and is still open somewhere.
            const bool isTaken = error.code() == ERROR_FILE_EXISTS || error.code() == ERROR_ALREADY_EXISTS ||
                                 error.code() == ERROR_ACCESS_DENIED;
            if (!isTaken || taken == kNames) throw;
        }
    }
}

// The page's own file if it holds these lines, a copy otherwise.
ShownFile FileToShow(MainWindow& main, DocumentId id, const std::string& path) {
    const win::WaitCursor wait;
    const auto saved = mBinOpen::ReadFileBinary(path);
    const frmChild* page = main.find(id);
    if (!page || page->Tag() != path) throw win::Failure("The page is another by now.");
    // A read-only page is what its file holds.
    if (page->txtPad().isReadOnly() && authoring::HasExtension(path)) return ShownFile(path);
    const std::string bytes = files::FileOf(*page).bytes;
    // The file holds the page as it was loaded, or as it was saved, with its last line ended. Otherwise
    // another program has written it since, and a preview is no reason to overwrite that.
    const bool isSame = !page->txtPad().isChanged() && saved &&
                        (*saved == bytes || document::PageOf(*saved).text == page->txtPad().text());
    if (isSame && authoring::HasExtension(path)) return ShownFile(path);
    return WriteCopy(path, !isSame, isSame ? *saved : bytes);
}

// The program that opens the file; empty when it cannot be started with a file. Programs from the store are
// behind one of these two, which take none.
std::string FindBrowser(const ShownFile& file) {
    const std::string program = win::ProgramFor(file.path(), file.folder());
    const auto name = modPubFuncs::FileNameFromPath(program);
    const bool isFrontEnd = modPubFuncs::SamePath(std::string(name), "LaunchWinApp.exe") ||
                            modPubFuncs::SamePath(std::string(name), "OpenWith.exe");
    return !isFrontEnd && modPubFuncs::FileExists(program) ? program : std::string();
}

bool Start(HWND owner, const std::string& browser, const ShownFile& file) {
    const HWND explorer = ::FindWindowW(L"IEFrame", nullptr);
    if (explorer && browser.find("iexplore.exe") != std::string::npos) {
        win::OpenFile(explorer, file.path());
        ::SetForegroundWindow(explorer);
        return true;
    }
    // A browser would take a path with a blank in it for two.
    const bool blank = file.path().find(' ') != std::string::npos;
    return win::OpenFile(owner, browser, blank ? '"' + file.path() + '"' : file.path(), file.folder());
}

}  // namespace

void Preview(MainWindow& main) {
    const frmChild* page = main.activeDocument();
    if (!page) return;
    if (page->Tag().empty()) throw win::Failure("The page has no folder.");
    ShownFile file = FileToShow(main, page->id(), page->Tag());
    const std::string browser = FindBrowser(file);
    const bool started = (!browser.empty() && Start(main.mainHwnd(), browser, file)) ||
                         win::OpenFile(main.mainHwnd(), file.path(), "", file.folder());
    // Starting a program can handle messages.
    const HWND owner = main.mainHwnd();
    if (!owner) return;
    if (started) {
        PreviewWait::forLoading(owner, std::move(file));
    } else if (browser.empty()) {
        PreviewWait::forBrowser(owner, std::move(file));
    } else {
        file.remove();
        TellNotOpened(owner);
    }
}

void OnPreview(MainWindow& main, int) {
    try {
        Preview(main);
    } catch (const std::exception&) {
        win::ShowMessage(
            main.mainHwnd(),
            "Browser initialization failed.\r\nIf problem persists, please contact Quillon Support.",
            "Quillon", MB_ICONEXCLAMATION);
    }
}

}  // namespace modPreview
