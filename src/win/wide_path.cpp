#include "win/wide_path.h"

#include "win/windows.h"

namespace win {
namespace {

// Room for the short name that a folder needs beside its own path.
constexpr std::size_t kOrdinaryLimit = MAX_PATH - 12;

std::wstring ToWide(const std::string& text) {
    const int size = static_cast<int>(text.size());
    const int length = ::MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(length), L'\0');
    ::MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), length);
    return wide;
}

std::string ToAnsi(const std::wstring& wide) {
    const int size = static_cast<int>(wide.size());
    const int length = ::WideCharToMultiByte(CP_ACP, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(CP_ACP, 0, wide.data(), size, text.data(), length, nullptr, nullptr);
    return text;
}

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
    return path.empty() ? path : ToAnsi(FullWidePath(ToWide(path)));
}

}  // namespace win
