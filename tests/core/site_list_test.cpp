#include "ftp/core/site_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "site_store.h"

namespace {

using test::SiteStore;

ftp::Site NewSite(const std::string& url) {
    return {0, url, "name of " + url, "pass of " + url};
}

bool Add(SiteStore& store, const std::string& url) {
    const ftp::SiteAddition addition = ftp::AddSite(store.read(), NewSite(url));
    store.apply(addition.changes);
    return addition.added;
}

SiteStore StoreOf(int count) {
    SiteStore store;
    for (int i = count - 1; i >= 0; --i) Add(store, "s" + std::to_string(i));
    return store;
}

std::string Listed(const SiteStore& store) {
    std::string text;
    for (const ftp::Site& site : ftp::ReadSites(store.read())) {
        text += std::to_string(site.index) + "=" + site.url + " ";
        EXPECT_EQ(site.name, "name of " + site.url);
        EXPECT_EQ(site.storedPassword, "pass of " + site.url);
    }
    return text;
}

std::string Mark(const SiteStore& store) {
    const auto mark = ftp::LastUsedIndex(store.read());
    return mark ? std::to_string(*mark) : "none";
}

TEST(SiteList, TheFirstSiteIsWrittenAtZeroAndNothingElse) {
    SiteStore store;
    EXPECT_TRUE(Add(store, "host.org"));
    SiteStore expected;
    expected.put("0", "host.org", "name of host.org", "pass of host.org");
    EXPECT_EQ(store.sections, expected.sections);

    SiteStore marked;
    marked.names()["99"] = "3";
    Add(marked, "host.org");
    EXPECT_EQ(Mark(marked), "3");
}

TEST(SiteList, TheThirteenthSitePushesTheOldestOutAndTheMenuShowsOneLess) {
    SiteStore store = StoreOf(12);
    store.names()["99"] = "10";
    EXPECT_TRUE(Add(store, "new"));
    EXPECT_EQ(Listed(store), "0=new 1=s0 2=s1 3=s2 4=s3 5=s4 6=s5 7=s6 8=s7 9=s8 10=s9 11=s10 ");
    EXPECT_EQ(Mark(store), "11");
    const auto menu = ftp::MenuRows(store.read());
    ASSERT_EQ(menu.size(), 11U);
    EXPECT_EQ(menu.back().caption, "s9");
    EXPECT_TRUE(std::none_of(menu.begin(), menu.end(), [](const auto& row) { return row.checked; }));
}

TEST(SiteList, AnAddressStoredAlreadyCostsTheMarkAndNothingElse) {
    SiteStore store = StoreOf(3);
    SiteStore expected = store;
    store.names()["99"] = "1";
    EXPECT_FALSE(Add(store, "s2"));
    EXPECT_EQ(store.sections, expected.sections);
    EXPECT_TRUE(Add(store, "S2"));
}

TEST(SiteList, RemovingMovesTheMarkWithItsSite) {
    const auto markAfter = [](int mark, int removed) {
        SiteStore store = StoreOf(4);
        store.names()["99"] = std::to_string(mark);
        store.apply(ftp::RemoveSite(store.read(), removed));
        return Mark(store);
    };
    EXPECT_EQ(markAfter(2, 1), "1");
    EXPECT_EQ(markAfter(1, 1), "1");
    EXPECT_EQ(markAfter(0, 1), "0");
    EXPECT_EQ(markAfter(0, 3), "none");
}

TEST(SiteList, RemovingTheOnlySiteLeavesNoSection) {
    SiteStore store = StoreOf(1);
    store.names()["99"] = "0";
    store.apply(ftp::RemoveSite(store.read(), 0));
    EXPECT_TRUE(store.sections.empty());
    EXPECT_TRUE(ftp::MenuRows(store.read()).empty());
    EXPECT_TRUE(ftp::RemoveSite(store.read(), 0).empty());
}

// The steps written down once more in the plainest way, for stores that the program itself wrote.
struct PlainSteps {
    SiteStore store;

