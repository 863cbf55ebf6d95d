// Exceptions.
#pragma once

#include <exception>
#include <string>

#include "win/windows.h"

namespace win {

// Something of our own that went wrong, told in a fixed text.
class Failure : public std::exception {
 public:
    explicit Failure(const char* what) : what_(what) {}
    const char* what() const noexcept override { return what_; }

 private:
    const char* what_;
};

// A failed system call. what() is the system's own text for the code, without its line break, in the ANSI
// code page.
class Error : public std::exception {
 public:
    explicit Error(DWORD code);
    DWORD code() const { return code_; }
    const char* what() const noexcept override { return what_.c_str(); }

 private:
    DWORD code_;
    std::string what_;
};

[[noreturn]] void ThrowLastError();

// For calls that report failure by a null or false result and leave the reason in GetLastError.
template <typename Result>
Result Check(Result result) {
    if (!result) ThrowLastError();
    return result;
}

}  // namespace win
