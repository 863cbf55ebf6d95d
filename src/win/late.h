// Functions of DLLs that most runs of the program never need.
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

// The function itself.
void* LateFunction(const char* dll, const char* name);

// Calls a function of a DLL that is loaded by the first call and then stays. An import of the program's would
// load it at every start, which those few calls are not worth. Throws win::Error where the system has no such
// function.
template <typename Function>
class Late {
 public:
    constexpr Late(const char* dll, const char* name) : dll_(dll), name_(name) {}

    template <typename... Arguments>
    auto operator()(Arguments... arguments) const {
        return reinterpret_cast<Function>(LateFunction(dll_, name_))(arguments...);
    }

 private:
    const char* dll_;
    const char* name_;
};

}  // namespace win
