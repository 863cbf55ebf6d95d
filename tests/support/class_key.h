// What is registered in HKEY_CLASSES_ROOT for as long as a test needs it.
#pragma once

#include <algorithm>
#include <string>

#include <windows.h>

// Sets the value of a key; the earlier one comes back with the object's end, or the key goes.
class ClassKey {
 public:
    ClassKey(const std::string& key, const std::string& value) : key_(key) {
        LONG size = sizeof usual_;
        ::RegQueryValueA(HKEY_CLASSES_ROOT, key.c_str(), usual_, &size);
        set(value);
    }
    ~ClassKey() {
        if (usual_[0] != '\0') set(usual_);
        // Or goes with the keys above it that hold no other.
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

// The full path of a program of tests/tools, which stand beside the tests.
inline std::string ToolPath(const std::string& name) {
    char self[MAX_PATH];
    ::GetModuleFileNameA(nullptr, self, sizeof self);
    return std::string(self, std::string(self).rfind('\\')) + "\\tools\\" + name;
}
