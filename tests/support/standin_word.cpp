#include "support/standin_word.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace {

void Run(const std::string& arguments) {
    char self[MAX_PATH];
    ::GetModuleFileNameA(nullptr, self, sizeof self);
    const std::string folder(self, std::string(self).rfind('\\') + 1);
    std::string line = "\"" + folder + "tools\\standin_word.exe\" " + arguments;
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION info{};
    ASSERT_TRUE(
        ::CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &info))
        << line;
    EXPECT_EQ(::WaitForSingleObject(info.hProcess, 10000), WAIT_OBJECT_0) << line;
    ::CloseHandle(info.hThread);
    ::CloseHandle(info.hProcess);
}

}  // namespace

StandinWord::StandinWord(const std::string& log, const std::string& orders) {
    Run("/register \"" + log + "\" " + orders);
}

StandinWord::~StandinWord() {
    Run("/unregister");
}
