// A settings store in memory that can fail after any number of writes.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "ftp/core/site_list.h"

namespace test {

struct SiteStore {
    using Section = std::map<std::string, std::string>;
    std::map<std::string, Section> sections;  // a section without values is absent

    Section& sites() { return sections["FTP Sites"]; }
    Section& names() { return sections["FTP Names"]; }
    Section& passes() { return sections["FTP Passes"]; }

    std::vector<settings::Row> rows(const char* name) const {
        std::vector<settings::Row> rows;
        if (!sections.contains(name)) return rows;
        for (const auto& [key, value] : sections.at(name)) rows.push_back({key, value});
        return rows;
    }
    // In the order of the keys as texts, "10" before "2", as some registries have it.
    ftp::SiteSections read() const { return {rows("FTP Sites"), rows("FTP Names"), rows("FTP Passes")}; }

    void apply(const ftp::SiteChange& change) {
        const char* name = ftp::SectionName(change.section);
        Section& section = sections[name];
        if (change.value) {
            section[change.key] = *change.value;
        } else if (change.key.empty()) {
            section.clear();
        } else {
            section.erase(change.key);
        }
        if (section.empty()) sections.erase(name);
    }
    void apply(const ftp::SiteChanges& changes) {
        for (const ftp::SiteChange& change : changes) apply(change);
    }
};

}  // namespace test
