#include "win/registry_key.h"

namespace win {
namespace {

void DropTerminator(std::string& bytes) {
    if (!bytes.empty() && bytes.back() == '\0') bytes.pop_back();
}

const BYTE* Bytes(const std::string& text) {
    return reinterpret_cast<const BYTE*>(text.c_str());
}

}  // namespace

RegistryKey RegistryKey::open(const std::string& path) {
    HKEY key = nullptr;
    ::RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_ALL_ACCESS, &key);
    return RegistryKey(key);
}

RegistryKey RegistryKey::create(const std::string& path) {
    HKEY key = nullptr;
    ::RegCreateKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
    return RegistryKey(key);
}

std::optional<std::string> RegistryKey::read(const char* name) const {
    if (!key_) return std::nullopt;
    DWORD size = 0;
    if (::RegQueryValueExA(key_.get(), name, nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    std::string bytes(size, '\0');
    auto* data = reinterpret_cast<BYTE*>(bytes.data());
    if (::RegQueryValueExA(key_.get(), name, nullptr, nullptr, data, &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    bytes.resize(size);
    DropTerminator(bytes);
    return bytes;
}

bool RegistryKey::write(const char* name, const std::string& bytes) const {
    const auto size = static_cast<DWORD>(bytes.size() + 1);
    return key_ && ::RegSetValueExA(key_.get(), name, 0, REG_SZ, Bytes(bytes), size) == ERROR_SUCCESS;
}

bool RegistryKey::writeNothing(const char* name) const {
    return key_ && ::RegSetValueExA(key_.get(), name, 0, REG_SZ, Bytes(""), 0) == ERROR_SUCCESS;
}

bool RegistryKey::remove(const char* name) const {
    return key_ && ::RegDeleteValueA(key_.get(), name) == ERROR_SUCCESS;
}

bool RegistryKey::removeSubkey(const std::string& name) const {
    return key_ && ::RegDeleteKeyA(key_.get(), name.c_str()) == ERROR_SUCCESS;
}

std::vector<std::pair<std::string, std::string>> RegistryKey::values() const {
    std::vector<std::pair<std::string, std::string>> rows;
    DWORD longestName = 0;
    DWORD longestValue = 0;
    if (!key_ || ::RegQueryInfoKeyA(key_.get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                    &longestName, &longestValue, nullptr, nullptr) != ERROR_SUCCESS) {
        return rows;
    }
    // The lengths are counted in UTF-16 units, of which a byte of the code page may need fewer or more.
    std::string name(longestName * 2 + 1, '\0');
    std::string value(longestValue * 2 + 2, '\0');
    for (DWORD index = 0;; ++index) {
        auto nameSize = static_cast<DWORD>(name.size());
        auto valueSize = static_cast<DWORD>(value.size());
        const LONG result = ::RegEnumValueA(key_.get(), index, name.data(), &nameSize, nullptr, nullptr,
                                            reinterpret_cast<BYTE*>(value.data()), &valueSize);
        if (result == ERROR_NO_MORE_ITEMS) return rows;
        if (result != ERROR_SUCCESS || nameSize == 0) continue;
        std::string bytes = value.substr(0, valueSize);
        DropTerminator(bytes);
        rows.emplace_back(name.substr(0, nameSize), std::move(bytes));
    }
}

}  // namespace win
