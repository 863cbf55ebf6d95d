// What every test on Windows starts from: an empty folder, and ways to leave nothing behind.
#pragma once

#include <map>
#include <string>

#include <gtest/gtest.h>

#include <windows.h>

// Empty when there is none.
std::string Environment(const char* name);

// Deletes a folder with all that is in it.
void DeleteTree(const std::string& folder);

// The paths of files, each with its size and time.
std::map<std::string, std::string> Listing(const std::string& pattern);

class FilesTest : public ::testing::Test {
 public:
    // A path in a folder of this test's own, which is empty at the start.
    static std::string scratch(const std::string& name);
    static void writeFile(const std::string& path, const std::string& bytes);
    // Writes an image of 120 by 60 pixels and gives its path.
    static std::string writeGif(const std::string& name, const std::string& more = "");
    // The tag that dropping such an image makes.
    static std::string gifTag(const std::string& name) {
        return "<img src=\"images/" + name + "\" width=\"120\" height=\"60\" border=\"0\">";
    }
    static std::string readFile(const std::string& path);  // "(no file)" when there is none
    // The name of a file there that matches the pattern; empty when there is none.
    static std::string found(const std::string& pattern);

 protected:
    FilesTest();
    ~FilesTest() override;
    void SetUp() override;
};
