// The stand-in for the user's browser, in place of what opens .htm files.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/class_key.h"
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
        if (!seen::Until([&] { return !(line = bytes(command)).empty(); })) return "(not started)";
        ::DeleteFileA(command.c_str());
        const std::size_t name = line.find("standin_browser.exe");
        return line.substr(line.find_first_of(' ', name) + 1);
    }
    // The page as it stood in the file then.
    std::string page() const { return bytes(folder_ + "\\page.txt"); }

 private:
    // Empty while there is no file or somebody is at it.
    static std::string bytes(const std::string& path) {
        const HANDLE file =
            ::CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        if (file == INVALID_HANDLE_VALUE) return {};
        std::string text(::GetFileSize(file, nullptr), '\0');
        DWORD read = 0;
        ::ReadFile(file, text.data(), static_cast<DWORD>(text.size()), &read, nullptr);
        ::CloseHandle(file);
        return text;
    }

    std::string folder_;
    std::vector<std::unique_ptr<ClassKey>> keys_;
};
