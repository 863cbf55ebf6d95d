// The stand-in for the user's browser, in place of what opens .htm files.
#pragma once

#include <iterator>
#include <string>

#include "support/windows_seen.h"

// For the object's life the program opens .htm files and addresses; with no program nothing opens files. The
// stand-in leaves what it sees in a folder.
class Browser {
 public:
    Browser(const std::string& program, const std::string& folder) : folder_(folder) {
        ::CreateDirectoryA(folder.c_str(), nullptr);
        ::SetEnvironmentVariableA("STANDIN_BROWSER", folder.c_str());
        set(".htm", "quillon.standin");
        if (program.empty()) return;
        const std::string command = '"' + program + "\" \"%1\"";
        set("quillon.standin\\shell\\open\\command", command);
        for (std::size_t i = 0; i < std::size(kProtocols); ++i) {
            LONG size = sizeof usual_[i];
            ::RegQueryValueA(HKEY_CLASSES_ROOT, kProtocols[i], usual_[i], &size);
            set(kProtocols[i], command);
        }
    }
    ~Browser() {
        for (std::size_t i = 0; i < std::size(kProtocols); ++i) {
            if (usual_[i][0] != '\0') set(kProtocols[i], usual_[i]);
        }
        for (const char* key : {"quillon.standin\\shell\\open\\command", "quillon.standin\\shell\\open",
                                "quillon.standin\\shell", "quillon.standin", ".htm"}) {
            ::RegDeleteKeyA(HKEY_CLASSES_ROOT, key);
        }
    }
    Browser(const Browser&) = delete;
    Browser& operator=(const Browser&) = delete;

    static std::string standIn() {
        char path[MAX_PATH];
        ::GetModuleFileNameA(nullptr, path, sizeof path);
        const std::string program = path;
        return program.substr(0, program.rfind('\\')) + "\\tools\\standin_browser.exe";
    }

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
    static void set(const char* key, const std::string& value) {
        ::RegSetValueA(HKEY_CLASSES_ROOT, key, REG_SZ, value.c_str(), 0);
    }
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

    static constexpr const char* kProtocols[] = {"http\\shell\\open\\command",
                                                 "mailto\\shell\\open\\command"};

    std::string folder_;
    char usual_[2][MAX_PATH] = {};  // what opens the protocols otherwise
};
