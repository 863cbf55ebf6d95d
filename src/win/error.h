// Exceptions.
#pragma once

#include <exception>
#include <string>
#include <utility>

#include "win/windows.h"

namespace win {

// A failure of the program's own.
class Failure : public std::exception {
 public:
    explicit Failure(std::string what) : what_(std::move(what)) {}
    const char* what() const noexcept override { return what_.c_str(); }

 private:
    std::string what_;
};

// A failed system call. what() is the system's own text for the code, without its line break.
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
