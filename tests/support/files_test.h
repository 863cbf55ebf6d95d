// What every test on Windows starts from: an empty folder, and ways to leave nothing behind.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include <windows.h>

// Empty when there is none.
std::string Environment(const char* name);

// Deletes a folder with all that is in it; a key below HKEY_CURRENT_USER likewise.
void DeleteTree(const std::string& folder);
void DeleteKeyTree(const std::string& path);

class FilesTest : public ::testing::Test {
 protected:
    void SetUp() override;
    // A path in a folder of this test's own, which is empty at the start.
    static std::string scratch(const std::string& name);
    static void writeFile(const std::string& path, const std::string& bytes);
    static std::string readFile(const std::string& path);  // "(no file)" when there is none
};
