#include "authoring/modPreview.h"

#include <exception>
#include <string>

#include "authoring/core/preview_path.h"
#include "authoring/preview_wait.h"
#include "document/frmChild.h"
#include "files/mBinOpen.h"
#include "files/modPubFuncs.h"
#include "files/page_writer.h"
#include "win/error.h"
#include "win/late_shell.h"
#include "win/message_box.h"
#include "win/message_loop.h"

namespace modPreview {
namespace {

constexpr INT_PTR kLastFailure = 32;  // of what FindExecutable and ShellExecute return

INT_PTR CodeOf(HINSTANCE result) {
    return reinterpret_cast<INT_PTR>(result);
}

// Writes what the browser is to be shown: the page's own file if it holds these lines, a copy otherwise.
authoring::ShownFile WriteFile(MainWindow& main, DocumentId id, const std::string& path) {
    const win::WaitCursor wait;
    const auto saved = mBinOpen::ReadFileBinary(path);
    const frmChild* page = main.find(id);
    if (!page) throw win::Failure("The page was closed.");
    document::RichEdit& pad = page->txtPad();
    // The file holds the page as it was loaded, or as it was saved, with its last line ended. Otherwise
    // another program has written it since, and a preview is no reason to overwrite that.
    const bool isSame = saved == pad.text() || saved == files::PageBytes(pad);
    const bool differs = pad.isChanged() || (saved && !isSame);
    const std::string file = authoring::PreviewFile(path, differs, modPubFuncs::FileExists);
    if (file.empty()) throw win::Failure("The page has no folder.");
    const bool isCopy = file != path;
    if (isCopy || !isSame) {
        authoring::PreviewWait::end(file);
        if (!files::WritePage(pad, file)) throw win::Failure("The file cannot be written.");
    }
    return {file, isCopy};
}

// The program that opens the file; empty when there is none.
std::string FindBrowser(const authoring::ShownFile& file) {
    char program[MAX_PATH] = "";
    const INT_PTR code = CodeOf(win::kFindExecutable(file.path().c_str(), file.folder().c_str(), program));
    return code > kLastFailure ? program : "";
}

bool Start(HWND owner, const std::string& browser, const authoring::ShownFile& file) {
    const HWND explorer = ::FindWindowA("IEFrame", nullptr);
    if (explorer && authoring::IsInternetExplorer(browser)) {
        win::kShellExecute(explorer, "Open", file.path().c_str(), "", "", SW_SHOWNORMAL);
        ::SetForegroundWindow(explorer);
        return true;
    }
    // A browser would take a path with a blank in it for two.
    const bool blank = file.path().find(' ') != std::string::npos;
    const std::string argument = blank ? '"' + file.path() + '"' : file.path();
    return CodeOf(win::kShellExecute(owner, "open", browser.c_str(), argument.c_str(), file.folder().c_str(),
                                     SW_SHOWNORMAL)) > kLastFailure;
}

}  // namespace

void Preview(MainWindow& main) {
    const frmChild* page = main.activeDocument();
    if (!page) return;
    authoring::ShownFile file = WriteFile(main, page->id(), page->Tag());
    const std::string browser = FindBrowser(file);
    const bool started = !browser.empty() && Start(main.mainHwnd(), browser, file);
    // Starting a program can let messages through.
    const HWND owner = main.mainHwnd();
    if (!owner) return;
    if (browser.empty()) {
        authoring::PreviewWait::forBrowser(owner, std::move(file));
    } else if (started) {
        authoring::PreviewWait::forLoading(owner, std::move(file));
    } else {
        file.remove();
        authoring::TellNotOpened(owner);
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
