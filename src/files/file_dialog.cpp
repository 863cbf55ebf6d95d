#include "files/file_dialog.h"

#include <cderr.h>

#include <array>

#include "win/late.h"

namespace files {
namespace {

using Show = BOOL(WINAPI*)(OPENFILENAMEA*);

constexpr char kDll[] = "comdlg32.dll";
constexpr win::Late<Show> kGetOpenFileName{kDll, "GetOpenFileNameA"};
constexpr win::Late<Show> kGetSaveFileName{kDll, "GetSaveFileNameA"};
constexpr win::Late<decltype(&::CommDlgExtendedError)> kCommDlgExtendedError{kDll, "CommDlgExtendedError"};

std::string Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string Ask(const FileDialog& dialog, const win::Late<Show>& show) {
    std::array<char, 1024> path{};
    std::array<char, 512> title{};
    dialog.proposedName.copy(path.data(), path.size() - 1);
    OPENFILENAMEA record{};
    record.lStructSize = sizeof record;
    record.hwndOwner = dialog.owner;
    record.lpstrFilter = dialog.filters;
    record.nFilterIndex = dialog.filterIndex;
    record.lpstrFile = path.data();
    record.nMaxFile = static_cast<DWORD>(path.size());
    record.lpstrFileTitle = title.data();
    record.nMaxFileTitle = static_cast<DWORD>(title.size());
    record.lpstrInitialDir = dialog.folder.c_str();
    record.lpstrTitle = dialog.title;
    record.lpstrDefExt = dialog.extension;
    record.Flags = dialog.flags;
    if (show(&record)) return Trimmed(path.data());
    // A page may be titled with what is no file name. The system then shows no dialog at all.
    if (kCommDlgExtendedError() != FNERR_INVALIDFILENAME) return {};
    path[0] = '\0';
    return show(&record) ? Trimmed(path.data()) : std::string();
}

}  // namespace

std::string AskOpenPath(const FileDialog& dialog) {
    return Ask(dialog, kGetOpenFileName);
}

std::string AskSavePath(const FileDialog& dialog) {
    return Ask(dialog, kGetSaveFileName);
}

}  // namespace files
