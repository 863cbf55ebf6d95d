// String values of a registry key.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "win/unique.h"

namespace win {

// A key below HKEY_CURRENT_USER. Failures do not throw: a key that could not be opened reads as empty and
// refuses every change.
class RegistryKey {
 public:
    static RegistryKey open(const std::string& path);
    static RegistryKey create(const std::string& path);  // with its missing parents

    explicit operator bool() const { return static_cast<bool>(key_); }

    // `name` is null for the key's unnamed value. The terminating NUL is not part of the result, any other
    // NUL is. Nothing when there is no such value.
    std::optional<std::string> read(const char* name) const;
    // Stores the text and a terminating NUL, so that a text that ends in NUL comes back whole.
    bool write(const char* name, std::string_view text) const;
    // Stores nothing at all, not even a terminator.
    bool writeNothing(const char* name) const;
    bool remove(const char* name) const;
    bool removeSubkey(const std::string& name) const;
    // All named values in the registry's own order.
    std::vector<std::pair<std::string, std::string>> values() const;

 private:
    explicit RegistryKey(HKEY key) : key_(key) {}

    UniqueKey key_;
};

}  // namespace win
