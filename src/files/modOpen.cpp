#include "files/modOpen.h"

#include <exception>

#include "document/frmChild.h"
#include "files/basMRU.h"
#include "files/file_dialog.h"
#include "files/modPubFuncs.h"
#include "files/open_file.h"
#include "files/page_writer.h"
#include "settings/CRegSettings.h"
#include "win/message_box.h"
#include "win/message_loop.h"

namespace modOpen {
namespace {

constexpr char kPageFilters[] =
    "HTML Files\0*.htm;*.html;*.shtml\0"
    "Text Files\0*.txt\0"
    "ASP Files\0*.asp\0"
    "All Files\0*.*\0";
constexpr char kDownloadFilters[] =
    "HTML Files\0*.htm;*.html;*.shtml\0"
    "All Files\0*.*\0";

constexpr DWORD kOpenFlags = OFN_LONGNAMES | OFN_EXPLORER | OFN_CREATEPROMPT | OFN_HIDEREADONLY;
constexpr DWORD kSaveFlags = OFN_LONGNAMES | OFN_EXPLORER | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT;

DWORD FilterIndex(const char* setting) {
    const std::string type = CRegSettings().GetRegSetting("Files", setting);
    if (type == ".htm") return 1;
    if (type == ".txt") return 2;
    if (type == ".asp") return 3;
    return type.empty() ? 4 : 0;
}

const char* DefaultExtension(DWORD filterIndex) {
    switch (filterIndex) {
        case 1:
            return "htm";
        case 2:
            return "txt";
        case 3:
            return "asp";
        default:
            return nullptr;
    }
}

// Where the active page lies is where its author most likely wants to go on.
std::string InitialFolder(const MainWindow& main) {
    const frmChild* page = main.activeDocument();
    const std::string path = page ? page->Tag() : std::string();
    const std::size_t end = path.rfind('\\');
    return end == std::string::npos ? "C:\\" : path.substr(0, end + 1);
}

int Warn(MainWindow& main, const char* text) {
    return win::ShowMessage(main.mainHwnd(), text, "Quillon", MB_ICONEXCLAMATION);
}

void Open(MainWindow& main) {
    files::FileDialog dialog;
    dialog.owner = main.mainHwnd();
    dialog.title = "Open File...";
    dialog.filters = kPageFilters;
    dialog.filterIndex = FilterIndex("default_Open");
    dialog.folder = InitialFolder(main);
    dialog.flags = kOpenFlags;
    const std::string path = files::AskOpenPath(dialog);
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
    const bool saved = SaveDocument(main, id, path);
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

void AskAndSaveAs(MainWindow& main, DocumentId id) {
    files::FileDialog dialog;
    dialog.owner = main.mainHwnd();
    dialog.title = "Save File As...";
    dialog.filters = kPageFilters;
    dialog.filterIndex = FilterIndex("default_Save");
    dialog.extension = DefaultExtension(dialog.filterIndex);
    dialog.proposedName = main.find(id)->Caption();
    dialog.folder = InitialFolder(main);
    dialog.flags = kSaveFlags;
    const std::string path = files::AskSavePath(dialog);
    frmChild* page = main.find(id);
    if (path.empty() || !page) return;
    page->setTag(path);
    WriteAs(main, id, path);
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
    const win::WaitCursor wait;
    if (!files::WritePage(page->txtPad(), path)) return false;
    page->txtPad().setChanged(false);
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
        return files::AskSavePath(dialog);
    } catch (const std::exception&) {
        win::ShowMessage(main.mainHwnd(), "Error processing save.", "SAVE ERROR");
        return {};
    }
}

void OnFileOpen(MainWindow& main, int) {
    try {
        OpenOrSaveAs(main, true);
    } catch (const std::exception&) {
        win::ShowMessage(main.mainHwnd(), "Error While Processing the File.", "Quillon Note:");
    }
}

void OnFileSave(MainWindow& main, int) {
    SaveActive(main);
}

void OnFileSaveAs(MainWindow& main, int) {
    OpenOrSaveAs(main, false);
}

}  // namespace modOpen
