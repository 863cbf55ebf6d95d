#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "ftp/core/password.h"
#include "ftp/core/remote_names.h"
#include "ftp/core/server_text.h"
#include "ftp/core/site_list.h"
#include "iconv_code_pages.h"

namespace {

using ftp::ProposedLocalName;
using Texts = std::vector<std::array<const char*, 2>>;  // what comes in, what comes out

TEST(ScramblePassword, StartsAtTheSecondKeyCharacterAndKeepsZeroCodes) {
    EXPECT_EQ(ftp::ScramblePassword("A"), std::string(1, 'A' ^ 'n'));
    EXPECT_EQ(ftp::ScramblePassword("no847mn"), std::string(7, '\0'));
    EXPECT_EQ(ftp::ScramblePassword(std::string(7, '\0')), "no847mn");
}

TEST(StoredPassword, KeepsEveryByteInEveryCodePage) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) bytes += {static_cast<char>(i), static_cast<char>(i * 7)};
    for (const unsigned codePage : {1252U, 1251U, 932U, 936U, document::kUtf8}) {
        const IconvCodePages pages(codePage);
        EXPECT_EQ(ftp::ReadPassword(ftp::StoredPassword(bytes, pages), pages), bytes) << codePage;
    }
    EXPECT_EQ(ftp::StoredPassword("\xE9", IconvCodePages(1252)), "\u2021") << "E9 xor 6E is 87";
}

TEST(ServerText, IsUtf8OrInTheCodePageAndIsSentExactlyOrNotAtAll) {
    const IconvCodePages western(1252);
    EXPECT_EQ(ftp::ShownText("Ma\xC5\x82\x65.htm", western), "Małe.htm");
    EXPECT_EQ(ftp::ShownText("caf\xE9.htm", western), "café.htm");
    EXPECT_NE(ftp::ShownText("\x83", IconvCodePages(932)), "") << "it has to be visible";
    EXPECT_EQ(ftp::SentName("café.htm", western), "caf\xE9.htm");
    EXPECT_EQ(ftp::SentName("Małe.htm", western), std::nullopt);
    EXPECT_EQ(ftp::SentName("Małe.htm", IconvCodePages(document::kUtf8)), "Małe.htm");
    EXPECT_EQ(ftp::SentName("\xED\xB3\xA9.htm", western), std::nullopt) << "a lone surrogate is no byte";
    EXPECT_EQ(ftp::SentName("a\r\nDELE b", western), std::nullopt);
    EXPECT_EQ(ftp::SentText("hasło", western), "hasło");
}

TEST(SiteUrl, IsSplitIntoHostAndPath) {
    for (const auto& [stored, parts] : Texts{{"ftp.host.org///", "ftp.host.org|"},
                                             {" ftp.host.org/my pages/a/ ", "ftp.host.org|my pages/a"},
                                             {"ftp.host.org//srv/www", "ftp.host.org|/srv/www"},
                                             {"ftp://ftp.host.org/a://b", "ftp.host.org|a://b"},
                                             {"/", "|"}}) {
        const ftp::SiteUrl site = ftp::SplitSiteUrl(stored);
        EXPECT_EQ(site.host + "|" + site.path, parts);
    }
    EXPECT_EQ(ftp::StripScheme("a://b://c"), "b://c");
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
    const IconvCodePages pages;
    ftp::RemoteListing listing(pages);
    for (const char* name : {".", "..", "", "a\r\nDELE b", "docs", "sub/"})
        EXPECT_TRUE(listing.add(name, 16));
    EXPECT_TRUE(listing.add("hidden", 16 | 2));
    EXPECT_TRUE(listing.add("..\\x", 0));
    EXPECT_TRUE(listing.add(std::string(10'000, 'x'), 0));
    EXPECT_TRUE(listing.add("caf\xE9", 0));
    EXPECT_TRUE(listing.add("café", 0));
    std::string names;
    std::string lines;
    for (const ftp::RemoteFile& file : std::move(listing).files()) {
        names += file.name + ",";
        lines += file.line + ",";
    }
    EXPECT_EQ(names, "docs,sub,hidden,..\\x,caf\xE9,café,") << "two names that look alike stay two";
    EXPECT_EQ(lines, "docs/,sub/,hidden,..\\x,café,café,");
    EXPECT_TRUE(ftp::OpensOnDoubleClick("docs/"));
    EXPECT_FALSE(ftp::OpensOnDoubleClick("site.files/"));
}

TEST(RemoteListing, EndsEvenWhereTheServerDoesNot) {
    const IconvCodePages pages;
    ftp::RemoteListing listing(pages);
    std::size_t asked = 0;
    while (listing.add(asked % 2 == 0 ? "x" : ".", 0)) ASSERT_LE(++asked, ftp::kMaxListedEntries);
    EXPECT_EQ(std::move(listing).files().size(), ftp::kMaxListedEntries / 2);
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
                                             {"Małe.htm", "Małe.htm"},
                                             {"a\xED\xB2\x83.htm", "a_.htm"},
                                             {"%TEMP%.htm", "_TEMP_.htm"},
                                             {"100%.htm", "100%.htm"},
                                             {"console", "console"}})
        EXPECT_EQ(ProposedLocalName(remote), local);
    for (const char* device : {"con", "NUL.txt", "Com1", "aux .htm"})
        EXPECT_EQ(ProposedLocalName(device), "_" + std::string(device));
    for (const char* nothing : {"", ".", "..", "/", "a/", "C:", ". . .", "   "})
        EXPECT_EQ(ProposedLocalName(nothing), "download") << nothing;
    EXPECT_EQ(ProposedLocalName(std::string(10'000, 'x') + ".html"),
              std::string(ftp::kMaxLocalName - 5, 'x') + ".html");
    EXPECT_EQ(ProposedLocalName(std::string(ftp::kMaxLocalName - 1, 'x') + "é"),
              std::string(ftp::kMaxLocalName - 1, 'x'))
        << "no character is cut in two";
}

}  // namespace
