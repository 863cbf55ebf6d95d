// The base of every test on Windows: an empty folder, and what tests do with files.
#pragma once

#include <map>
#include <string>

#include <gtest/gtest.h>

#include <windows.h>

// The value of an environment variable; empty when there is none.
std::string Environment(const char* name);

// Deletes a folder with all that is in it.
void DeleteTree(const std::string& folder);

// The paths of files, each with its size and time.
std::map<std::string, std::string> Listing(const std::string& pattern);

class FilesTest : public ::testing::Test {
 public:
    // A path in the test's own folder, which is empty at the start.
    static std::string scratch(const std::string& name);
    static void writeFile(const std::string& path, const std::string& bytes);
    // Writes an image of 120 by 60 pixels and returns its path.
    static std::string writeGif(const std::string& name, const std::string& more = "");
    // The tag that dropping such an image makes.
    static std::string gifTag(const std::string& name) {
        return "<img src=\"images/" + name + "\" width=\"120\" height=\"60\" border=\"0\">";
    }
    static std::string readFile(const std::string& path);  // "(no file)" when there is none
    // The name of a file in that folder that matches the pattern; empty when there is none.
    static std::string found(const std::string& pattern);

 protected:
    FilesTest();
    ~FilesTest() override;
    void SetUp() override;
};
