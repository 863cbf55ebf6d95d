#include "win/registry_key.h"

#include "win/unicode.h"

namespace win {
namespace {

// A value's name; null for the unnamed one.
class ValueName {
 public:
    explicit ValueName(const char* name) : named_(name != nullptr), name_(ToWide(named_ ? name : "")) {}
    const wchar_t* get() const { return named_ ? name_.c_str() : nullptr; }

 private:
    bool named_;
    std::wstring name_;
};

// A value is stored with the NUL that ends it, which is no part of it.
std::string TextOf(std::wstring_view stored) {
    if (stored.ends_with(L'\0')) stored.remove_suffix(1);
    return ToUtf8(stored);
}

DWORD ByteCount(const std::wstring& text) {
    return static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
}

}  // namespace

RegistryKey RegistryKey::open(const std::string& path) {
    HKEY key = nullptr;
    ::RegOpenKeyExW(HKEY_CURRENT_USER, ToWide(path).c_str(), 0, KEY_ALL_ACCESS, &key);
    return RegistryKey(key);
}

RegistryKey RegistryKey::create(const std::string& path) {
    HKEY key = nullptr;
    ::RegCreateKeyExW(HKEY_CURRENT_USER, ToWide(path).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                      nullptr);
    return RegistryKey(key);
}

std::optional<std::string> RegistryKey::read(const char* name) const {
    if (!key_) return std::nullopt;
    const ValueName value(name);
    DWORD size = 0;
    if (::RegQueryValueExW(key_.get(), value.get(), nullptr, nullptr, nullptr, &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    std::wstring text((size + 1) / sizeof(wchar_t), L'\0');
    auto* data = reinterpret_cast<BYTE*>(text.data());
    if (::RegQueryValueExW(key_.get(), value.get(), nullptr, nullptr, data, &size) != ERROR_SUCCESS) {
        return std::nullopt;
    }
    text.resize(size / sizeof(wchar_t));
    return TextOf(text);
}

bool RegistryKey::write(const char* name, std::string_view text) const {
    const std::wstring wide = ToWide(text);
    return key_ &&
           ::RegSetValueExW(key_.get(), ValueName(name).get(), 0, REG_SZ,
                            reinterpret_cast<const BYTE*>(wide.c_str()), ByteCount(wide)) == ERROR_SUCCESS;
}

bool RegistryKey::writeNothing(const char* name) const {
    const BYTE none{};
    return key_ && ::RegSetValueExW(key_.get(), ValueName(name).get(), 0, REG_SZ, &none, 0) == ERROR_SUCCESS;
}

bool RegistryKey::remove(const char* name) const {
    return key_ && ::RegDeleteValueW(key_.get(), ValueName(name).get()) == ERROR_SUCCESS;
}

bool RegistryKey::removeSubkey(const std::string& name) const {
    return key_ && ::RegDeleteKeyW(key_.get(), ToWide(name).c_str()) == ERROR_SUCCESS;
}

std::vector<std::pair<std::string, std::string>> RegistryKey::values() const {
    std::vector<std::pair<std::string, std::string>> rows;
    DWORD longestName = 0;   // in UTF-16 units
    DWORD longestValue = 0;  // in bytes
    if (!key_ || ::RegQueryInfoKeyW(key_.get(), nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                                    &longestName, &longestValue, nullptr, nullptr) != ERROR_SUCCESS) {
        return rows;
    }
    std::wstring name(longestName + 1, L'\0');
    std::wstring value(longestValue / sizeof(wchar_t) + 1, L'\0');
    // A value that cannot be read, one that has grown meanwhile for example, is passed over; other errors end
    // the list.
    for (DWORD index = 0;; ++index) {
        auto nameSize = static_cast<DWORD>(name.size());
        auto valueSize = static_cast<DWORD>(value.size() * sizeof(wchar_t));
        const LONG result = ::RegEnumValueW(key_.get(), index, name.data(), &nameSize, nullptr, nullptr,
                                            reinterpret_cast<BYTE*>(value.data()), &valueSize);
        if (result == ERROR_MORE_DATA) continue;
        if (result != ERROR_SUCCESS) return rows;
        if (nameSize == 0) continue;
        rows.emplace_back(ToUtf8({name.data(), nameSize}),
                          TextOf({value.data(), valueSize / sizeof(wchar_t)}));
    }
}

}  // namespace win
