// The list of FTP sites as it lies in the settings: an address, a login name and a scrambled password
// stand under the same decimal key in three sections, "0" being the newest site. What a change of the
// list means is decided here as a row of single writes; who holds the store carries them out.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "settings/core/section_rows.h"

namespace ftp {

constexpr int kMaxSites = 12;               // stored, at the keys "0" to "11"
constexpr int kMaxMenuSites = 11;           // shown in the menu, one less on purpose
constexpr int kNoSite = -1;                 // an index that no site has
constexpr int kMaxMenuItems = 13;           // items of mnuUploadSites, 0 to 12
constexpr const char* kLastUsedKey = "99";  // in "FTP Names": the index of the site used last

enum class SiteSection { sites, names, passes };

// "FTP Sites", "FTP Names" or "FTP Passes".
const char* SectionName(SiteSection section);

// The rows of the three sections as read, in any order, keys unique within a section. `names` holds
// the last-used mark too.
struct SiteSections {
    std::vector<settings::Row> sites;
    std::vector<settings::Row> names;
    std::vector<settings::Row> passes;
};

struct Site {
    int index = 0;    // its key; where the store is whole, also its place in the list
    std::string url;  // without scheme, perhaps with a path: see SplitSiteUrl
    std::string name;
    std::string storedPassword;  // scrambled; empty when the user chose not to save it
};

// The sites in the order of their index. In a damaged store a site may lack a name or a password
// (empty then), and indices may have gaps; a name or password without a site is passed over.
std::vector<Site> ReadSites(const SiteSections& stored);

// The site with that index, or with that very address; none where the store has none.
std::optional<Site> FindSite(const SiteSections& stored, int index);
std::optional<Site> FindSite(const SiteSections& stored, std::string_view url);

// The last-used mark. It may speak of an index that has no site (the site was pushed off the list).
std::optional<int> LastUsedIndex(const SiteSections& stored);

struct MenuRow {
    int index = 0;  // of the site, and of the item in mnuUploadSites: 0 to kMaxMenuSites - 1
    std::string caption;
    bool checked = false;
};

// The items of the menu that are to be seen; every other item is hidden, empty and unchecked. Empty
// when no site is stored.
std::vector<MenuRow> MenuRows(const SiteSections& stored);

// One write to the store. Without a value the key is deleted; an empty key means the whole section.
struct SiteChange {
    SiteSection section = SiteSection::sites;
    std::string key;
    std::optional<std::string> value;
};

// To be carried out first to last, stopping at the first that fails. Wherever that is, every site
// that belongs to the new list can still be read with its own name and password, and no site stands
// beside those of another; what may be missing is the last-used mark. The next change of the list
// closes the gaps that were left.
using SiteChanges = std::vector<SiteChange>;

struct SiteAddition {
    bool added = false;   // false: that very address is stored already
    SiteChanges changes;  // a refused addition still takes the last-used mark away
};

// Puts a site (its index does not matter) before all others; a thirteenth falls off the end. The
// mark follows its site. Addresses are compared byte by byte.
SiteAddition AddSite(const SiteSections& stored, const Site& site);

// Takes a site out; the later ones move up, and with them the mark. The mark of the removed site
// passes to the one that takes its place; it is lost when the last site of the list is removed. No
// changes when there is no such site; the three sections are gone when it was the only one.
SiteChanges RemoveSite(const SiteSections& stored, int index);

// The address as it was typed: the text after the first "://", or the whole text.
std::string_view StripScheme(std::string_view url);

// Whether this can be an address at all: it holds a ".".
bool LooksLikeUrl(std::string_view url);

struct SiteUrl {
    std::string host;
    // The directory to start in, for FtpSetCurrentDirectoryA: empty for the login's own, relative to
    // it as in "host/pub/docs" (RFC 1738, 3.2.2), absolute when two slashes follow the host.
    std::string path;
};

// Takes a stored address apart for connecting. Blanks around host and path, a scheme and slashes at the
// end are dropped.
SiteUrl SplitSiteUrl(std::string_view stored);

}  // namespace ftp
