// A failed system call as an exception.
#pragma once

#include <stdexcept>
#include <string>

#include "win/windows.h"

namespace win {

// what() is the system's own text for the code, without its line break, in the ANSI code page.
class Error : public std::runtime_error {
 public:
    explicit Error(DWORD code);
    DWORD code() const { return code_; }

 private:
    DWORD code_;
};

[[noreturn]] void ThrowLastError();

// For calls that report failure by a null or false result and leave the reason in GetLastError.
template <typename Result>
Result Check(Result result) {
    if (!result) ThrowLastError();
    return result;
}

}  // namespace win
