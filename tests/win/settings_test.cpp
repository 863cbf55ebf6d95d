#include "files/basMRU.h"
#include "settings/CRegSettings.h"
#include "settings/app_settings.h"
#include "win/app_test.h"

namespace {

class SettingsTest : public AppTest {};

TEST_F(SettingsTest, ValuesComeBackAsTheyWereSaved) {
    for (const std::string& value : {std::string("a\0b\0", 4), std::string(65536, 'x'),
                                     std::string("caf\u00E9 \u20AC \u0141\u65E5"), std::string()}) {
        ASSERT_TRUE(settings::Save("Section", "key", value));
        EXPECT_EQ(settings::Get("Section", "key", "fallback"), value);
        EXPECT_EQ(settings::GetAll("Section"), (std::vector<settings::Row>{{"key", value}}));
        ASSERT_TRUE(CRegSettings().SaveRegSetting("Section", "key", value));
        EXPECT_EQ(CRegSettings().GetRegSetting("Section", "key", "fallback"),
                  value.empty() ? "fallback" : value);
    }
}

TEST_F(SettingsTest, NumberedRowsComeInNumericOrder) {
    for (const char* key : {"10", "9", "0", "99", "2", "1"}) settings::Save("FTP Names", key, key);
    std::string order;
    for (const settings::Row& row : settings::GetAll("FTP Names")) order += row.key + " ";
    EXPECT_EQ(order, "0 1 2 9 10 99 ");
    EXPECT_TRUE(settings::DeleteKey("FTP Names", "99"));
    EXPECT_FALSE(settings::DeleteKey("FTP Names", "99"));
    EXPECT_TRUE(settings::DeleteSection("FTP Names"));
    EXPECT_EQ(settings::Get("FTP Names", "0", "none"), "none");
}

TEST_F(SettingsTest, CRegSettingsKnowsTheUnnamedValueAndWholeSections) {
    CRegSettings store;
    EXPECT_TRUE(store.SaveRegSetting("Files", "*", "unnamed"));
    EXPECT_EQ(store.GetRegSetting("Files", "*"), "unnamed");
    EXPECT_TRUE(store.SaveRegSetting("Files", "default_OPen", ".asp"));
    EXPECT_EQ(store.GetRegSetting("Files", "default_Open"), ".asp");
    EXPECT_TRUE(store.DeleteSetting("Files", "default_Open"));
    EXPECT_FALSE(store.DeleteSetting("Files", "default_Open"));
    EXPECT_TRUE(store.DeleteSetting("Files", ""));
    EXPECT_EQ(store.GetRegSetting("Files", "*", "gone"), "gone");
    store.setCompany("  Other  ");
    EXPECT_EQ(store.Company(), "Other");
    store.setCompany("   ");
    EXPECT_EQ(store.Company(), "Corvale");
}

class RecentFilesTest : public AppTest {
 protected:
    std::string makeFile(int number) {
        const std::string path = scratch("page" + std::to_string(number) + ".htm");
        writeFile(path, "x");
        return path;
    }
    // The digits of the pages that the menu lists; behind a "!" those of the store, where they differ.
    std::string listed() {
        std::string numbers;
        std::string stored;
        for (Command item = mnuFileMRU; item < mnuFileMRU + 8; ++item) {
            if (main().menu().isShown(item)) numbers += digit(main().menu().caption(item));
        }
        for (const settings::Row& row : settings::GetAll("Recent Files")) stored += digit(row.value);
        const bool same =
            stored == numbers && settings::Get("File Count", "Count") == std::to_string(stored.size());
        return same ? numbers : numbers + "!" + stored;
    }
    static char digit(const std::string& path) { return path[path.size() - 5]; }
};

TEST_F(RecentFilesTest, TheNewestSevenAreListedEachOnce) {
    for (int i = 1; i <= 8; ++i) basMRU::AddRecentFile(main(), makeFile(i));
    EXPECT_EQ(listed(), "8765432");
    basMRU::AddRecentFile(main(), scratch("PAGE6.htm"));
    EXPECT_EQ(listed(), "6875432") << "names that differ in case are the same file";
    ::DeleteFileA(scratch("page5.htm").c_str());
    basMRU::AddRecentFile(main(), makeFile(1));
    EXPECT_EQ(listed(), "1687432");
    basMRU::AddRecentFile(main(), main().temporaryFolder() + "view.htm");
    EXPECT_EQ(listed(), "1687432");
}

TEST_F(RecentFilesTest, ADamagedListDoesNoHarm) {
    settings::Save("File Count", "Count", "many");
    settings::Save("Recent Files", "x", makeFile(1));
    basMRU::LoadRecentFiles(main());
    settings::Save("File Count", "Count", "99");
    settings::Save("Recent Files", "7", makeFile(2));
    settings::Save("Recent Files", "12", "");
    basMRU::LoadRecentFiles(main());
    EXPECT_EQ(main().menu().caption(mnuFileMRU + 1), scratch("page2.htm"));
    basMRU::AddRecentFile(main(), makeFile(3));
    EXPECT_EQ(listed(), "32");
}

TEST_F(RecentFilesTest, AnItemOpensItsFileOnce) {
    basMRU::AddRecentFile(main(), makeFile(1));
    basMRU::AddRecentFile(main(), makeFile(2));
    run(mnuFileMRU + 2);
    EXPECT_EQ(active().Tag(), scratch("page1.htm"));
    EXPECT_EQ(listed(), "12");
    EXPECT_EQ(said(mnuFileMRU + 1), "That file is already open.");
    ::DeleteFileA(scratch("page2.htm").c_str());
    EXPECT_EQ(said(mnuFileMRU + 2), "File appears to have been moved or deleted.");
}

TEST_F(RecentFilesTest, TheFirstRunIsWelcomedOnce) {
    settings::DeleteSection("File Count");
    EXPECT_EQ(said([&] { basMRU::LoadRecentFiles(main()); }, "WELCOME TO THE QUILLON!"),
              "Start working, fast! \r\nThe help menu includes toolbar and feature descriptions,\r\nand "
              "Online Help is linked through the menu.\r\n\r\n           ... ENJOY!");
    EXPECT_EQ(settings::Get("File Count", "Count"), "0");
    basMRU::LoadRecentFiles(main());
}

}  // namespace
