#include "files/basMRU.h"

#include <array>
#include <cstdlib>
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

// A drive that is empty, gone or asleep may take half a minute to say so: files elsewhere than on the
// machine's own disks are not asked for until somebody wants them.
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

// The number that a path has in the store, or 0.
std::size_t OldNumber(const std::vector<settings::Row>& old, const std::string& path) {
    for (const settings::Row& row : old) {
        if (row.value == path) return static_cast<std::size_t>(std::atoi(row.key.c_str()));
    }
    return 0;
}

bool StoreCount(std::size_t count) {
    return settings::Save(kCountSection, "Count", std::to_string(count));
}

// Up goes from the top on and down from the bottom on, so that a row is written over only once its path
// stands elsewhere, and surplus rows go last: a store that refuses in between has forgotten nothing.
bool StoreRows(const std::vector<settings::Row>& old, const std::vector<std::string>& paths) {
    std::array<bool, kRecentFiles> goesUp{};
    std::size_t before = 0;
    for (std::size_t i = paths.size(); i-- > 0;) {
        const std::size_t number = OldNumber(old, paths[i]);
        // A file that is opened again passes those above it, and is written last.
        goesUp[i] = number > i && (i > 0 || number < before || before == 0);
        before = number;
    }
    const auto save = [&](std::size_t i, bool up) {
        return goesUp[i] != up || settings::Save(kFilesSection, std::to_string(i + 1), paths[i]);
    };
    bool done = true;
    for (std::size_t i = 0; i < paths.size(); ++i) done = done && save(i, true);
    for (std::size_t i = paths.size(); i-- > 0;) done = done && save(i, false);
    return done;
}

void Store(const std::vector<std::string>& paths) {
    const std::vector<settings::Row> old = settings::GetAll(kFilesSection);
    const std::size_t stored = StoredFiles().size();
    if (paths.size() > stored && !StoreCount(paths.size())) return;
    if (!StoreRows(old, paths) || !StoreCount(paths.size())) return;
    for (const settings::Row& row : old) {
        const auto number = static_cast<std::size_t>(std::atoi(row.key.c_str()));
        const bool kept = number - 1 < paths.size() && row.key == std::to_string(number);
        if (!kept) settings::DeleteKey(kFilesSection, row.key);
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
    const auto paths = files::WithNewest(Existing(StoredFiles()), path, modPubFuncs::SamePath);
    Store(paths);
    ShowInMenu(main, paths);
}

void PruneRecentFiles(MainWindow& main) {
    const auto paths = Existing(StoredFiles());
    Store(paths);
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
