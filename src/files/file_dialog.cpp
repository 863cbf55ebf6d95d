#include "files/file_dialog.h"

#include <cderr.h>

#include <array>

#include "win/disabled.h"
#include "win/system_dll.h"
#include "win/unicode.h"

namespace files {
namespace {

using Show = BOOL(WINAPI*)(OPENFILENAMEW*);

std::string Trimmed(std::wstring_view text) {
    const std::size_t first = text.find_first_not_of(L' ');
    if (first == std::wstring_view::npos) return {};
    return win::ToUtf8(text.substr(first, text.find_last_not_of(L' ') - first + 1));
}

// The dialog makes the folder of what was chosen the program's current one, which then could not be renamed
// or removed, nor its drive be taken out.
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
    if (show(&record)) return Trimmed(path.data());
    // A page may be titled with what is no file name. The system then shows no dialog at all.
    if (::CommDlgExtendedError() != FNERR_INVALIDFILENAME) return std::nullopt;
    path[0] = L'\0';
    return show(&record) ? std::optional(Trimmed(path.data())) : std::nullopt;
}

}  // namespace

std::optional<std::string> AskOpenPath(const FileDialog& dialog) {
    return Ask(dialog, ::GetOpenFileNameW);
}

std::optional<std::string> AskSavePath(const FileDialog& dialog) {
    return Ask(dialog, ::GetSaveFileNameW);
}

}  // namespace files
