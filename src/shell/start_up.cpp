#include "shell/start_up.h"

#include <exception>

#include "authoring/mTemplateLoad.h"
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
#include "win/wide_path.h"

namespace shell {
namespace {

constexpr int kLeft = 180;  // twips
constexpr int kTop = 160;

// The recent files, and what there is to say about the start document.
void FinishStart(MainWindow& main, const std::string& path, bool opened) {
    const bool firstRun = settings::Get("File Count", "Count").empty();
    if (firstRun && opened && !path.empty()) {
        settings::Save("File Count", "Count", "0");
    } else {
        basMRU::LoadRecentFiles(main);
    }
    if (path.empty()) return;
    if (opened) {
        basMRU::AddRecentFile(main, path);
    } else {
        win::ShowMessage(main.mainHwnd(), "Unable to open File", "Quillon Note:");
    }
}

// Made absolute, because the current folder moves with every file dialog. Empty when there is no such file.
std::string StartFile(const std::string& file) {
    return modPubFuncs::FileExists(file) ? win::FullPath(file) : std::string();
}

// False when the file cannot be read.
bool OpenStartDocument(MainWindow& main, const std::string& path) {
    if (!path.empty()) return files::OpenFile(main, path) != nullptr;
    OnFileNew(main, 0);
    return true;
}

}  // namespace

std::string CommandLineFile() {
    return TextAfterProgramName(::GetCommandLineA());
}

void Load(MainWindow& main, const std::string& file) {
    modWndPos::MoveTo(main.mainHwnd(), kLeft, kTop);
    ftp::LoadSiteMenu(main);
    mTemplateLoad::RebuildTemplateMenu(main);
    try {
        // The window comes up with its page in it, so that all is painted once.
        const std::string path = StartFile(file);
        const bool opened = OpenStartDocument(main, path);
        ::ShowWindow(main.mainHwnd(), SW_SHOWDEFAULT);
        FinishStart(main, path, opened);
    } catch (const std::exception&) {
        ::ShowWindow(main.mainHwnd(), SW_SHOWDEFAULT);
        win::ShowMessage(main.mainHwnd(),
                         "There was a loading error, likely due to an incompatible filetype.\r\n\r\n"
                         "                       Quillon will open without it.",
                         "WARNING");
        main.enableNew(main.activeDocument() != nullptr);
        basMRU::LoadRecentFiles(main);
    }
}

}  // namespace shell
