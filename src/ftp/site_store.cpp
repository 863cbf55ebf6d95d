#include "ftp/site_store.h"

#include <algorithm>

#include "settings/app_settings.h"

namespace ftp {
namespace {

void Show(MainWindow& main, const std::vector<MenuRow>& rows) {
    win::MenuBar& menu = main.menu();
    for (int index = 0; index < kMaxMenuItems; ++index) {
        const auto item = static_cast<Command>(mnuUploadSites + index);
        const auto row =
            std::find_if(rows.begin(), rows.end(), [index](const MenuRow& r) { return r.index == index; });
        if (row == rows.end()) {
            menu.hide(item);
        } else {
            menu.show(item, row->caption);
        }
        menu.check(item, row != rows.end() && row->checked);
    }
}

bool Apply(const SiteChange& change) {
    const char* section = SectionName(change.section);
    if (change.value) return settings::Save(section, change.key, *change.value);
    return change.key.empty() ? settings::DeleteSection(section) : settings::DeleteKey(section, change.key);
}

}  // namespace

SiteSections ReadSections() {
    return {settings::GetAll(SectionName(SiteSection::sites)),
            settings::GetAll(SectionName(SiteSection::names)),
            settings::GetAll(SectionName(SiteSection::passes))};
}

bool Apply(const SiteChanges& changes) {
    return std::all_of(changes.begin(), changes.end(),
                       [](const SiteChange& change) { return Apply(change); });
}

void LoadSiteMenu(MainWindow& main) {
    const std::vector<MenuRow> rows = MenuRows(ReadSections());
    if (!rows.empty()) Show(main, rows);
}

void ShowSites(MainWindow& main) {
    Show(main, MenuRows(ReadSections()));
}

void SaveLastSite(MainWindow& main, const std::string& url) {
    const std::optional<Site> site = FindSite(ReadSections(), url);
    if (!site) return;
    settings::Save(SectionName(SiteSection::names), kLastUsedKey, std::to_string(site->index));
    LoadSiteMenu(main);
}

}  // namespace ftp
