// Keys in HKEY_CLASSES_ROOT that exist as long as a test needs them.
#pragma once

#include <algorithm>
#include <string>

#include <windows.h>

// Sets the value of a key for its own life, then restores the earlier value or, without one, deletes the key.
class ClassKey {
 public:
    ClassKey(const std::string& key, const std::string& value) : key_(key) {
        LONG size = sizeof usual_;
        ::RegQueryValueA(HKEY_CLASSES_ROOT, key.c_str(), usual_, &size);
        set(value);
    }
    ~ClassKey() {
        if (usual_[0] != '\0') set(usual_);
        // Deletes the keys above it too, as far as they have no other.
        while (usual_[0] == '\0' && ::RegDeleteKeyA(HKEY_CLASSES_ROOT, key_.c_str()) == ERROR_SUCCESS)
            key_.erase(std::min(key_.rfind('\\'), key_.size()));
    }
    ClassKey(const ClassKey&) = delete;
    ClassKey& operator=(const ClassKey&) = delete;

 private:
    void set(const std::string& value) {
        ::RegSetValueA(HKEY_CLASSES_ROOT, key_.c_str(), REG_SZ, value.c_str(), 0);
    }

    std::string key_;
    char usual_[MAX_PATH] = "";
};

// The full path of a program of tests/tools, which are built beside the tests.
inline std::string ToolPath(const std::string& name) {
    char self[MAX_PATH];
    ::GetModuleFileNameA(nullptr, self, sizeof self);
    return std::string(self, std::string(self).rfind('\\')) + "\\tools\\" + name;
}
