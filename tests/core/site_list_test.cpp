#include "ftp/core/site_list.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "site_store.h"

namespace {

using test::SiteStore;

bool Add(SiteStore& store, const std::string& url) {
    const ftp::Site site{0, url, "name of " + url, "pass of " + url};
    const ftp::SiteAddition addition = ftp::AddSite(store.read(), site);
    store.apply(addition.changes);
    return addition.added;
}

SiteStore StoreOfThree() {
    SiteStore store;
    for (const char* url : {"s2", "s1", "s0"}) EXPECT_TRUE(Add(store, url));
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

TEST(SiteList, EachOfThirteenAdditionsComesFirstAndTheMarkFollowsItsSite) {
    SiteStore store;
    for (int added = 1; added <= 13; ++added) {
        EXPECT_TRUE(Add(store, "n" + std::to_string(added)));
        if (added == 1) store.names()["99"] = "0";
        std::string expected;
        for (int i = 0; i < std::min(added, 12); ++i)
            expected += std::to_string(i) + "=n" + std::to_string(added - i) + " ";
        EXPECT_EQ(Listed(store), expected);
        EXPECT_EQ(Mark(store), std::to_string(added - 1)) << "even when its site has dropped out";
        EXPECT_EQ(ftp::MenuRows(store.read()).size(), static_cast<std::size_t>(std::min(added, 11)));
    }
}

TEST(SiteList, AddingAStoredAddressAgainRemovesTheMarkAndTheLastDeletionEverything) {
    SiteStore store = StoreOfThree();
    const SiteStore expected = store;
    store.names()["99"] = "1";
    EXPECT_FALSE(Add(store, "s2"));
    EXPECT_EQ(store.sections, expected.sections);
    EXPECT_TRUE(Add(store, "S2"));
    store.names()["99"] = "0";
    for (int left = 4; left > 0; --left) store.apply(ftp::RemoveSite(store.read(), 0));
    EXPECT_TRUE(store.sections.empty());
}

TEST(SiteList, ADamagedStoreKeepsPairsTogetherAndIsPutInOrderByTheNextChange) {
    SiteStore store;
    for (const char* key : {"0", "2", "5", "12"}) {
        const std::string url = std::string("s") + key;
        store.sites()[key] = url;
        store.names()[key] = "name of " + url;
        store.passes()[key] = "pass of " + url;
    }
    store.passes()["1"] = "of a site long gone";
    store.names()["007"] = store.sites()["note"] = store.passes()["note"] = "someone else's";
    store.names()["99"] = "5";
    EXPECT_EQ(Listed(store), "0=s0 2=s2 5=s5 12=s12 ");
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
    EXPECT_EQ(store.names().at("007"), "someone else's");
    store.passes().erase("1");
    store.apply(ftp::RemoveSite(store.read(), 0));
    EXPECT_EQ(ftp::FindSite(store.read(), 0)->storedPassword, "") << "not another site's";
}

TEST(SiteList, AMarkThatIsNoIndexCountsAsNone) {
    for (const char* text : {"-1", "abc", "2147483647", "1x", " 1"}) {
        SiteStore store = StoreOfThree();
        store.names()["99"] = text;
        EXPECT_EQ(Mark(store), "none");
        Add(store, "new");
        EXPECT_EQ(store.names().count("99"), 0U) << text;
    }
}

}  // namespace
