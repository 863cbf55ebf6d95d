#include "win/system_dll.h"

#include "win/error.h"
#include "win/unicode.h"

namespace win {
namespace {

template <typename Function>
Function KernelFunction(const char* name) {
    const HMODULE kernel = ::GetModuleHandleW(L"kernel32.dll");
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(kernel, name)));
}

}  // namespace

void SearchSystemDllsOnly() {
    // XP without its first service pack has neither, Vista not the second.
    if (const auto setFolder = KernelFunction<BOOL(WINAPI*)(LPCWSTR)>("SetDllDirectoryW")) setFolder(L"");
    constexpr DWORD kSystemFolder = 0x800;  // LOAD_LIBRARY_SEARCH_SYSTEM32
    if (const auto setFolders = KernelFunction<BOOL(WINAPI*)(DWORD)>("SetDefaultDllDirectories"))
        setFolders(kSystemFolder);
}

std::wstring SystemFolder() {
    std::wstring path(MAX_PATH, L'\0');
    path.resize(::GetSystemDirectoryW(path.data(), MAX_PATH));
    return path;
}

HMODULE LoadSystemDll(const char* dll) {
    const std::wstring path = SystemFolder() + L'\\' + ToWide(dll);
    return Check(::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH));
}

void* SystemFunction(const char* dll, const char* name) {
    return reinterpret_cast<void*>(Check(::GetProcAddress(LoadSystemDll(dll), name)));
}

}  // namespace win
