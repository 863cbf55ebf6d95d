#include "files/basMRU.h"

#include <algorithm>
#include <exception>
#include <vector>

#include "document/frmChild.h"
#include "files/core/recent_files.h"
#include "files/modPubFuncs.h"
#include "files/open_file.h"
#include "settings/app_settings.h"
#include "win/message_box.h"
#include "win/unicode.h"

namespace basMRU {
namespace {

using files::kRecentFiles;

constexpr char kCountSection[] = "File Count";
constexpr char kFilesSection[] = "Recent Files";

Command MenuItem(std::size_t number) {
    return static_cast<Command>(mnuFileMRU + number);
}

std::vector<std::string> StoredFiles() {
    return files::StoredFiles(settings::Get(kCountSection, "Count"), settings::GetAll(kFilesSection));
}

// A drive that is empty, gone or asleep may take half a minute to say so: only files on the machine's own
// disks are looked for before the user opens them.
bool MayExist(const std::string& path) {
    const std::wstring drive = win::ToWide(path.substr(0, 3));
    const bool isOwn = drive.size() == 3 && drive[1] == L':' && ::GetDriveTypeW(drive.c_str()) == DRIVE_FIXED;
    return !isOwn || modPubFuncs::FileExists(path);
}

void ShowInMenu(MainWindow& main, const std::vector<std::string>& paths) {
    for (std::size_t number = 1; number <= kRecentFiles; ++number) {
        if (number <= paths.size()) {
            main.menu().show(MenuItem(number), paths[number - 1]);
        } else {
            main.menu().hide(MenuItem(number));
        }
    }
}

std::vector<settings::Row> RowsOf(const std::vector<std::string>& paths) {
    std::vector<settings::Row> rows;
    for (const std::string& path : paths) rows.push_back({std::to_string(rows.size() + 1), path});
    return rows;
}

bool StoreRow(const settings::Row& row) {
    return settings::Save(kFilesSection, row.key, row.value);
}

bool StoreCount(const std::vector<std::string>& paths) {
    return settings::Save(kCountSection, "Count", std::to_string(paths.size()));
}

// From the last row up, because a new first path moves all others down: a row is overwritten only once the
// next row has its path, so a store that fails in between has lost nothing.
void StoreWithNewest(const std::vector<std::string>& paths) {
    const std::vector<settings::Row> rows = RowsOf(paths);
    if (std::all_of(rows.rbegin(), rows.rend(), StoreRow)) StoreCount(paths);
}

// From the first row down, because the paths that are left move up.
void StorePruned(const std::vector<std::string>& paths) {
    const std::vector<settings::Row> rows = RowsOf(paths);
    if (!std::all_of(rows.begin(), rows.end(), StoreRow) || !StoreCount(paths)) return;
    for (const settings::Row& row : settings::GetAll(kFilesSection)) {
        if (std::find(rows.begin(), rows.end(), row) == rows.end())
            settings::DeleteKey(kFilesSection, row.key);
    }
}

std::vector<std::string> Existing(std::vector<std::string> paths) {
    std::erase_if(paths, [](const std::string& path) { return !MayExist(path); });
    return paths;
}

void OpenRecent(MainWindow& main, const std::string& path) {
    const auto warn = [&main](const char* text) {
        win::ShowMessage(main.mainHwnd(), text, "Quillon", MB_ICONEXCLAMATION);
    };
    if (!modPubFuncs::FileExists(path)) {
        warn("File appears to have been moved or deleted.");
    } else if (modPubFuncs::IsFileOpen(main, path)) {
        warn("That file is already open.");
    } else if (files::OpenFile(main, path)) {
        AddRecentFile(main, path);
    } else if (main.mainHwnd()) {
        win::ShowMessage(main.mainHwnd(), "Unable to open File", "Quillon Note:");
    }
}

}  // namespace

void LoadRecentFiles(MainWindow& main) {
    if (settings::Get(kCountSection, "Count").empty()) {
        settings::Save(kCountSection, "Count", "0");
        win::ShowMessage(main.mainHwnd(),
                         "Start working, fast! \r\n"
                         "The help menu includes toolbar and feature descriptions,\r\n"
                         "and Online Help is linked through the menu.\r\n\r\n"
                         "           ... ENJOY!",
                         "WELCOME TO THE QUILLON!");
        return;
    }
    const std::vector<std::string> stored = StoredFiles();
    for (std::size_t number = 1; number <= kRecentFiles; ++number) {
        if (number <= stored.size() && MayExist(stored[number - 1])) {
            main.menu().show(MenuItem(number), stored[number - 1]);
        } else {
            main.menu().hide(MenuItem(number));
        }
    }
}

void AddRecentFile(MainWindow& main, const std::string& path) {
    if (modPubFuncs::IsBelow(path, main.temporaryFolder())) return;
    PruneRecentFiles(main);
    const auto paths = files::WithNewest(StoredFiles(), path, modPubFuncs::SamePath);
    StoreWithNewest(paths);
    ShowInMenu(main, paths);
}

void PruneRecentFiles(MainWindow& main) {
    const auto paths = Existing(StoredFiles());
    if (settings::GetAll(kFilesSection) == RowsOf(paths)) return;
    StorePruned(paths);
    ShowInMenu(main, paths);
}

void OnFileMRU(MainWindow& main, int index) {
    try {
        OpenRecent(main, main.menu().caption(static_cast<Command>(mnuFileMRU + index)));
    } catch (const document::PageTooLarge& error) {
        win::ShowMessage(main.mainHwnd(), error.what(), "Quillon Note:", MB_ICONEXCLAMATION);
    } catch (const std::exception&) {
        win::ShowMessage(main.mainHwnd(), "Error with MRU List", "Quillon");
    }
}

}  // namespace basMRU
