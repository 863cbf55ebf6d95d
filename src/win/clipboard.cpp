#include "win/clipboard.h"

#include <algorithm>

#include "win/error.h"

namespace win {
namespace {

class OpenClipboard {
 public:
    explicit OpenClipboard(HWND owner) {
        // Clipboard viewers hold it for moments only, so a short time-out is enough.
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

void SetClipboardText(HWND owner, std::u16string_view text) {
    const HGLOBAL memory = Check(::GlobalAlloc(GMEM_MOVEABLE, (text.size() + 1) * sizeof(char16_t)));
    auto* units = static_cast<char16_t*>(Check(::GlobalLock(memory)));
    std::copy(text.begin(), text.end(), units);
    units[text.size()] = u'\0';
    ::GlobalUnlock(memory);
    try {
        const OpenClipboard open(owner);
        ::EmptyClipboard();
        Check(::SetClipboardData(CF_UNICODETEXT, memory));
    } catch (...) {
        ::GlobalFree(memory);
        throw;
    }
}

std::u16string ClipboardText(HWND owner) {
    const OpenClipboard open(owner);
    const HANDLE memory = ::GetClipboardData(CF_UNICODETEXT);
    if (!memory) return {};
    const auto* units = static_cast<const char16_t*>(::GlobalLock(memory));
    if (!units) return {};
    const char16_t* end = units + ::GlobalSize(memory) / sizeof(char16_t);
    std::u16string text(units, std::find(units, end, u'\0'));
    ::GlobalUnlock(memory);
    return text;
}

bool ClipboardHasText() {
    return ::IsClipboardFormatAvailable(CF_UNICODETEXT) != FALSE;
}

}  // namespace win
