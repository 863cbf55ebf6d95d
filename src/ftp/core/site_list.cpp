#include "ftp/core/site_list.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <utility>

#include "win/core/ascii.h"

namespace ftp {
namespace {

using settings::Row;

constexpr int kFirstReservedKey = 99;  // the mark's; no site can have a name there
constexpr int kLargestNumber = 32766;  // its successor is the largest selected index that there can be
constexpr std::string_view kSchemeEnd = "://";
constexpr std::string_view kBlanks = " \t";
constexpr SiteSection kSections[] = {SiteSection::sites, SiteSection::names, SiteSection::passes};

const std::vector<Row>& Rows(const SiteSections& stored, SiteSection section) {
    switch (section) {
        case SiteSection::sites:
            return stored.sites;
        case SiteSection::names:
            return stored.names;
        case SiteSection::passes:
            break;
    }
    return stored.passes;
}

const std::string* FindValue(const std::vector<Row>& rows, std::string_view key) {
    const auto row = std::find_if(rows.begin(), rows.end(), [key](const Row& r) { return r.key == key; });
    return row == rows.end() ? nullptr : &row->value;
}

std::string ValueOrEmpty(const std::vector<Row>& rows, std::string_view key) {
    const std::string* value = FindValue(rows, key);
    return value != nullptr ? *value : std::string();
}

// A number in the one way that the program itself would write it, so that no two keys mean one index.
std::optional<int> ReadNumber(std::string_view text) {
    int number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || number < 0 || number > kLargestNumber || std::to_string(number) != text)
        return std::nullopt;
    return number;
}

std::optional<int> SiteIndex(const Row& row) {
    const std::optional<int> index = ReadNumber(row.key);
    return index && *index < kFirstReservedKey ? index : std::nullopt;
}

template <typename Wanted>
std::optional<Site> FirstSite(const SiteSections& stored, Wanted wanted) {
    std::vector<Site> sites = ReadSites(stored);
    const auto site = std::find_if(sites.begin(), sites.end(), wanted);
    if (site == sites.end()) return std::nullopt;
    return std::move(*site);
}

// Where the mark stands when the sites are counted without gaps. A mark behind the last site stays
// there; one that points into a gap is dropped, or it would come to name a site that it never meant.
std::optional<int> MarkPosition(const std::vector<Site>& sites, std::optional<int> mark) {
    if (!mark || sites.empty()) return std::nullopt;
    if (*mark > sites.back().index) return mark;
    const auto site =
        std::find_if(sites.begin(), sites.end(), [mark](const Site& s) { return s.index == *mark; });
    if (site == sites.end()) return std::nullopt;
    return static_cast<int>(std::distance(sites.begin(), site));
}

// Brings the store to a wanted list: the site at position p is to stand under the key p, and its
// `index` says where it stands now (-1: nowhere yet).
class Rewrite {
 public:
    explicit Rewrite(const SiteSections& stored) : stored_(stored) {}

    SiteChanges to(const std::vector<Site>& wanted, std::optional<int> mark) && {
        const std::string* oldMark = FindValue(stored_.names, kLastUsedKey);
        const std::string newMark = mark ? std::to_string(*mark) : std::string();
        const bool markChanges = oldMark != nullptr && !oldMark->empty() && *oldMark != newMark;
        // Away first and back last: in between it would point to the wrong site.
        if (markChanges) remove(SiteSection::names, kLastUsedKey);
        placeAll(wanted);
        removeFrom(static_cast<int>(wanted.size()));
        if (markChanges && mark) write(SiteSection::names, kLastUsedKey, newMark);
        return std::move(changes_);
    }

    // What is not the program's own stays, and keeps its section alive.
    SiteChanges toNothing() && {
        for (const SiteSection section : kSections) {
            const std::vector<Row>& rows = Rows(stored_, section);
            const bool onlyOurs = std::all_of(rows.begin(), rows.end(), [section](const Row& row) {
                return SiteIndex(row) || (section == SiteSection::names && row.key == kLastUsedKey);
            });
            if (onlyOurs) {
                if (!rows.empty()) remove(section, "");
                continue;
            }
            removeFrom(section, 0);
            if (section == SiteSection::names && FindValue(rows, kLastUsedKey) != nullptr)
                remove(section, kLastUsedKey);
        }
        return std::move(changes_);
    }

 private:
    void write(SiteSection section, std::string key, std::string value) {
        changes_.push_back({section, std::move(key), std::move(value)});
    }
    void remove(SiteSection section, std::string key) {
        changes_.push_back({section, std::move(key), std::nullopt});
    }

    // Sites that move to a smaller key go in ascending order, those that move to a greater one in
    // descending order, so that a key is overwritten only after its site has been copied. Both kinds
    // meet where an addition fills a gap: what lies before the gap moves into it, what lies behind it
    // moves down to it at most.
    void placeAll(const std::vector<Site>& wanted) {
        const int count = static_cast<int>(wanted.size());
        for (int key = 0; key < count; ++key) {
            const Site& site = wanted[static_cast<std::size_t>(key)];
            if (site.index >= key) place(site, key);
        }
        for (int key = count - 1; key >= 0; --key) {
            const Site& site = wanted[static_cast<std::size_t>(key)];
            if (site.index < key) place(site, key);
        }
    }

