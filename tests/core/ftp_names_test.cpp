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

TEST(ScramblePassword, StartsAtTheSecondKeyCharacterAndUndoesItself) {
    EXPECT_EQ(ftp::ScramblePassword("A"), std::string(1, 'A' ^ 'n'));
    EXPECT_EQ(ftp::ScramblePassword("no847mn"), std::string(7, '\0'));
    std::string everyByte;
    for (int i = 0; i < 256; ++i) everyByte += static_cast<char>(i);
    const std::string scrambled = ftp::ScramblePassword(everyByte);
    EXPECT_NE(scrambled, everyByte);
    EXPECT_EQ(ftp::ScramblePassword(scrambled), everyByte);
    EXPECT_EQ(ftp::ScramblePassword(""), "");
}

TEST(SiteUrl, IsTakenApartForConnecting) {
    const auto split = [](std::string_view stored) {
        const ftp::SiteUrl site = ftp::SplitSiteUrl(stored);
        return site.host + "|" + site.path;
    };
    EXPECT_EQ(split("ftp.host.org"), "ftp.host.org|");
    EXPECT_EQ(split("ftp.host.org/"), "ftp.host.org|");
    EXPECT_EQ(split("ftp.host.org///"), "ftp.host.org|");
    EXPECT_EQ(split(" ftp.host.org/my pages/a/ "), "ftp.host.org|my pages/a");
    EXPECT_EQ(split("ftp.host.org//srv/www"), "ftp.host.org|/srv/www");
    EXPECT_EQ(split("ftp://ftp.host.org/a://b"), "ftp.host.org|a://b");
    EXPECT_EQ(split("  "), "|");
    EXPECT_EQ(split("/"), "|");
}

TEST(SiteUrl, LosesItsSchemeAndNeedsADot) {
    EXPECT_EQ(ftp::StripScheme("ftp://host.org/pub"), "host.org/pub");
    EXPECT_EQ(ftp::StripScheme("a://b://c"), "b://c");
    EXPECT_EQ(ftp::StripScheme("host.org:/x"), "host.org:/x");
    EXPECT_TRUE(ftp::LooksLikeUrl("host.org"));
    EXPECT_FALSE(ftp::LooksLikeUrl("localhost"));
}

TEST(RemotePath, MoveUpLeadsToTheParentAndNeverAboveTheStart) {
    const auto above = [](std::string_view current, std::string_view root) {
        return ftp::DirectoryAbove(current, root).value_or("(none)");
    };
    EXPECT_EQ(above("/docs", "/"), "/");
    EXPECT_EQ(above("/a/b", "/"), "/a");
    EXPECT_EQ(above("/a/b/", "/"), "/a");
    EXPECT_EQ(above("/a//b", "/"), "/a");
    EXPECT_EQ(above("/", "/"), "(none)");
    EXPECT_EQ(above("//", "/"), "(none)");
    EXPECT_EQ(above("/home/u", "/home/u/"), "(none)");
    EXPECT_EQ(above("/home/u/x", "/home/u"), "/home/u");
    EXPECT_EQ(above("/home/u2", "/home/u"), "/home/u");
    EXPECT_EQ(above("/srv/data", "/home/u"), "/srv");
    EXPECT_EQ(above("/srv", "/home/u"), "/home/u");
    EXPECT_EQ(above("/", "/home/u"), "/home/u");
    EXPECT_EQ(above("docs", "/home"), "/home");
    EXPECT_EQ(above("/", ""), "(none)");
    EXPECT_EQ(above("docs", ""), "(none)");
}

TEST(RemotePath, LinesAndNames) {
    EXPECT_EQ(ftp::JoinRemote("/a", "b c"), "/a/b c");
    EXPECT_EQ(ftp::JoinRemote("/", "b"), "//b");
    EXPECT_TRUE(ftp::IsDirectoryLine("docs/"));
    EXPECT_FALSE(ftp::IsDirectoryLine("docs"));
    EXPECT_EQ(ftp::NameOfLine("docs/"), "docs");
    EXPECT_EQ(ftp::NameOfLine("index.htm"), "index.htm");
    EXPECT_TRUE(ftp::OpensOnDoubleClick("docs/"));
    EXPECT_FALSE(ftp::OpensOnDoubleClick("site.files/"));
}

