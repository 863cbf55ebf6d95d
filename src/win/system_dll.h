// The system's DLLs, loaded from its own folder.
#pragma once

#include <string>

#include "win/windows.h"

namespace win {

// From now on the program's own folder and the current one are not searched for a DLL, as far as the system
// lets that be said: in a folder of downloads one could be anybody's.
void SearchSystemDllsOnly();

// Without a backslash at its end.
std::wstring SystemFolder();

// Loads a DLL of the system's, which then stays, and never one of that name beside the program. Throws
// win::Error.
HMODULE LoadSystemDll(const char* dll);

// Loads the DLL too. Throws win::Error where the system has no such function.
void* SystemFunction(const char* dll, const char* name);

// A delay-loaded function: the first call loads the DLL, which then stays. For DLLs that are not among those
// which Windows always takes from its own folder ("KnownDLLs"): as an import, one beside the program would
// be loaded. Throws win::Error where the system has no such function.
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
