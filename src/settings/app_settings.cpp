#include "settings/app_settings.h"

#include "win/registry_key.h"

namespace settings {
namespace {

using win::RegistryKey;

const std::string kRoot = "Software\\VB and VBA Program Settings\\Quillon";

std::string Path(const std::string& section) {
    return kRoot + "\\" + section;
}

}  // namespace

std::string Get(const std::string& section, const std::string& key, const std::string& fallback) {
    return RegistryKey::open(Path(section)).read(key.c_str()).value_or(fallback);
}

std::vector<Row> GetAll(const std::string& section) {
    std::vector<Row> rows;
    for (auto& [key, value] : RegistryKey::open(Path(section)).values()) rows.push_back({key, value});
    SortRows(rows);
    return rows;
}

bool Save(const std::string& section, const std::string& key, const std::string& value) {
    return RegistryKey::create(Path(section)).write(key.c_str(), value);
}

bool DeleteKey(const std::string& section, const std::string& key) {
    return RegistryKey::open(Path(section)).remove(key.c_str());
}

bool DeleteSection(const std::string& section) {
    return RegistryKey::open(kRoot).removeSubkey(section);
}

}  // namespace settings
