#include "win/error.h"

#include <iterator>

#include "win/unicode.h"

namespace win {
namespace {

std::string SystemText(DWORD code) {
    wchar_t text[512];
    DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                                    0, text, static_cast<DWORD>(std::size(text)), nullptr);
    while (length > 0 && (text[length - 1] == L'\r' || text[length - 1] == L'\n')) --length;
    return length > 0 ? ToUtf8({text, length}) : "System error " + std::to_string(code) + ".";
}

}  // namespace

Error::Error(DWORD code) : code_(code), what_(SystemText(code)) {}

void ThrowLastError() {
    throw Error(::GetLastError());
}

}  // namespace win
