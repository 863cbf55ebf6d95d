#include <gtest/gtest.h>

#include <array>

#include "ftp/core/local_name.h"
#include "ftp/core/remote_listing.h"
#include "ftp/core/remote_path.h"
#include "ftp/core/scramble.h"
#include "ftp/core/site_url.h"
#include "ftp/core/transfer_type.h"

namespace {

using ftp::ProposedLocalName;
using Texts = std::vector<std::array<const char*, 2>>;  // what comes in, what comes out

TEST(ScramblePassword, StartsAtTheSecondKeyCharacterAndGoesThroughCodesZero) {
    EXPECT_EQ(ftp::ScramblePassword("A"), std::string(1, 'A' ^ 'n'));
    EXPECT_EQ(ftp::ScramblePassword("no847mn"), std::string(7, '\0'));
    EXPECT_EQ(ftp::ScramblePassword(std::string(7, '\0')), "no847mn");
}

TEST(SiteUrl, IsTakenApartForConnecting) {
    for (const auto& [stored, parts] : Texts{{"ftp.host.org///", "ftp.host.org|"},
                                             {" ftp.host.org/my pages/a/ ", "ftp.host.org|my pages/a"},
                                             {"ftp.host.org//srv/www", "ftp.host.org|/srv/www"},
                                             {"ftp://ftp.host.org/a://b", "ftp.host.org|a://b"},
                                             {"/", "|"}}) {
        const ftp::SiteUrl site = ftp::SplitSiteUrl(stored);
        EXPECT_EQ(site.host + "|" + site.path, parts);
    }
    EXPECT_EQ(ftp::StripScheme("a://b://c"), "b://c");
    EXPECT_EQ(ftp::StripScheme("host.org:/x"), "host.org:/x");
    EXPECT_TRUE(ftp::LooksLikeUrl("host.org"));
    EXPECT_FALSE(ftp::LooksLikeUrl("localhost"));
}

TEST(RemotePath, MoveUpLeadsToTheParentAndNeverAboveTheStart) {
    const std::array<const char*, 3> kSteps[] = {{"/docs", "/", "/"},
                                                 {"/a/b/", "/", "/a"},
                                                 {"/a//b", "/", "/a"},
                                                 {"//", "/", "(none)"},
                                                 {"/home/u", "/home/u/", "(none)"},
                                                 {"/home/u/x", "/home/u", "/home/u"},
                                                 {"/home/u2", "/home/u", "/home/u"},
                                                 {"/srv/data", "/home/u", "/srv"},
                                                 {"/srv", "/home/u", "/home/u"},
                                                 {"/", "/home/u", "/home/u"},
                                                 {"docs", "/home", "/home"},
                                                 {"docs", "", "(none)"}};
    for (const auto& [current, root, above] : kSteps)
        EXPECT_EQ(ftp::DirectoryAbove(current, root).value_or("(none)"), above) << current << " in " << root;
}

TEST(RemoteListing, MarksDirectoriesAndLeavesOutWhatNoCommandCanName) {
    ftp::RemoteListing listing;
    for (const char* name : {".", "..", "", "a\r\nDELE b", "docs", "sub/"})
        EXPECT_TRUE(listing.add(name, 16));
    EXPECT_TRUE(listing.add("hidden", 16 | 2));
    EXPECT_TRUE(listing.add("..\\x", 0));
    EXPECT_TRUE(listing.add(std::string(10'000, 'x'), 0));
    EXPECT_EQ(listing.lines(), (std::vector<std::string>{"docs/", "sub/", "hidden", "..\\x"}));
    EXPECT_TRUE(ftp::OpensOnDoubleClick("docs/"));
    EXPECT_FALSE(ftp::OpensOnDoubleClick("site.files/"));
}

TEST(RemoteListing, EndsEvenWhereTheServerDoesNot) {
    ftp::RemoteListing listing;
    std::size_t asked = 0;
    while (listing.add(asked % 2 == 0 ? "x" : ".", 0)) ASSERT_LE(++asked, ftp::kMaxListedEntries);
    EXPECT_EQ(listing.lines().size(), ftp::kMaxListedEntries / 2);
}

TEST(TransferType, TheNameDecidesUnlessBinaryIsChosen) {
    using ftp::ChooseTransferType, ftp::TransferMode, ftp::TransferType;
    EXPECT_EQ(ChooseTransferType(TransferMode::ascii, "Photo.JPG"), TransferType::binary);
    EXPECT_EQ(ChooseTransferType(TransferMode::automatic, "a.class"), TransferType::binary);
    EXPECT_EQ(ChooseTransferType(TransferMode::automatic, "a.jpeg"), TransferType::ascii);
    EXPECT_EQ(ChooseTransferType(TransferMode::ascii, "jpg"), TransferType::ascii);
    EXPECT_EQ(ChooseTransferType(TransferMode::binary, "a.htm"), TransferType::binary);
}

TEST(ProposedLocalName, StaysInTheDialogsFolderAndHoldsNothingThatWindowsForbids) {
    for (const auto& [remote, local] : Texts{{"index.htm", "index.htm"},
                                             {"..\\x", "x"},
                                             {"/etc/x", "x"},
                                             {"C:x", "x"},
                                             {"a<b>\"c|d?e*.htm\x01\x7F", "a_b__c_d_e_.htm__"},
                                             {"  page.htm . ", "page.htm"},
                                             {".htaccess", ".htaccess"},
                                             {"caf\xE9.htm", "caf\xE9.htm"},
                                             {"%TEMP%.htm", "_TEMP_.htm"},
                                             {"100%.htm", "100%.htm"},
                                             {"console", "console"},
                                             {"com10", "com10"}})
        EXPECT_EQ(ProposedLocalName(remote), local);
    for (const char* device : {"con", "NUL.txt", "Com1", "lpt\xB9.htm", "aux .htm", "CONIN$"})
        EXPECT_EQ(ProposedLocalName(device), "_" + std::string(device));
    for (const char* nothing : {"", ".", "..", "/", "a/", "C:", ". . .", "   "})
        EXPECT_EQ(ProposedLocalName(nothing), "download") << nothing;
    EXPECT_EQ(ProposedLocalName(std::string(10'000, 'x') + ".html"),
              std::string(ftp::kMaxLocalName - 5, 'x') + ".html");
}

}  // namespace
