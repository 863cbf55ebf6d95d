// Settings below HKEY_CURRENT_USER\Software\<Company>\<AppName>\<Section>, all of them strings.
#pragma once

#include <string>
#include <utility>
#include <vector>

// Made anew for each use; nothing is cached. In every method the key "*" stands for the section's unnamed
// value. No method throws or shows a message.
class CRegSettings {
 public:
    const std::string& Company() const { return company_; }
    // Blanks around the name are dropped; an empty name restores the default.
    void setCompany(const std::string& company);
    const std::string& AppName() const { return appName_; }
    void setAppName(const std::string& appName);

    // The stored string, or `fallback` when there is none or it is empty.
    std::string GetRegSetting(const std::string& section, const std::string& key,
                              const std::string& fallback = "") const;
    // All keys of a section with their values, in no order.
    std::vector<std::pair<std::string, std::string>> GetAllRegSettings(const std::string& section) const;
    // False when the value could not be written. The section is created as needed.
    bool SaveRegSetting(const std::string& section, const std::string& key, const std::string& setting) const;
    // Deletes the value, or with an empty key the whole section. False when there was none.
    bool DeleteSetting(const std::string& section, const std::string& key) const;

 private:
    std::string path(const std::string& section) const;

    std::string company_ = "Corvale";
    std::string appName_ = "Quillon";
};
