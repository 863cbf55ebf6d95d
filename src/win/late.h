// Functions of DLLs that most runs of the program never need.
#pragma once

#include "win/error.h"
#include "win/windows.h"

namespace win {

// Calls a function of a DLL that is loaded by the first call and then stays. An import of the program's would
// load it at every start, which those few calls are not worth. Throws win::Error where the system has no such
// function.
template <typename Function>
class Late {
 public:
    constexpr Late(const char* dll, const char* name) : dll_(dll), name_(name) {}

    template <typename... Arguments>
    auto operator()(Arguments... arguments) const {
        const FARPROC found = Check(::GetProcAddress(Check(::LoadLibraryA(dll_)), name_));
        return reinterpret_cast<Function>(reinterpret_cast<void*>(found))(arguments...);
    }

 private:
    const char* dll_;
    const char* name_;
};

}  // namespace win
