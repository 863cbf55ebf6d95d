#include "document/system_code_pages.h"
#include "forms/frmCrypt.h"
#include "forms/frmToUp.h"
#include "ftp/core/password.h"
#include "ftp/frmCrypt.h"
#include "ftp/frmToUp.h"
#include "ftp/site_store.h"
#include "win/dialog.h"
#include "win/ftp_test.h"
#include "win/message_loop.h"

namespace {

class FtpSitesTest : public AppTest {
 protected:
    HWND dialog() { return seen::Dialog(::GetCurrentProcessId(), "ADD An Upload Site"); }
    void fill(int box, const char* text) { ::SetDlgItemTextA(dialog(), box, text); }
    void enter() { ::SendMessageA(::GetDlgItem(dialog(), cmdSetVal), BM_CLICK, 0, 0); }
    std::string complaint(const std::string& title) {
        return said([&] { enter(); }, title);
    }
};

TEST_F(FtpSitesTest, ASiteIsAddedOnceItsFieldsAreRightAndOnlyOnce) {
    frmCrypt::open(main());
    EXPECT_EQ(complaint("REMINDER"), "You need to enter an FTP URL.");
    fill(txtURL, "ftp.sandholm.example");
    EXPECT_EQ(complaint("REMINDER"), "You need to enter a USER NAME.");
    fill(txtName, "keeper");
    ::CheckDlgButton(dialog(), chkPass, BST_CHECKED);
    EXPECT_EQ(complaint("REMINDER"), "You need to enter a PASSWORD to save it.");
    ::SetDlgItemTextW(dialog(), txtPassWord, L"l\u00E4mp \u0142");
    enter();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(main().menu().caption(mnuUploadSites), "ftp.sandholm.example");
    const std::string stored = ftp::FindSite(ftp::ReadSections(), 0)->storedPassword;
    EXPECT_EQ(ftp::ReadPassword(stored, document::SystemCodePages()), "lämp ł") << "in UTF-8 where needed";
    frmCrypt::open(main());
    fill(txtURL, "ftp.sandholm.example");
    fill(txtName, "other");
    EXPECT_EQ(complaint("REDUNDANT LOCATION"), "There is already an entry for ftp.sandholm.example.");
    EXPECT_EQ(ftp::FindSite(ftp::ReadSections(), 0)->name, "keeper");
}

TEST_F(FtpSitesTest, TheUrlIsCheckedWhenTheFocusLeavesTheDialog) {
    newPage("");
    frmCrypt::open(main());
    const HWND form = dialog();
    const auto leave = [&](const char* url) {
        ::SetFocus(::GetDlgItem(form, txtURL));
        fill(txtURL, url);
        ::SetFocus(active().txtPad().hwnd());
        win::RunPending();
        return seen::TextOf(::GetDlgItem(form, txtURL));
    };
    EXPECT_EQ(leave("ftp://ftp.sandholm.example/www"), "ftp.sandholm.example/www");
    EXPECT_EQ(said([&] { EXPECT_EQ(leave("sandholm"), ""); }, "FTP URL NEEDED"),
              "You must enter a valid FTP URL, for example: \r\nftp.example.com");
    EXPECT_EQ(::GetFocus(), ::GetDlgItem(form, txtURL));
}

TEST_F(FtpSitesTest, ConnectGoesToTheSiteThatIsShown) {
    AddSite("ftp.sandholm.example", "keeper", "");
    ftp::LoadSiteMenu(main());
    const auto connect = [&](HWND form) {
        AddSite("other.example", "keeper", "");  // takes the place of that one
        ::PostMessageA(form, WM_COMMAND, cmdUpload, 0);
    };
    heard([&] { run(mnuUploadSites); }, {{"FTP Site", connect}});
    EXPECT_TRUE(seen::Child(window(kFtpTitle), "Site: ftp.sandholm.example"));
}

TEST_F(FtpSitesTest, ASiteIsDeletedOnlyWithItsPassword) {
    AddSite("ftp.sandholm.example", "keeper", "lamp");
    const auto clickDelete = [](HWND form) { ::PostMessageA(::GetDlgItem(form, cmdDelete), BM_CLICK, 0, 0); };
    const auto heard = User::hears([&] { frmToUp::ask(main(), "ftp.sandholm.example"); },
                                   {{"FTP Site", clickDelete},
                                    User::enter("Quillon", "Lamp"),
                                    User::press("INCORRECT PASSWORD", IDOK),
                                    {"FTP Site", clickDelete},
                                    User::enter("Quillon", "lamp")});
    EXPECT_EQ(heard[1], "Enter Site Password To Delete ftp.sandholm.example");
    EXPECT_EQ(heard[2], "Check password and try again.");
    EXPECT_FALSE(ftp::FindSite(ftp::ReadSections(), 0));
}

}  // namespace
