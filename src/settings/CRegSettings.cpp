#include "settings/CRegSettings.h"

#include "win/core/ascii.h"
#include "win/registry_key.h"

namespace {

std::string TrimmedOr(const std::string& text, const char* fallback) {
    const std::string_view trimmed = win::Trimmed(text);
    return std::string(trimmed.empty() ? fallback : trimmed);
}

const char* ValueName(const std::string& key) {
    return key == "*" ? nullptr : key.c_str();
}

}  // namespace

void CRegSettings::setCompany(const std::string& company) {
    company_ = TrimmedOr(company, "Corvale");
}

void CRegSettings::setAppName(const std::string& appName) {
    appName_ = TrimmedOr(appName, "Quillon");
}

std::string CRegSettings::path(const std::string& section) const {
    const std::string application = "Software\\" + company_ + "\\" + appName_;
    return section.empty() ? application : application + "\\" + section;
}

std::string CRegSettings::GetRegSetting(const std::string& section, const std::string& key,
                                        const std::string& fallback) const {
    const auto value = win::RegistryKey::open(path(section)).read(ValueName(key));
    return value && !value->empty() ? *value : fallback;
}

std::vector<std::pair<std::string, std::string>> CRegSettings::GetAllRegSettings(
    const std::string& section) const {
    return win::RegistryKey::open(path(section)).values();
}

bool CRegSettings::SaveRegSetting(const std::string& section, const std::string& key,
                                  const std::string& setting) const {
    const auto store = win::RegistryKey::create(path(section));
    // An empty setting is stored as no bytes at all, which reads back as "none".
    return setting.empty() ? store.writeNothing(ValueName(key)) : store.write(ValueName(key), setting);
}

bool CRegSettings::DeleteSetting(const std::string& section, const std::string& key) const {
    if (key.empty()) return win::RegistryKey::open(path("")).removeSubkey(section);
    return win::RegistryKey::open(path(section)).remove(ValueName(key));
}
