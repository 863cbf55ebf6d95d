#include "authoring/image_drop.h"

#include "authoring/clsImageInfo.h"
#include "authoring/core/image_info.h"
#include "document/frmChild.h"
#include "files/core/path.h"
#include "win/clipboard.h"
#include "win/error.h"
#include "win/message_box.h"
#include "win/unique.h"
#include "win/wide_path.h"

namespace authoring {
namespace {

constexpr char kNoteTitle[] = "Quillon...OLE Note.";

void ShowFailure(MainWindow& main) {
    win::ShowMessage(main.mainHwnd(), "File Processing Error", "Quillon");
}

std::uint64_t FileBytes(const std::string& path) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    win::Check(::GetFileAttributesExW(win::WidePath(path).c_str(), GetFileExInfoStandard, &data));
    return static_cast<std::uint64_t>(data.nFileSizeHigh) << 32U | data.nFileSizeLow;
}

// What goes into the page and into the status strip for one image.
struct Findings {
    ImageType type = ImageType::undetermined;
    std::string tag;
    std::string status;
};

Findings LookAt(const std::string& path) {
    clsImageInfo image;
    image.setFilename(path);
    Findings found;
    found.type = static_cast<ImageType>(image.FileType());
    const float height = image.Height();
    const float width = image.Width();
    const std::string_view name = modPubFuncs::FileNameFromPath(path);
    found.tag = ImageTag(name, width, height);
    found.status = ImageStatus(name, FileBytes(path));
    return found;
}

// A file that cannot be read is one of unknown type as well.
Findings LookAtOrReport(MainWindow& main, const std::string& path) {
    try {
        return LookAt(path);
    } catch (const win::Error&) {
        ShowFailure(main);
        return {};
    }
}

void InsertThroughClipboard(MainWindow& main, const frmChild& page, const std::string& tag) {
    std::string text;
    try {
        win::SetClipboardText(main.mainHwnd(), tag);
        text = win::ClipboardText(main.mainHwnd());
    } catch (const win::Error&) {
        ShowFailure(main);
        return;
    }
    page.txtPad().replaceSelection(text);
}

void FocusPage(MainWindow& main, DocumentId id) {
    if (const frmChild* page = main.find(id)) page->focusPage();
}

}  // namespace

void MakeImageTag(MainWindow& main, DocumentId id, const std::string& path) {
    const Findings found = LookAtOrReport(main, path);
    if (found.type == ImageType::bitmap) {
        win::ShowMessage(main.mainHwnd(), "File read as a BitMap. Try a GIF or a JPEG.", kNoteTitle);
    } else if (found.type != ImageType::gif && found.type != ImageType::jpeg) {
        win::ShowMessage(main.mainHwnd(), "Unknown or unrecognized file type...", kNoteTitle);
    } else if (const frmChild* page = main.find(id)) {
        InsertThroughClipboard(main, *page, found.tag);
        main.showResult(found.status);
    }
    FocusPage(main, id);
}

void OnDrop(MainWindow& main, DocumentId id, const std::vector<std::string>& paths) {
    const frmChild* page = main.find(id);
    if (!page) return;
    // The user's hand is here now, not in the program that was dragged from.
    ::SetForegroundWindow(main.mainHwnd());
    ::SendMessageA(main.mdiClient(), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(page->hwnd()), 0);
    FocusPage(main, id);
    if (paths.empty()) win::ShowMessage(main.mainHwnd(), "Unknown Object", "Quillon");
    for (const std::string& path : paths) MakeImageTag(main, id, path);
}

}  // namespace authoring
