#include "document/system_code_pages.h"

#include <algorithm>

#include "win/unicode.h"
#include "win/windows.h"

namespace document {
namespace {

// Shift states make what a byte means depend on all before it, so that no part of a page could be kept alone.
bool IsStateful(unsigned codePage) {
    return codePage == 52936 || (codePage >= 50000 && codePage < 51000) || codePage == 65000;
}

class WindowsCodePages final : public CodePages {
 public:
    unsigned ansi() const override { return ::GetACP(); }

    bool has(unsigned codePage) const override {
        return !IsStateful(codePage) && ::IsValidCodePage(codePage) != FALSE;
    }

    std::size_t characterLength(unsigned codePage, std::string_view bytes) const override {
        constexpr unsigned kGb18030 = 54936;
        const auto lead = static_cast<BYTE>(bytes.front());
        std::size_t length = ::IsDBCSLeadByteEx(codePage, lead) ? 2 : 1;
        if (codePage == kGb18030 && lead >= 0x81 && lead < 0xFF && bytes.size() > 1) {
            length = bytes[1] >= '0' && bytes[1] <= '9' ? 4 : 2;
        }
        return std::min(length, bytes.size());
    }

    std::u16string toUnicode(unsigned codePage, std::string_view bytes) const override {
        const auto size = static_cast<int>(bytes.size());
        std::u16string text(bytes.size(), u'\0');
        text.resize(static_cast<std::size_t>(::MultiByteToWideChar(codePage, 0, bytes.data(), size,
                                                                   reinterpret_cast<wchar_t*>(text.data()),
                                                                   static_cast<int>(text.size()))));
        return text;
    }

    std::string fromUnicode(unsigned codePage, std::u16string_view text) const override {
        // GB 18030 knows no best fit to be kept from, and refuses the flag.
        const DWORD flags = codePage < 50000 ? WC_NO_BEST_FIT_CHARS : 0;
        std::string bytes(text.size() * 4, '\0');
        bytes.resize(static_cast<std::size_t>(
            ::WideCharToMultiByte(codePage, flags, win::AsWide(text).data(), static_cast<int>(text.size()),
                                  bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr)));
        return bytes;
    }
};

}  // namespace

const CodePages& SystemCodePages() {
    static constexpr WindowsCodePages pages;
    return pages;
}

}  // namespace document
