// The stand-in for the user's browser, in place of what opens .htm files.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/class_key.h"
#include "support/files_test.h"
#include "support/windows_seen.h"

// For the object's life the program opens .htm files and addresses; with no program nothing opens files. The
// stand-in leaves what it sees in a folder.
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

    // What the stand-in was started with, behind its own path. Each start is told once.
    std::string shown() const {
        const std::string command = folder_ + "\\command.txt";
        std::string line;
        seen::Until([&] { return (line = FilesTest::readFile(command)) != "(no file)"; });
        ::DeleteFileA(command.c_str());
        return line.substr(line.find(' ', line.find("standin_browser.exe")) + 1);
    }
    // The page as it stood in the file then.
    std::string page() const { return FilesTest::readFile(folder_ + "\\page.txt"); }

 private:
    std::string folder_;
    std::vector<std::unique_ptr<ClassKey>> keys_;
};
