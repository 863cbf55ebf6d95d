#include <optional>

#include "e2e/quillon.h"
#include "forms/frmUpload.h"
#include "menu_ids.h"

namespace {

constexpr char kSites[] = "Software\\VB and VBA Program Settings\\Quillon\\FTP Sites";

class PublishingTest : public QuillonTest {
 protected:
    void SetUp() override {
        QuillonTest::SetUp();
        address_ = Environment("QUILLON_FTP_ADDRESS");
        if (address_.empty()) GTEST_SKIP() << "no FTP server: port 21 is in use everywhere or takes root";
        const std::string examples = Environment("QUILLON_EXE") + "\\..\\..\\examples\\";
        writeFile(scratch("index.htm"), readFile(examples + "index.htm"));
        quillon_.emplace(scratch("index.htm"));
    }
    Quillon& quillon() { return *quillon_; }

    void addSite() {
        quillon().choose("Upload/Add A Site");
        const HWND dialog = quillon().waitForDialog("ADD An Upload Site");
        for (const std::string& text : {address_ + "/own", std::string("user"), std::string("secret")}) {
            quillon().typeText(text);
            quillon().pressKey(VK_TAB);
        }
        quillon().pressKey(VK_SPACE);  // checks "Save Password"
        quillon().pressKey(VK_RETURN);
        ASSERT_TRUE(seen::Until([&] { return !::IsWindow(dialog); }));
    }
    // Once the files are listed.
    bool isReady() {
        return seen::Until([&] {
            form_ = seen::Titled(quillon().process(), "Quillon FTP - - - - -");
            return form_ && ::IsWindowEnabled(::GetDlgItem(form_, cmdRefresh));
        });
    }
    void click(int button) { ::PostMessageA(::GetDlgItem(form_, button), BM_CLICK, 0, 0); }
    // Chooses a command of the list's menus for a line.
    void choose(const std::string& line, int item) {
        ASSERT_TRUE(isReady());
        ASSERT_NE(::SendMessageA(::GetDlgItem(form_, lstRemoteFiles), LB_SELECTSTRING,
                                 static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(line.c_str())),
                  LB_ERR)
            << line;
        ::PostMessageA(form_, WM_COMMAND, static_cast<WPARAM>(item), 0);
    }
    void answerWith(const std::string& title, const std::string& text) {
        const HWND box = quillon().waitForBox(title);
        quillon().typeText(text);
        quillon().pressKey(VK_RETURN);
        EXPECT_TRUE(seen::Until([&] { return !::IsWindow(box); }));
    }
    void upload() {
        ASSERT_TRUE(isReady());
        click(cmdUp);
        EXPECT_EQ(quillon().answer("Quillon", IDOK), "Upload Complete");
        EXPECT_TRUE(
            seen::Until([&] { return seen::TextOf(::GetDlgItem(form_, txtCurDir)) == "Upload Complete"; }));
    }
    static std::string onServer(const std::string& name) {
        return Environment("QUILLON_FTP_FOLDER") + "\\own\\" + name;
    }
    static bool sitesAreStored() {
        HKEY key = nullptr;
        if (::RegOpenKeyA(HKEY_CURRENT_USER, kSites, &key) != ERROR_SUCCESS) return false;
        ::RegCloseKey(key);
        return true;
    }

 private:
    std::string address_;
    std::optional<Quillon> quillon_;
    HWND form_ = nullptr;
};

TEST_F(PublishingTest, APageIsPublishedChangedAndFetchedAgain) {
    addSite();
    quillon().choose("Upload/Upload File");
    upload();
    const std::string changed =
        "<!-- new -->" + readFile(onServer("index.htm")) + "\n";  // a save adds a line end
    ::SetForegroundWindow(quillon().window());
    quillon().typeText("<!-- new -->");
    ASSERT_TRUE(seen::Until([&] { return quillon().pageText().substr(0, 12) == "<!-- new -->"; }));
    quillon().pressKey('S', true);
    ASSERT_TRUE(quillon().shows("Saved :  " + scratch("index.htm")));
    upload();
    EXPECT_EQ(readFile(onServer("index.htm")), changed);

    choose("index.htm", mnuRClist + 2);
    quillon().chooseFile("Save File As...", scratch("fetched.htm"));
    EXPECT_EQ(quillon().answer("TASK COMPLETE", IDOK), "Download of index.htm is complete.");
    EXPECT_EQ(readFile(scratch("fetched.htm")), readFile(scratch("index.htm")));

    choose("index.htm", mnuRClist + 3);
    answerWith("FILENAME CHANGE", "page.htm");
    EXPECT_EQ(quillon().answer("CONFIRMATION", IDOK), "File has been Renamed");
    EXPECT_EQ(readFile(onServer("page.htm")), changed);
    ASSERT_TRUE(isReady());
    click(cmdMakeDir);
    answerWith("NEW FOLDER", "pictures");
    EXPECT_EQ(quillon().answer("CONFIRMATION", IDOK), "New Directory [ pictures ] successfully created.");
    choose("pictures/", mnuDirDelete);
    EXPECT_EQ(quillon().answer("DELETION CONFIRMATION", IDYES),
              "Are you sure you want to delete the folder\r\npictures/ ?");
    EXPECT_EQ(quillon().answer("Quillon", IDOK),
              "The Directory:\r\n[ pictures/ ]\r\nwas successfully Deleted.");
    EXPECT_EQ(::GetFileAttributesA(onServer("pictures").c_str()), INVALID_FILE_ATTRIBUTES);

    EXPECT_TRUE(sitesAreStored());
    quillon().choose(mnuUploadSites);
    const HWND site = quillon().waitForDialog("FTP Site");
    ::PostMessageA(seen::Child(site, "Delete", "Button"), BM_CLICK, 0, 0);
    answerWith("Quillon", "secret");
    EXPECT_TRUE(seen::Until([&] { return !::IsWindow(site); }));
    EXPECT_FALSE(sitesAreStored());
}

}  // namespace