    void place(const Site& site, int index) {
        const std::string key = std::to_string(index);
        // The address goes first and comes last, so that it never stands beside another site's password.
        const bool moves = site.index != index;
        if (moves && FindValue(stored_.sites, key) != nullptr) remove(SiteSection::sites, key);
        if (moves || FindValue(stored_.passes, key) == nullptr)
            write(SiteSection::passes, key, site.storedPassword);
        if (moves || FindValue(stored_.names, key) == nullptr) write(SiteSection::names, key, site.name);
        if (moves) write(SiteSection::sites, key, site.url);
    }

    void removeFrom(int firstIndex) {
        for (const SiteSection section : kSections) removeFrom(section, firstIndex);
    }
    void removeFrom(SiteSection section, int firstIndex) {
        for (const Row& row : Rows(stored_, section)) {
            const std::optional<int> index = SiteIndex(row);
            if (index && *index >= firstIndex) remove(section, row.key);
        }
    }

    const SiteSections& stored_;
    SiteChanges changes_;
};

}  // namespace

const char* SectionName(SiteSection section) {
    switch (section) {
        case SiteSection::sites:
            return "FTP Sites";
        case SiteSection::names:
            return "FTP Names";
        case SiteSection::passes:
            break;
    }
    return "FTP Passes";
}

// Rows are paired by key and never by their place in the section: the store promises no order, and
// one missing row would otherwise send every following password to the wrong server.
std::vector<Site> ReadSites(const SiteSections& stored) {
    std::vector<Site> sites;
    for (const Row& row : stored.sites) {
        const std::optional<int> index = SiteIndex(row);
        if (!index || row.value.empty()) continue;
        sites.push_back(
            {*index, row.value, ValueOrEmpty(stored.names, row.key), ValueOrEmpty(stored.passes, row.key)});
    }
    std::sort(sites.begin(), sites.end(), [](const Site& a, const Site& b) { return a.index < b.index; });
    return sites;
}

std::optional<Site> FindSite(const SiteSections& stored, int index) {
    return FirstSite(stored, [index](const Site& site) { return site.index == index; });
}

std::optional<Site> FindSite(const SiteSections& stored, std::string_view url) {
    return FirstSite(stored, [url](const Site& site) { return site.url == url; });
}

std::optional<int> LastUsedIndex(const SiteSections& stored) {
    const std::string* mark = FindValue(stored.names, kLastUsedKey);
    return mark != nullptr ? ReadNumber(*mark) : std::nullopt;
}

std::vector<MenuRow> MenuRows(const SiteSections& stored) {
    const std::optional<int> mark = LastUsedIndex(stored);
    std::vector<MenuRow> rows;
    for (Site& site : ReadSites(stored)) {
        if (site.index < kMaxMenuSites) rows.push_back({site.index, std::move(site.url), mark == site.index});
    }
    return rows;
}

SiteAddition AddSite(const SiteSections& stored, const Site& site) {
    std::vector<Site> wanted = ReadSites(stored);
    const bool known = std::any_of(wanted.begin(), wanted.end(),
                                   [&site](const Site& other) { return other.url == site.url; });
    if (known) {
        SiteAddition refused;
        if (!ValueOrEmpty(stored.names, kLastUsedKey).empty())
            refused.changes.push_back({SiteSection::names, kLastUsedKey, std::nullopt});
        return refused;
    }
    std::optional<int> mark = LastUsedIndex(stored);
    if (!wanted.empty()) {  // the first site leaves a mark alone
        mark = MarkPosition(wanted, mark);
        if (mark) mark = *mark + 1;
    }
    wanted.insert(wanted.begin(), site);
    wanted.front().index = -1;
    if (wanted.size() > kMaxSites) wanted.resize(kMaxSites);
    return {true, Rewrite(stored).to(wanted, mark)};
}

SiteChanges RemoveSite(const SiteSections& stored, int index) {
    std::vector<Site> wanted = ReadSites(stored);
    const auto site =
        std::find_if(wanted.begin(), wanted.end(), [index](const Site& s) { return s.index == index; });
    if (site == wanted.end()) return {};
    if (wanted.size() == 1) return Rewrite(stored).toNothing();
    std::optional<int> mark;
    if (std::next(site) != wanted.end()) {
        const int position = static_cast<int>(std::distance(wanted.begin(), site));
        mark = MarkPosition(wanted, LastUsedIndex(stored));
        if (mark && *mark > position) mark = *mark - 1;
    }
    wanted.erase(site);
    if (wanted.size() > kMaxSites) wanted.resize(kMaxSites);
    return Rewrite(stored).to(wanted, mark);
}

std::string_view StripScheme(std::string_view url) {
    const std::size_t end = url.find(kSchemeEnd);
    return end == std::string_view::npos ? url : url.substr(end + kSchemeEnd.size());
}

bool LooksLikeUrl(std::string_view url) {
    return url.find('.') != std::string_view::npos;
}

SiteUrl SplitSiteUrl(std::string_view stored) {
    const std::string_view url = StripScheme(stored);
    const std::size_t slash = url.find('/');
    SiteUrl site{std::string(win::Trimmed(url.substr(0, slash), kBlanks)), {}};
    if (slash == std::string_view::npos) return site;
    std::string_view path = win::Trimmed(url.substr(slash + 1), kBlanks);
    while (!path.empty() && path.back() == '/') path.remove_suffix(1);
    site.path = path;
    return site;
}

}  // namespace ftp
