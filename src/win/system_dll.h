// The system's DLLs, loaded from its own folder.
#pragma once

#include <string>

#include "win/windows.h"

namespace win {

// From now on DLLs are not searched for in the program's own folder and the current one, as far as the system
// can be told so: in a folder of downloads, anybody may have put one there.
void SearchSystemDllsOnly();

// Without a backslash at its end.
std::wstring SystemFolder();

// Loads a DLL from the system's folder, never one of that name beside the program. It stays loaded. Throws
// win::Error.
HMODULE LoadSystemDll(const char* dll);

// Loads the DLL too. Throws win::Error where the system has no such function.
void* SystemFunction(const char* dll, const char* name);

// A delay-loaded function: the first call loads the DLL, which stays loaded. For DLLs that some Windows does
// not list among those it takes from its own folder alone ("KnownDLLs"): an import would load one that lies
// beside the program. Throws win::Error where the system has no such function.
template <typename Function>
class DelayLoaded {
 public:
    constexpr DelayLoaded(const char* dll, const char* name) : dll_(dll), name_(name) {}

    template <typename... Arguments>
    auto operator()(Arguments... arguments) const {
        return reinterpret_cast<Function>(SystemFunction(dll_, name_))(arguments...);
    }

 private:
    const char* dll_;
    const char* name_;
};

}  // namespace win
