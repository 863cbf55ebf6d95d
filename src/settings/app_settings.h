// The application's own settings area: string values by section and key.
#pragma once

#include <string>
#include <vector>

#include "settings/core/section_rows.h"

// They lie where Windows' Basic runtimes have always kept an application's settings,
// HKEY_CURRENT_USER\Software\VB and VBA Program Settings\Quillon\<section>, so that tools that save or move
// such settings find them. Values are texts of any length, in which any character may occur. Nothing is
// cached.
namespace settings {

// The stored value, or `fallback` when there is none; an empty value is a value.
std::string Get(const std::string& section, const std::string& key, const std::string& fallback = "");

// All rows of a section; those whose key is a number come first, in numeric order.
std::vector<Row> GetAll(const std::string& section);

// The changing functions return false when the store refused.
bool Save(const std::string& section, const std::string& key, const std::string& value);
bool DeleteKey(const std::string& section, const std::string& key);
bool DeleteSection(const std::string& section);

}  // namespace settings
