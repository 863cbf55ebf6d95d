#include "forms/frmUpload.h"
#include "ftp/frmUpload.h"
#include "ftp/site_store.h"
#include "win/drop_target.h"
#include "win/ftp_test.h"
#include "win/message_loop.h"

namespace {

class FtpWindowTest : public FtpTest {};

TEST_F(FtpWindowTest, OpensOnTheStoredSiteBesideTheMainWindow) {
    ASSERT_TRUE(openHonest({"a.htm", "b.htm", "docs/", "site.files/"}));
    EXPECT_EQ(textOf(txtCurDir), "/own");
    EXPECT_EQ(lines(), "a.htm,b.htm,docs/,site.files/");
    EXPECT_EQ(ftp::LastUsedIndex(ftp::ReadSections()), 0);
    EXPECT_TRUE(main().menu().isChecked(mnuUploadSites));
    EXPECT_TRUE(::GetWindowLongPtrA(ftpWindow(), GWL_EXSTYLE) & WS_EX_TOPMOST);
    EXPECT_NEAR(seen::PlaceOf(ftpWindow()).right, seen::PlaceOf(main().mainHwnd()).right, 1);
    EXPECT_NEAR(seen::PlaceOf(ftpWindow()).top, seen::PlaceOf(main().mainHwnd()).top, 1);
    EXPECT_EQ(textOf(lblFtpSite), "Site: 127.0.0.1/own");
    EXPECT_FALSE(::IsWindowEnabled(control(cmdUpDir)));
    EXPECT_FALSE(::IsWindowEnabled(control(cmdPassword)));
}

TEST_F(FtpWindowTest, WalksDirectoriesAndNeverAboveTheStart) {
    ASSERT_TRUE(openHonest({"docs/", "docs/deep/", "docs/deep/x.htm", "site.files/"}));
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
    EXPECT_EQ(textOf(txtCurDir), "/own") << "a directory with a dot in its name is not entered";
}

TEST_F(FtpWindowTest, ListsWhatCannotBeEnteredAndFollowsLinks) {
    AddSite("127.0.0.1", "user", "secret");
    ASSERT_TRUE(reopen());
    const std::string all = "," + lines() + ",";
    EXPECT_NE(all.find(",closed/,"), std::string::npos) << all;
    EXPECT_NE(all.find(",link/,"), std::string::npos) << "a link to a directory is found by the probe";
    EXPECT_EQ(said([&] { doubleClick("closed/"); }, "Quillon Note:"), "Cannot access Directory!");
    click(cmdShut);
    EXPECT_EQ(textOf(txtCurDir), "NO SITE ACTIVE");
    EXPECT_EQ(lines(), "");
    EXPECT_FALSE(::IsWindowEnabled(control(cmdUp)));
}

TEST_F(FtpWindowTest, MakesRenamesAndDeletes) {
    ASSERT_TRUE(openHonest({"a.htm", "full/", "full/x"}));
    const User::Act yes = User::press("DELETION CONFIRMATION", IDYES);
    const auto make = [&](const std::string& name, const std::string& title) {
        return heard([&] { click(cmdMakeDir); }, {User::enter("NEW FOLDER", name), User::press(title, IDOK)});
    };
    EXPECT_EQ(make("new", "CONFIRMATION"), "New Directory [ new ] successfully created.");
    EXPECT_EQ(make("full", "DIRECTORY NOT MADE"), "Could not create the Directory.");
    EXPECT_EQ(say("a.htm", mnuRClist + 3,
                  {User::enter("FILENAME CHANGE", "c.htm"), User::press("CONFIRMATION", IDOK)}),
              "File has been Renamed");
    EXPECT_EQ(readFile(onServer("c.htm")), "The file a.htm");
    EXPECT_EQ(say("c.htm", mnuRClist, {User::press("SIZE of c.htm is:", IDOK)}), "Approximately 14 Bytes");
    EXPECT_EQ(say("c.htm", mnuRClist + 5, {User::press("DELETION CONFIRMATION", IDNO)}),
              "Are you sure you want to delete c.htm ?");
    EXPECT_EQ(lines(), "c.htm,full/,new/");
    EXPECT_EQ(say("c.htm", mnuRClist + 5, {yes, User::press("DELETION CONFIRMATION", IDOK)}),
              "The File [ c.htm ] was Deleted.");
    EXPECT_EQ(say("new/", mnuDirDelete, {yes, User::press("Quillon", IDOK)}),
              "The Directory:\r\n[ new/ ]\r\nwas successfully Deleted.");
    EXPECT_EQ(say("full/", mnuDirDelete, {yes, User::press("FAILED TO DELETE", IDOK)}),
              "Could not delete file\r\nA directory must be not contain any files in order to delete...\r\n"
              "Are you sure this folder is empty?");
    EXPECT_EQ(lines(), "full/");
    EXPECT_EQ(textOf(txtCurDir), "/own");
}

TEST_F(FtpWindowTest, UploadsThePageAsItIsOnTheDisk) {
    ASSERT_TRUE(openHonest());
    EXPECT_EQ(saidToClick(cmdUp, "NO FILE OPEN"), "No file is currently open.");
    newPage("never saved");
    EXPECT_EQ(saidToClick(cmdUp, "PRECAUTION"), "The Current page SHOULD BE SAVED before uploading.");
    savePage("my page.htm", "<P>caf\xE9</P>\r\n");
    type("changed");
    click(upType);
    EXPECT_EQ(saidToClick(cmdUp, "Quillon"), "Upload Complete");
    EXPECT_EQ(textOf(txtCurDir), "Upload Complete");
    EXPECT_EQ(readFile(onServer("my page.htm")), "<P>caf\xE9</P>\n")
        << "sent as text although Binary is chosen, so it has the server's line ends";
}

TEST_F(FtpWindowTest, UploadsWhatIsDroppedOnTheList) {
    ASSERT_TRUE(openHonest());
    const std::string bytes = "GIF89a\r\n\n\r";
    writeFile(scratch("Lamp.GIF"), bytes);
    writeFile(scratch("page.htm"), "<P>\r\n");
    writeFile(scratch("empty.htm"), "");
    EXPECT_EQ(saidToDrop({scratch("Lamp.GIF"), scratch("page.htm"), scratch("empty.htm")}, "Quillon"),
              "Uploading Completed.");
    EXPECT_EQ(lines(), "Lamp.GIF,empty.htm,page.htm");
    EXPECT_EQ(readFile(onServer("Lamp.GIF")), bytes);
    EXPECT_EQ(readFile(onServer("page.htm")), "<P>\n") << "sent as text, so it has the server's line ends";
    const auto dropAndTakeBack = [&] {
        win::SendDropped(control(lstRemoteFiles), {scratch("page.htm")});
        ::DeleteFileA(scratch("page.htm").c_str());
        win::RunPending();
    };
    ::DeleteFileA(onServer("page.htm").c_str());
    EXPECT_EQ(said(dropAndTakeBack), "Upload of page.htm Complete");
    EXPECT_EQ(readFile(onServer("page.htm")), "<P>\n");
    EXPECT_EQ(saidToDrop({}, "Quillon Note:"), "Unknown Object");
}

TEST_F(FtpWindowTest, WhatHasGoneFromTheServerMeanwhileIsReported) {
    ASSERT_TRUE(openHonest({"a.htm", "docs/", "docs/deep/"}));
    doubleClick("docs/");
    doubleClick("deep/");
    DeleteTree(onServer("docs"));
    EXPECT_EQ(saidToClick(cmdUpDir, "Quillon Note:"), "Cannot find it!");
    ::SendMessageA(ftpWindow(), WM_COMMAND, IDCANCEL, 0);
    reopen();
    ::DeleteFileA(onServer("a.htm").c_str());
    EXPECT_EQ(say("a.htm", mnuRClist, {User::press("Quillon", IDOK)}),
              "Could not retrieve requested information.");
}

TEST_F(FtpWindowTest, AsksForAPasswordThatIsNotStored) {
    AddSite("127.0.0.1", "user", "");
    reopen();
    EXPECT_EQ(textOf(txtCurDir), "NOT CONNECTED");
    EXPECT_EQ(textOf(txtPassword), "ENTER PASSWORD HERE");
    EXPECT_EQ(::SendMessageA(control(txtPassword), EM_GETPASSWORDCHAR, 0, 0), 0);
    EXPECT_EQ(saidToClick(cmdPassword, "NO PASSWORD GIVEN"), "Must enter PASSWORD to use FTP.");
    ::SetWindowTextA(control(txtPassword), "secret");
    EXPECT_NE(::SendMessageA(control(txtPassword), EM_GETPASSWORDCHAR, 0, 0), 0);
    click(cmdPassword);
    EXPECT_EQ(textOf(txtCurDir), "/");
    EXPECT_EQ(textOf(txtPassword), "");
    EXPECT_EQ(ftp::LastUsedIndex(ftp::ReadSections()), 0);
}

TEST_F(FtpWindowTest, AnEmptyListOpensNothing) {
    EXPECT_EQ(said([&] { reopen(); }, "NO SITES LISTED"),
              "Must enter NEW FTP info before you can upload files.");
    EXPECT_EQ(ftpWindow(), nullptr);
}

TEST_F(FtpWindowTest, ThereIsOneWindowForAllSites) {
    const HWND first = openHonest({"a.htm"});
    frmUpload::open(main(), 0, HonestSession);
    EXPECT_EQ(ftpWindow(), first);
    AddSite("127.0.0.1", "user", "secret");
    frmUpload::open(main(), 1, HonestSession);
    EXPECT_EQ(ftpWindow(), first) << "whose site is the second of the list now";
    frmUpload::open(main(), 0, HonestSession);
    EXPECT_EQ(textOf(txtCurDir), "/");
    EXPECT_FALSE(::IsWindow(first));
    ::SendMessageA(main().mainHwnd(), WM_CLOSE, 0, 0);
    EXPECT_EQ(ftpWindow(), nullptr);
}

}  // namespace
