// Rows of a store in any state, then changes of the list, each of which may stop after any step.
#include <algorithm>
#include <set>

#include "../core/site_store.h"
#include "check.h"

namespace {

using test::SiteStore;

// A site's name and password are made from its address, unless a row is missing.
std::set<std::string> CheckedUrls(const SiteStore& store) {
    std::set<std::string> urls;
    for (const ftp::Site& site : ftp::ReadSites(store.read())) {
        Check(site.name.empty() || site.name == "n" + site.url);
        Check(site.storedPassword.empty() || site.storedPassword == "p" + site.url);
        urls.insert(site.url);
    }
    return urls;
}

void CheckMenu(const SiteStore& store) {
    const auto menu = ftp::MenuRows(store.read());
    Check(menu.size() <= static_cast<std::size_t>(ftp::kMaxMenuSites));
    int checked = 0;
    for (const ftp::MenuRow& row : menu) {
        Check(row.index >= 0 && row.index < ftp::kMaxMenuSites && !row.caption.empty());
        Check(ftp::FindSite(store.read(), row.index)->url == row.caption);
        checked += row.checked ? 1 : 0;
    }
    Check(checked <= 1);
}

std::string MarkedUrl(const SiteStore& store) {
    const auto mark = ftp::LastUsedIndex(store.read());
    const auto site = mark ? ftp::FindSite(store.read(), *mark) : std::nullopt;
    return site ? site->url : "";
}

// A change that stops early must leave all sites that the complete change leaves.
void ApplyInSteps(SiteStore& store, const ftp::SiteChanges& changes, const std::string& newUrl) {
    SiteStore whole = store;
    whole.apply(changes);
    std::set<std::string> kept = CheckedUrls(whole);
    kept.erase(newUrl);
    for (const ftp::SiteChange& change : changes) {
        store.apply(change);
        const std::set<std::string> urls = CheckedUrls(store);
        Check(std::includes(urls.begin(), urls.end(), kept.begin(), kept.end()));
    }
    CheckMenu(store);
}

void CheckOrder(const SiteStore& store) {
    int index = 0;
    for (const ftp::Site& site : ftp::ReadSites(store.read())) Check(site.index == index++);
    Check(index <= ftp::kMaxSites);
}

void PutRow(SiteStore& store, unsigned key, unsigned sections) {
    const std::string text = key < 110 ? std::to_string(key) : key < 200 ? "0" + std::to_string(key) : "x";
    const std::string url = "u" + std::to_string(key);
    if ((sections & 1U) != 0) store.sites()[text] = (sections & 8U) != 0 ? "" : url;
    if ((sections & 2U) != 0) store.names()[text] = "n" + url;
    if ((sections & 4U) != 0) store.passes()[text] = "p" + url;
}

void AddSite(SiteStore& store, const std::string& url) {
    const std::string marked = MarkedUrl(store);
    const ftp::SiteAddition addition = ftp::AddSite(store.read(), {0, url, "n" + url, "p" + url});
    ApplyInSteps(store, addition.changes, url);
    if (!addition.added) return Check(ftp::LastUsedIndex(store.read()) == std::nullopt);
    CheckOrder(store);
    Check(ftp::FindSite(store.read(), 0)->url == url);
    if (!marked.empty()) Check(MarkedUrl(store) == marked || CheckedUrls(store).count(marked) == 0);
    if (marked.empty() && CheckedUrls(store).size() > 1) Check(MarkedUrl(store).empty());
}

void RemoveSite(SiteStore& store, int index) {
    const std::vector<ftp::Site> before = ftp::ReadSites(store.read());
    const std::string marked = MarkedUrl(store);
    const auto site = ftp::FindSite(store.read(), index);
    const ftp::SiteChanges changes = ftp::RemoveSite(store.read(), index);
    Check(changes.empty() == !site.has_value());
    ApplyInSteps(store, changes, "");
    if (!site) return;
    CheckOrder(store);
    // The mark stays with its site; where that is removed it moves to the next one, or goes with the last.
    const auto next =
        std::find_if(before.begin(), before.end(), [&](auto& other) { return other.index > index; });
    if (next == before.end()) return Check(ftp::LastUsedIndex(store.read()) == std::nullopt);
    const std::string expected = marked == site->url ? next->url : marked;
    Check(MarkedUrl(store) == (CheckedUrls(store).contains(expected) ? expected : ""));
}

}  // namespace

void Try(std::string_view input) {
    SiteStore store;
    input = input.substr(0, 300);  // more would only be slower
    for (unsigned key = 0; input.size() > 1 && (key = TakeByte(input)) != 0xFF;)
        PutRow(store, key, TakeByte(input));
    store.names().erase("99");  // a name of no site; the mark comes from the changes
    while (input.size() > 1) {
        const unsigned action = TakeByte(input) % 3;
        const unsigned value = TakeByte(input);
        if (action == 0) AddSite(store, "new" + std::to_string(value));
        if (action == 1) RemoveSite(store, static_cast<int>(value % 100));
        if (action == 2)
            store.names()["99"] = value < 240 ? std::to_string(value % 16) : std::string("x", value % 2);
    }
}
