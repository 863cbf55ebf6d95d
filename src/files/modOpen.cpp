#include "files/modOpen.h"

#include <shlobj.h>

#include <algorithm>
#include <exception>
#include <optional>

#include "document/frmChild.h"
#include "files/atomic_file.h"
#include "files/basMRU.h"
#include "files/file_dialog.h"
#include "files/modPubFuncs.h"
#include "files/open_file.h"
#include "files/page_bytes.h"
#include "settings/CRegSettings.h"
#include "win/message_box.h"
#include "win/message_loop.h"
#include "win/unicode.h"

namespace modOpen {
namespace {

constexpr wchar_t kPageFilters[] =
    L"HTML Files\0*.htm;*.html;*.shtml\0"
    L"Text Files\0*.txt\0"
    L"ASP Files\0*.asp\0"
    L"All Files\0*.*\0";
constexpr wchar_t kDownloadFilters[] =
    L"HTML Files\0*.htm;*.html;*.shtml\0"
    L"All Files\0*.*\0";

std::string DocumentsFolder() {
    wchar_t folder[MAX_PATH] = L"";
    return ::SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, folder) == S_OK
               ? win::ToUtf8(folder)
               : "C:\\";
}

constexpr DWORD kOpenFlags = OFN_LONGNAMES | OFN_EXPLORER | OFN_CREATEPROMPT | OFN_HIDEREADONLY;
constexpr DWORD kSaveFlags = OFN_LONGNAMES | OFN_EXPLORER | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT;

DWORD FilterIndex(const char* setting) {
    const std::string type = CRegSettings().GetRegSetting("Files", setting);
    if (type == ".htm") return 1;
    if (type == ".txt") return 2;
    if (type == ".asp") return 3;
    return type.empty() ? 4 : 0;
}

const wchar_t* DefaultExtension(DWORD filterIndex) {
    switch (filterIndex) {
        case 1:
            return L"htm";
        case 2:
            return L"txt";
        case 3:
            return L"asp";
        default:
            return nullptr;
    }
}

// The folder of the page's file; for a page without one that of the latest file, or the one where the user
// keeps documents.
std::string InitialFolder(const MainWindow& main, const frmChild* page) {
    std::string path = page ? page->Tag() : std::string();
    if (path.find('\\') == std::string::npos) path = main.menu().caption(mnuFileMRU + 1);
    const std::size_t end = path.rfind('\\');
    return end == std::string::npos ? DocumentsFolder() : path.substr(0, end + 1);
}

int Warn(MainWindow& main, std::string_view text) {
    return win::ShowMessage(main.mainHwnd(), text, "Quillon", MB_ICONEXCLAMATION);
}

void Open(MainWindow& main) {
    files::FileDialog dialog;
    dialog.owner = main.mainHwnd();
    dialog.title = "Open File...";
    dialog.filters = kPageFilters;
    dialog.filterIndex = FilterIndex("default_Open");
    dialog.folder = InitialFolder(main, main.activeDocument());
    dialog.flags = kOpenFlags;
    const std::string path = files::AskOpenPath(dialog).value_or("");
    if (path.empty()) return;
    if (!modPubFuncs::FileExists(path)) {
        Warn(main, "That file has been moved or deleted.");
    } else if (modPubFuncs::IsFileOpen(main, path)) {
        Warn(main, "That file is already open.");
    } else if (files::OpenFile(main, path)) {
        basMRU::AddRecentFile(main, path);
    } else if (main.mainHwnd()) {
        win::ShowMessage(main.mainHwnd(), "Error While Processing the File.", "Quillon Note:");
    }
}

// The document, when it has been saved and is still there.
frmChild* SaveOrWarn(MainWindow& main, DocumentId id, const std::string& path) {
    bool saved = false;
    try {
        saved = SaveDocument(main, id, path);
    } catch (const std::exception&) {
        // Reported below, like any write that fails.
    }
    frmChild* page = main.find(id);
    if (!page || saved) return page;
    Warn(main, "Could not write to the specified file at this time.");
    return nullptr;
}

void WriteAs(MainWindow& main, DocumentId id, const std::string& path) {
    frmChild* page = SaveOrWarn(main, id, path);
    if (!page) return;
    page->setCaption(std::string(modPubFuncs::FileNameFromPath(path)));
    main.showResult("Saved :  " + path);
    basMRU::AddRecentFile(main, path);
}

bool IsOpenElsewhere(MainWindow& main, DocumentId id, const std::string& path) {
    const auto& documents = main.documents();
    return std::any_of(documents.begin(), documents.end(), [&](const frmChild* document) {
        return document->id() != id && modPubFuncs::SamePath(document->Tag(), path);
    });
}

void AskAndSaveAs(MainWindow& main, DocumentId id) {
    files::FileDialog dialog;
    dialog.owner = main.mainHwnd();
    dialog.title = "Save File As...";
    dialog.filters = kPageFilters;
    dialog.filterIndex = FilterIndex("default_Save");
    dialog.extension = DefaultExtension(dialog.filterIndex);
    dialog.proposedName = main.find(id)->Caption();
    dialog.folder = InitialFolder(main, main.find(id));
    dialog.flags = kSaveFlags;
    const std::optional<std::string> path = files::AskSavePath(dialog);
    frmChild* page = main.find(id);
    if (!page || !path) return;
    if (path->empty()) {
        Warn(main, "You must enter a filename for a valid file to save.");
    } else if (IsOpenElsewhere(main, id, *path)) {
        Warn(main, "That file is already open.");
    } else {
        page->setTag(*path);
        WriteAs(main, id, *path);
    }
}

void SaveTo(MainWindow& main, frmChild& document, const std::string& path) {
    const DocumentId id = document.id();
    const document::Selection caret = document.txtPad().selection();
    frmChild* page = SaveOrWarn(main, id, path);
    if (!page) return;
    main.showResult("Saved :  " + path);
    page->focusPage();
    page->txtPad().select(caret.start, caret.start);
    basMRU::AddRecentFile(main, path);
}

}  // namespace

