#include "authoring/images/image_drop.h"

#include <utility>

#include "authoring/images/clsImageInfo.h"
#include "authoring/images/core/image_info.h"
#include "document/frmChild.h"
#include "files/core/path.h"
#include "win/clipboard.h"
#include "win/error.h"
#include "win/message_box.h"
#include "win/unicode.h"
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

// What was read from one file, for the page and the status strip.
struct Findings {
    ImageType type = ImageType::undetermined;
    std::string tag;
    std::string status;
    bool failed = false;  // it cannot be read, and is of unknown type as well
};

Findings LookAt(const std::string& path) {
    Findings found;
    try {
        clsImageInfo image;
        image.setFilename(path);
        const auto type = static_cast<ImageType>(image.FileType());
        const float height = image.Height();
        const float width = image.Width();
        const std::string_view name = modPubFuncs::FileNameFromPath(path);
        found.status = ImageStatus(name, FileBytes(path));
        found.tag = ImageTag(name, width, height);
        found.type = type;
    } catch (const win::Error&) {
        found.failed = true;
    }
    return found;
}

void InsertThroughClipboard(MainWindow& main, frmChild& page, const std::string& tag) {
    std::u16string text;
    try {
        win::SetClipboardText(main.mainHwnd(), win::Utf16FromUtf8(tag));
        text = win::ClipboardText(main.mainHwnd());
    } catch (const win::Error&) {
        ShowFailure(main);
        return;
    }
    page.insert(text);
}

void FocusPage(MainWindow& main, DocumentId id) {
    if (const frmChild* page = main.find(id)) page->focusPage();
}

void MakeImageTag(MainWindow& main, DocumentId id, const Findings& found) {
    if (found.failed) ShowFailure(main);
    if (found.type == ImageType::bitmap) {
        win::ShowMessage(main.mainHwnd(), "File read as a BitMap. Try a GIF or a JPEG.", kNoteTitle);
    } else if (found.type != ImageType::gif && found.type != ImageType::jpeg) {
        win::ShowMessage(main.mainHwnd(), "Unknown or unrecognized file type...", kNoteTitle);
    } else if (frmChild* page = main.find(id)) {
        InsertThroughClipboard(main, *page, found.tag);
        main.showResult(found.status);
    }
    FocusPage(main, id);
}

void FinishDrop(MainWindow& main, DocumentId id, const std::vector<Findings>& files) {
    const frmChild* page = main.find(id);
    if (!page) return;
    // The user works in this program now, not in the one that was dragged from.
    ::SetForegroundWindow(main.mainHwnd());
    ::SendMessageW(main.mdiClient(), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(page->hwnd()), 0);
    FocusPage(main, id);
    if (files.empty()) win::ShowMessage(main.mainHwnd(), "Unknown Object", "Quillon");
    for (const Findings& file : files) MakeImageTag(main, id, file);
}

}  // namespace

std::function<void()> ReadDrop(MainWindow& main, DocumentId page, const std::vector<std::string>& paths) {
    std::vector<Findings> files;
    for (const std::string& path : paths) files.push_back(LookAt(path));
    return [&main, page, files = std::move(files)] { FinishDrop(main, page, files); };
}

}  // namespace authoring