    std::string mark() {
        const auto& names = store.names();
        return names.count("99") != 0 ? names.at("99") : "";
    }
    void add(const ftp::Site& site) {
        if (store.sites().count("0") == 0) return store.put("0", site.url, site.name, site.storedPassword);
        const std::string last = mark();
        store.names().erase("99");
        const SiteStore old = store;
        for (const auto& [key, url] : store.sites()) {
            if (url == site.url) return;
        }
        store.put("0", site.url, site.name, site.storedPassword);
        for (auto& [name, section] : store.sections) {
            for (const auto& [key, value] : old.sections.at(name)) {
                if (key != "11") section[std::to_string(std::stoi(key) + 1)] = value;
            }
        }
        if (!last.empty()) store.names()["99"] = std::to_string(std::stoi(last) + 1);
    }
    void remove(int removed) {
        const std::string last = mark();
        store.names().erase("99");
        const SiteStore old = store;
        store.sections.clear();
        for (const auto& [name, section] : old.sections) {
            for (const auto& [key, value] : section) {
                const int index = std::stoi(key);
                if (index != removed) store.sections[name][std::to_string(index - (index > removed))] = value;
            }
        }
        if (removed + 1 >= static_cast<int>(old.sections.at("FTP Sites").size()) || last.empty()) return;
        store.names()["99"] = std::to_string(std::stoi(last) - (std::stoi(last) > removed));
    }
};

TEST(SiteList, AnySequenceOfChangesEndsInTheSameStoreAsThePlainSteps) {
    auto roll = [engine = std::mt19937(1)](int sides) mutable {
        return static_cast<int>(engine() % static_cast<unsigned>(sides));
    };
    SiteStore store;
    PlainSteps plain;
    for (int step = 0; step < 1500; ++step) {
        const int count = static_cast<int>(ftp::ReadSites(store.read()).size());
        const int action = roll(10);
        if (action < 5) {
            const ftp::Site site = NewSite("host" + std::to_string(roll(40)));
            store.apply(ftp::AddSite(store.read(), site).changes);
            plain.add(site);
        } else if (action < 8 && count > 0) {
            const int index = roll(count);
            store.apply(ftp::RemoveSite(store.read(), index));
            plain.remove(index);
        } else if (count > 0) {
            const std::string used = std::to_string(roll(std::min(count, 11)));
            store.names()["99"] = plain.store.names()["99"] = used;
        }
        std::erase_if(plain.store.sections, [](const auto& section) { return section.second.empty(); });
        ASSERT_EQ(store.sections, plain.store.sections) << "step " << step;
    }
}

TEST(SiteList, ADamagedStoreKeepsPairsTogetherAndIsPutInOrderByTheNextChange) {
    SiteStore store;
    for (const char* key : {"0", "2", "5", "12"}) {
        const std::string url = std::string("s") + key;
        store.put(key, url, "name of " + url, "pass of " + url);
    }
    store.passes()["1"] = "of a site long gone";
    store.names()["007"] = store.sites()["note"] = store.passes()["note"] = "someone else's";
    store.names()["99"] = "5";
    EXPECT_EQ(Listed(store), "0=s0 2=s2 5=s5 12=s12 ");
    EXPECT_EQ(ftp::FindSite(store.read(), 5)->url, "s5");
    EXPECT_FALSE(ftp::FindSite(store.read(), 1));
    const auto menu = ftp::MenuRows(store.read());
    ASSERT_EQ(menu.size(), 3U);
    EXPECT_TRUE(menu[2].index == 5 && menu[2].checked);

    SiteStore smaller = store;
    smaller.apply(ftp::RemoveSite(smaller.read(), 2));
    EXPECT_EQ(Listed(smaller), "0=s0 1=s5 2=s12 ");
    EXPECT_EQ(Mark(smaller), "1");
    for (int left = 3; left > 0; --left) smaller.apply(ftp::RemoveSite(smaller.read(), 0));
    EXPECT_EQ(smaller.sites(), (SiteStore::Section{{"note", "someone else's"}}));

    Add(store, "new");
    EXPECT_EQ(Listed(store), "0=new 1=s0 2=s2 3=s5 4=s12 ");
    EXPECT_EQ(Mark(store), "3");
    EXPECT_EQ(store.passes().count("12"), 0U);
    EXPECT_EQ(store.names().at("007"), "someone else's");
}

TEST(SiteList, ASiteWithoutAPasswordRowGetsNoneOfAnother) {
    SiteStore store = StoreOf(3);
    store.passes().erase("1");
    EXPECT_EQ(ftp::FindSite(store.read(), 1)->storedPassword, "");
    SiteStore shorter = store;
    shorter.apply(ftp::RemoveSite(shorter.read(), 2));
    EXPECT_EQ(shorter.passes().count("1"), 1U);
    store.apply(ftp::RemoveSite(store.read(), 0));
    EXPECT_EQ(ftp::FindSite(store.read(), 0)->storedPassword, "");
    EXPECT_EQ(ftp::FindSite(store.read(), 1)->storedPassword, "pass of s2");
}

TEST(SiteList, AMarkThatIsNoIndexCountsAsNone) {
    for (const char* text : {"-1", "abc", "2147483647", "1x", " 1"}) {
        SiteStore store = StoreOf(3);
        store.names()["99"] = text;
        EXPECT_EQ(Mark(store), "none");
        Add(store, "new");
        EXPECT_EQ(store.names().count("99"), 0U) << text;
    }
}

}  // namespace
