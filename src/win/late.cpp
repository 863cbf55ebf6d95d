#include "win/late.h"

#include <string>

#include "win/error.h"

namespace win {

HMODULE LoadSystemDll(const char* dll) {
    std::string path(MAX_PATH, '\0');
    path.resize(::GetSystemDirectoryA(path.data(), MAX_PATH));
    return Check(::LoadLibraryA((path + '\\' + dll).c_str()));
}

void* LateFunction(const char* dll, const char* name) {
    return reinterpret_cast<void*>(Check(::GetProcAddress(LoadSystemDll(dll), name)));
}

}  // namespace win
