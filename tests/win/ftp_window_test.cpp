#include "forms/frmUpload.h"
#include "ftp/site_store.h"
#include "win/ftp_test.h"

namespace {

class FtpWindowTest : public FtpTest {};

TEST_F(FtpWindowTest, OpensOnTheStoredSiteBesideTheMainWindow) {
    ASSERT_TRUE(openHonest({"a.htm", "b.htm", "docs/", "site.files/"}));
    EXPECT_EQ(textOf(txtCurDir), "/own");
    EXPECT_EQ(lines(), "a.htm,b.htm,docs/,site.files/");
    EXPECT_EQ(ftp::LastUsedIndex(ftp::ReadSections()), 0);
    EXPECT_TRUE(::GetWindowLongPtrA(ftpWindow(), GWL_EXSTYLE) & WS_EX_TOPMOST);
    RECT own{};
    RECT mainArea{};
    ::GetWindowRect(ftpWindow(), &own);
    ::GetWindowRect(main().mainHwnd(), &mainArea);
    EXPECT_NEAR(own.right, mainArea.right, 1);
    EXPECT_NEAR(own.top, mainArea.top, 1);
    EXPECT_EQ(textOf(cmdUp), "Upload Current Document");
    EXPECT_FALSE(::IsWindowEnabled(control(cmdUpDir)));
    EXPECT_FALSE(::IsWindowEnabled(control(cmdPassword)));
}

TEST_F(FtpWindowTest, WalksDirectoriesAndNeverAboveTheStart) {
    ASSERT_TRUE(openHonest({"docs/", "docs/deep/", "docs/deep/x.htm", "site.files/", "README"}));
    doubleClick("docs/");
    doubleClick("deep/");
    EXPECT_EQ(textOf(txtCurDir), "/own/docs/deep");
    EXPECT_EQ(lines(), "x.htm");
    click(cmdUpDir);
    EXPECT_EQ(textOf(txtCurDir), "/own/docs");
    click(cmdUpDir);
    EXPECT_EQ(textOf(txtCurDir), "/own");
    EXPECT_FALSE(::IsWindowEnabled(control(cmdUpDir)));
    doubleClick("site.files/");
    EXPECT_EQ(textOf(txtCurDir), "/own") << "a dot in the name keeps a directory shut";
    User user({User::press("Quillon Note:", IDOK)});
    doubleClick("README");
    EXPECT_EQ(user.heard().front(), "Cannot access Directory!");
    EXPECT_EQ(textOf(txtCurDir), "/own");
}

}  // namespace
