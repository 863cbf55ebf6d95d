#include "win/error.h"

namespace win {
namespace {

std::string SystemText(DWORD code) {
    char text[512];
    DWORD length = ::FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                                    0, text, sizeof text, nullptr);
    while (length > 0 && (text[length - 1] == '\r' || text[length - 1] == '\n')) --length;
    return length > 0 ? std::string(text, length) : "System error " + std::to_string(code) + ".";
}

}  // namespace

Error::Error(DWORD code) : code_(code), what_(SystemText(code)) {}

void ThrowLastError() {
    throw Error(::GetLastError());
}

}  // namespace win
