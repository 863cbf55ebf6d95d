#include "files/file_dialog.h"

#include <cderr.h>

#include <array>

#include "win/core/ascii.h"
#include "win/disabled.h"
#include "win/system_dll.h"
#include "win/unicode.h"

namespace files {
namespace {

using Show = BOOL(WINAPI*)(OPENFILENAMEW*);

// The dialog makes the folder of the chosen file the program's current one, which could then be neither
// renamed nor removed, nor its drive ejected.
class SystemFolderAfter {
 public:
    SystemFolderAfter() = default;
    ~SystemFolderAfter() { ::SetCurrentDirectoryW(folder_.c_str()); }
    SystemFolderAfter(const SystemFolderAfter&) = delete;
    SystemFolderAfter& operator=(const SystemFolderAfter&) = delete;

 private:
    std::wstring folder_ = win::SystemFolder();
};

std::optional<std::string> Ask(const FileDialog& dialog, Show show) {
    std::array<wchar_t, 1024> path{};
    std::array<wchar_t, 512> title{};
    win::ToWide(dialog.proposedName).copy(path.data(), path.size() - 1);
    const std::wstring folder = win::ToWide(dialog.folder);
    const std::wstring caption = win::ToWide(dialog.title);
    OPENFILENAMEW record{};
    record.lStructSize = sizeof record;
    record.hwndOwner = dialog.owner;
    record.lpstrFilter = dialog.filters;
    record.nFilterIndex = dialog.filterIndex;
    record.lpstrFile = path.data();
    record.nMaxFile = static_cast<DWORD>(path.size());
    record.lpstrFileTitle = title.data();
    record.nMaxFileTitle = static_cast<DWORD>(title.size());
    record.lpstrInitialDir = folder.c_str();
    record.lpstrTitle = caption.c_str();
    record.lpstrDefExt = dialog.extension;
    record.Flags = dialog.flags;
    const win::Disabled others(dialog.owner);
    const SystemFolderAfter after;
    const auto chosen = [&path] { return std::string(win::Trimmed(win::ToUtf8(path.data()))); };
    if (show(&record)) return chosen();
    // The proposed name comes from a page's caption, which need not be a file name. The system then shows no
    // dialog at all.
    if (::CommDlgExtendedError() != FNERR_INVALIDFILENAME) return std::nullopt;
    path[0] = L'\0';
    return show(&record) ? std::optional(chosen()) : std::nullopt;
}

}  // namespace

std::optional<std::string> AskOpenPath(const FileDialog& dialog) {
    return Ask(dialog, ::GetOpenFileNameW);
}

std::optional<std::string> AskSavePath(const FileDialog& dialog) {
    return Ask(dialog, ::GetSaveFileNameW);
}

}  // namespace files
