#include "shell/start_up.h"

#include <exception>

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

void OpenStartFile(MainWindow& main, const std::string& file) {
    // Made absolute, because the current folder moves with every file dialog.
    const std::string path = win::FullPath(file);
    if (!files::OpenFile(main, path)) {
        if (!main.mainHwnd()) return;
        basMRU::LoadRecentFiles(main);
        win::ShowMessage(main.mainHwnd(), "Unable to open File", "Quillon Note:");
        return;
    }
    if (settings::Get("File Count", "Count").empty()) {
        settings::Save("File Count", "Count", "0");
    } else {
        basMRU::LoadRecentFiles(main);
    }
    basMRU::AddRecentFile(main, path);
}

void OpenStartDocument(MainWindow& main, const std::string& file) {
    if (modPubFuncs::FileExists(file)) {
        OpenStartFile(main, file);
    } else {
        OnFileNew(main, 0);
        basMRU::LoadRecentFiles(main);
    }
}

}  // namespace

std::string CommandLineFile() {
    return TextAfterProgramName(::GetCommandLineA());
}

void Load(MainWindow& main, const std::string& file) {
    modWndPos::MoveTo(main.mainHwnd(), kLeft, kTop);
    ::ShowWindow(main.mainHwnd(), SW_SHOWDEFAULT);
    try {
        ftp::LoadSiteMenu(main);
        OpenStartDocument(main, file);
    } catch (const std::exception&) {
        win::ShowMessage(main.mainHwnd(),
                         "There was a loading error, likely due to an incompatible filetype.\r\n\r\n"
                         "                       Quillon will open without it.",
                         "WARNING");
        main.enableNew(main.activeDocument() != nullptr);
        basMRU::LoadRecentFiles(main);
    }
}

}  // namespace shell
