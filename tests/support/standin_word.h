// The stand-in for the word processor (tests/tools/standin_word), installed and removed.
#pragma once

#include <string>

#include <windows.h>

#include <oleauto.h>

#include "support/class_key.h"
#include "support/windows_seen.h"

constexpr CLSID kWordClass{0x5C5A5D0E, 0x2A53, 0x4B0A, {0x9C, 0x1B, 0x5B, 0x37, 0x2E, 0x64, 0x61, 0xD4}};

// Registers it as "Word.Basic" for the object's life. Its source describes its log and its orders.
class StandinWord {
 public:
    explicit StandinWord(const std::string& log, const std::string& order = "")
        : command_('"' + ToolPath("standin_word.exe") + "\" \"" + log + "\" " + order) {}

    // Starts it before anybody asks for it; true when it is running.
    bool start() const {
        if (::WinExec(command_.c_str(), SW_SHOWNORMAL) <= 31) return false;
        return seen::Until([] {
            IUnknown* active = nullptr;
            if (SUCCEEDED(::GetActiveObject(kWordClass, nullptr, &active))) active->Release();
            return active || ::FindWindowA("OpusApp", nullptr);
        });
    }

 private:
    std::string command_;
    ClassKey name_{"Word.Basic\\CLSID", "{5C5A5D0E-2A53-4B0A-9C1B-5B372E6461D4}"};
    ClassKey server_{"CLSID\\{5C5A5D0E-2A53-4B0A-9C1B-5B372E6461D4}\\LocalServer32", command_};
};