void OpenOrSaveAs(MainWindow& main, bool isOpen) {
    if (isOpen) {
        Open(main);
    } else if (frmChild* page = main.activeDocument()) {
        SaveAs(main, *page);
    }
}

void SaveAs(MainWindow& main, frmChild& document) {
    try {
        AskAndSaveAs(main, document.id());
    } catch (const std::exception&) {
        Warn(main, "Error Processing the File.");
    }
}

void SaveActive(MainWindow& main) {
    frmChild* page = main.activeDocument();
    if (!page) return;
    const std::string path = page->Tag();
    if (!modPubFuncs::FileExists(path)) {
        SaveAs(main, *page);
    } else if (!modPubFuncs::FileExists(path)) {
        Warn(main, "File appears to have been moved or deleted.");
    } else {
        SaveTo(main, *page, path);
    }
}

bool SaveDocument(MainWindow& main, DocumentId document, const std::string& path) {
    win::RunPending();
    frmChild* page = main.find(document);
    if (!page) return false;
    if (page->txtPad().isReadOnly()) return false;
    // No message is handled from here on: the page still is what was written when it is marked unchanged.
    const win::WaitCursor wait;
    const files::PageFile file = files::FileOf(*page);
    if (!files::ReplaceFileContents(path, file.bytes, [&] { main.keepCopy(*page); })) return false;
    if (file.shown) page->replacePage(*file.shown);
    page->setSaved(file.encoding);
    return true;
}

std::string ChooseSavePath(MainWindow& main, HWND owner, const std::string& proposedName) {
    try {
        files::FileDialog dialog;
        dialog.owner = owner;
        dialog.title = "Save File As...";
        dialog.filters = kDownloadFilters;
        dialog.filterIndex = 2;
        dialog.proposedName = proposedName + std::string(1024, ' ');
        dialog.folder = "C:";
        dialog.flags = kSaveFlags;
        return files::AskSavePath(dialog).value_or("");
    } catch (const std::exception&) {
        win::ShowMessage(main.mainHwnd(), "Error processing save.", "SAVE ERROR");
        return {};
    }
}

void OnFileOpen(MainWindow& main, int) {
    try {
        OpenOrSaveAs(main, true);
    } catch (const document::PageTooLarge& error) {
        win::ShowMessage(main.mainHwnd(), error.what(), "Quillon Note:", MB_ICONEXCLAMATION);
    } catch (const std::exception&) {
        win::ShowMessage(main.mainHwnd(), "Error While Processing the File.", "Quillon Note:");
    }
}

void OnFileSave(MainWindow& main, int) {
    try {
        SaveActive(main);
    } catch (const std::exception&) {
        Warn(main, "Could not write to the specified file at this time.");
    }
}

void OnFileSaveAs(MainWindow& main, int) {
    OpenOrSaveAs(main, false);
}

}  // namespace modOpen
