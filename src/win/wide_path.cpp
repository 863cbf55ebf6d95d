#include "win/wide_path.h"

#include "win/unicode.h"
#include "win/windows.h"

namespace win {
namespace {

// Room for the short name that a folder needs beside its own path.
constexpr std::size_t kOrdinaryLimit = MAX_PATH - 12;

std::wstring FullWidePath(const std::wstring& path) {
    const DWORD needed = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
    std::wstring full(needed, L'\0');
    const DWORD length = ::GetFullPathNameW(path.c_str(), needed, full.data(), nullptr);
    full.resize(length < needed ? length : 0);
    return full.empty() ? path : full;
}

}  // namespace

std::wstring WidePath(const std::string& path) {
    if (path.empty()) return {};
    std::wstring full = FullWidePath(ToWide(path));
    if (full.size() < kOrdinaryLimit || full.rfind(L"\\\\?\\", 0) == 0) return full;
    if (full.rfind(L"\\\\", 0) == 0) return L"\\\\?\\UNC\\" + full.substr(2);
    return L"\\\\?\\" + full;
}

std::string FullPath(const std::string& path) {
    return path.empty() ? path : ToUtf8(FullWidePath(ToWide(path)));
}

}  // namespace win