TEST(RemoteListing, MarksDirectoriesAndLeavesOutWhatNoCommandCanName) {
    ftp::RemoteListing listing;
    for (const char* name : {".", "..", "", "a\r\nDELE b", "docs"}) EXPECT_TRUE(listing.add(name, 16));
    EXPECT_TRUE(listing.add("hidden", 16 | 2));
    EXPECT_TRUE(listing.add("..\\x", 0));
    EXPECT_TRUE(listing.add("sub/", 16));
    EXPECT_TRUE(listing.add(std::string(10'000, 'x'), 0));
    EXPECT_EQ(listing.lines(), (std::vector<std::string>{"docs/", "hidden", "..\\x", "sub/"}));
}

TEST(RemoteListing, EndsEvenWhereTheServerDoesNot) {
    ftp::RemoteListing listing;
    std::size_t asked = 0;
    while (listing.add(asked % 2 == 0 ? "x" : ".", 0)) ASSERT_LE(++asked, ftp::kMaxListedEntries);
    EXPECT_FALSE(listing.add("y", 0));
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

TEST(ProposedLocalName, NeverLeavesTheFolderOfTheDialog) {
    EXPECT_EQ(ProposedLocalName("index.htm"), "index.htm");
    EXPECT_EQ(ProposedLocalName("..\\x"), "x");
    EXPECT_EQ(ProposedLocalName("/etc/x"), "x");
    EXPECT_EQ(ProposedLocalName("C:\\Windows\\x"), "x");
    EXPECT_EQ(ProposedLocalName("C:x"), "x");
    for (const char* nothing : {"", ".", "..", "/", "a/", "C:", ". . .", "   "})
        EXPECT_EQ(ProposedLocalName(nothing), "download") << nothing;
}

TEST(ProposedLocalName, HoldsNothingThatWindowsForbids) {
    EXPECT_EQ(ProposedLocalName("a<b>\"c|d?e*.htm\x01\x7F"), "a_b__c_d_e_.htm__");
    EXPECT_EQ(ProposedLocalName(std::string("a\0b", 3)), "a_b");
    EXPECT_EQ(ProposedLocalName("  page.htm . "), "page.htm");
    EXPECT_EQ(ProposedLocalName(".htaccess"), ".htaccess");
    EXPECT_EQ(ProposedLocalName("caf\xE9.htm"), "caf\xE9.htm");
    EXPECT_EQ(ProposedLocalName("%TEMP%.htm"), "_TEMP_.htm");
    EXPECT_EQ(ProposedLocalName("100%.htm"), "100%.htm");
    for (const char* device : {"con", "NUL.txt", "Com1", "lpt\xB9.htm", "aux .htm", "CONIN$"})
        EXPECT_EQ(ProposedLocalName(device), "_" + std::string(device));
    EXPECT_EQ(ProposedLocalName("console"), "console");
    EXPECT_EQ(ProposedLocalName("com10"), "com10");
}

TEST(ProposedLocalName, KeepsTheExtensionOfALongName) {
    const std::string name = ProposedLocalName(std::string(10'000, 'x') + ".html");
    EXPECT_EQ(name, std::string(ftp::kMaxLocalName - 5, 'x') + ".html");
    EXPECT_EQ(ProposedLocalName("a." + std::string(10'000, 'x')).size(), ftp::kMaxLocalName);
}

TEST(FillNameBuffer, NeverRunsOver) {
    std::array<char, 1024> dialog{};
    ftp::FillNameBuffer(dialog, "index.htm");
    EXPECT_EQ(std::string(dialog.data()), "index.htm" + std::string(1014, ' '));

    std::array<char, 2048> large{};
    ftp::FillNameBuffer(large, "a.htm");
    EXPECT_EQ(std::string(large.data()), "a.htm" + std::string(1024, ' '));

    std::array<char, 4> tiny{'?', '?', '?', '?'};
    ftp::FillNameBuffer(tiny, "index.htm");
    EXPECT_EQ(std::string(tiny.data()), "ind");
    ftp::FillNameBuffer(std::span<char>(tiny).first(0), "index.htm");
}

}  // namespace
