#include "shell/start_up.h"

#include <exception>

#include "authoring/templates/mTemplateLoad.h"
#include "document/frmChild.h"
#include "files/basMRU.h"
#include "files/modPubFuncs.h"
#include "files/open_file.h"
#include "ftp/site_store.h"
#include "settings/app_settings.h"
#include "shell/core/command_line.h"
#include "shell/shell_commands.h"
#include "win/message_box.h"
#include "win/modWndPos.h"
#include "win/unicode.h"
#include "win/wide_path.h"

namespace shell {
namespace {

constexpr int kLeft = 180;  // twips
constexpr int kTop = 160;

// Opens the start document. Returns why that has failed; an empty text when it is open.
std::string OpenStartDocument(MainWindow& main, const std::string& path) {
    try {
        if (path.empty()) {
            OnFileNew(main, 0);
        } else if (!files::OpenFile(main, path)) {
            return "Unable to open File";
        }
        return {};
    } catch (const document::PageTooLarge& error) {
        return error.what();
    }
}

// Shows the recent files. A first start greets the user, unless a file was named.
void FillRecentFiles(MainWindow& main, const std::string& path, bool opened) {
    const bool isFirst = settings::Get("File Count", "Count").empty();
    if (!isFirst || path.empty()) {
        basMRU::LoadRecentFiles(main);
    } else if (opened) {
        settings::Save("File Count", "Count", "0");
    }
}

void LoadAll(MainWindow& main, const std::string& file) {
    modWndPos::MoveTo(main.mainHwnd(), kLeft, kTop);
    ftp::LoadSiteMenu(main);
    mTemplateLoad::ShowTemplateMenu(main);
    // The window is shown with its page in it, so that all is painted once.
    const std::string path = modPubFuncs::FileExists(file) ? file : std::string();
    const std::string problem = OpenStartDocument(main, path);
    ::ShowWindow(main.mainHwnd(), SW_SHOWDEFAULT);
    FillRecentFiles(main, path, problem.empty());
    if (!problem.empty()) {
        win::ShowMessage(main.mainHwnd(), problem, "Quillon Note:");
    } else if (!path.empty()) {
        basMRU::AddRecentFile(main, path);
    }
}

}  // namespace

std::string CommandLineFile() {
    const std::string text = TextAfterProgramName(win::ToUtf8(::GetCommandLineW()));
    return modPubFuncs::FileExists(text) ? win::FullPath(text) : text;
}

void Load(MainWindow& main, const std::string& file) {
    try {
        LoadAll(main, file);
        return;
    } catch (...) {
        ::ShowWindow(main.mainHwnd(), SW_SHOWDEFAULT);
    }
    win::ShowMessage(main.mainHwnd(),
                     "There was a loading error, likely due to an incompatible filetype.\r\n\r\n"
                     "                       Quillon will open without it.",
                     "WARNING");
    try {
        main.enableNew(main.activeDocument() != nullptr);
        basMRU::LoadRecentFiles(main);
    } catch (const std::exception&) {
        // The user knows already that something is wrong; the program goes on without the list.
    }
}

}  // namespace shell
