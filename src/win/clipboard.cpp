#include "win/clipboard.h"

#include <cstring>

#include "win/error.h"

namespace win {
namespace {

class OpenClipboard {
 public:
    explicit OpenClipboard(HWND owner) {
        // Clipboard viewers hold it for moments only, so a short patience is enough.
        for (int attempt = 0; attempt < 20; ++attempt) {
            if (::OpenClipboard(owner)) return;
            ::Sleep(10);
        }
        ThrowLastError();
    }
    ~OpenClipboard() { ::CloseClipboard(); }
    OpenClipboard(const OpenClipboard&) = delete;
    OpenClipboard& operator=(const OpenClipboard&) = delete;
};

}  // namespace

void SetClipboardText(HWND owner, std::string_view text) {
    const HGLOBAL memory = Check(::GlobalAlloc(GMEM_MOVEABLE, text.size() + 1));
    auto* bytes = static_cast<char*>(::GlobalLock(memory));
    std::memcpy(bytes, text.data(), text.size());
    bytes[text.size()] = '\0';
    ::GlobalUnlock(memory);
    try {
        const OpenClipboard open(owner);
        ::EmptyClipboard();
        Check(::SetClipboardData(CF_TEXT, memory));
    } catch (...) {
        ::GlobalFree(memory);
        throw;
    }
}

std::string ClipboardText(HWND owner) {
    const OpenClipboard open(owner);
    const HANDLE memory = ::GetClipboardData(CF_TEXT);
    if (!memory) return {};
    const auto* bytes = static_cast<const char*>(::GlobalLock(memory));
    if (!bytes) return {};
    const std::size_t size = ::GlobalSize(memory);
    const void* end = std::memchr(bytes, '\0', size);
    std::string text(bytes, end ? static_cast<std::size_t>(static_cast<const char*>(end) - bytes) : size);
    ::GlobalUnlock(memory);
    return text;
}

bool ClipboardHasText() {
    return ::IsClipboardFormatAvailable(CF_TEXT) != FALSE;
}

}  // namespace win
