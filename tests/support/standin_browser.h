// The stand-in for the user's browser (tests/tools/standin_browser), installed and removed.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/class_key.h"
#include "support/files_test.h"
#include "support/windows_seen.h"

// For the object's life the program opens .htm files and addresses; an empty name means that no program does.
// The stand-in writes what it was given into a folder.
class Browser {
 public:
    Browser(const std::string& program, const std::string& folder) : folder_(folder) {
        ::CreateDirectoryA(folder.c_str(), nullptr);
        ::SetEnvironmentVariableA("STANDIN_BROWSER", folder.c_str());
        keys_.push_back(std::make_unique<ClassKey>(".htm", "quillon.standin"));
        if (program.empty()) return;
        for (const char* type : {"quillon.standin", "http", "mailto"}) {
            keys_.push_back(std::make_unique<ClassKey>(std::string(type) + "\\shell\\open\\command",
                                                       '"' + program + "\" \"%1\""));
        }
    }

    static std::string standIn() { return ToolPath("standin_browser.exe"); }

    // The stand-in's command line, without its own path. Waits for a start that has not been returned yet.
    std::string shown() const {
        const std::string command = folder_ + "\\command.txt";
        std::string line;
        seen::Until([&] { return (line = FilesTest::readFile(command)) != "(no file)"; });
        ::DeleteFileA(command.c_str());
        return line.substr(line.find(' ', line.find("standin_browser.exe")) + 1);
    }
    // The page as the file held it then.
    std::string page() const { return FilesTest::readFile(folder_ + "\\page.txt"); }

 private:
    std::string folder_;
    std::vector<std::unique_ptr<ClassKey>> keys_;
};
