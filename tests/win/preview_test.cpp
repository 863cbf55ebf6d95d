#include "files/modPubFuncs.h"
#include "files/open_file.h"
#include "support/standin_browser.h"
#include "win/app_test.h"
#include "win/clipboard.h"
#include "win/message_loop.h"
#include "win/unique.h"

namespace {

constexpr char kFailure[] =
    "Browser initialization failed.\r\nIf problem persists, please contact Quillon Support.";

class PreviewTest : public AppTest {
 protected:
    std::string seenFolder() const { return scratch("seen"); }
    // A page on its file, with these words typed in front.
    frmChild& openPage(const std::string& name, const std::string& bytes, const std::string& typed = "") {
        writeFile(scratch(name), bytes);
        frmChild* page = files::OpenFile(main(), scratch(name));
        EXPECT_TRUE(page);
        type(typed);
        return *page;
    }
    bool copyIsThere() { return modPubFuncs::FileExists(scratch("$$index.htm")); }
    // Lets messages through until the copy has gone.
    bool copyGoes() {
        return seen::Until([&] {
            win::RunPending();
            return !copyIsThere();
        });
    }
    // The wait is over before its time.
    void passTime() {
        if (const HWND wait = ::FindWindowA("modPreview", nullptr)) ::SendMessageA(wait, WM_TIMER, 1, 0);
    }
};

TEST_F(PreviewTest, AnEditedPageIsShownFromACopyThatGoesAfterThreeSeconds) {
    const Browser browser(Browser::standIn(), seenFolder());
    const frmChild& page = openPage("index.htm", "<P>saved", "new ");
    const DWORD start = ::GetTickCount();
    run(tbrPreview);
    EXPECT_LT(::GetTickCount() - start, 2500U) << "the window is not held up";
    EXPECT_NE(browser.shown().find(scratch("$$index.htm")), std::string::npos);
    EXPECT_EQ(browser.page(), "new <P>saved\r\n");
    EXPECT_TRUE(copyIsThere());
    EXPECT_TRUE(copyGoes());
    EXPECT_GE(::GetTickCount() - start, 2900U);
    EXPECT_EQ(readFile(scratch("index.htm")), "<P>saved");
    EXPECT_TRUE(page.txtPad().isChanged()) << "the edits are still unsaved";
}

TEST_F(PreviewTest, AnUnchangedPageIsShownFromItsOwnFile) {
    const Browser browser(Browser::standIn(), seenFolder());
    openPage("index.htm", "<P>saved");
    run(tbrPreview);
    EXPECT_NE(browser.shown().find(scratch("index.htm")), std::string::npos);
    passTime();
    EXPECT_EQ(readFile(scratch("index.htm")), "<P>saved");
    run(mnuFileSave);
    run(tbrPreview);
    EXPECT_NE(browser.shown().find(scratch("index.htm")), std::string::npos);
    // Written by another program meanwhile: that is not for a preview to undo.
    writeFile(scratch("index.htm"), "<P>newer\r\n");
    run(tbrPreview);
    EXPECT_NE(browser.shown().find(scratch("$$index.htm")), std::string::npos);
    EXPECT_EQ(browser.page(), "<P>saved\r\n");
    EXPECT_EQ(readFile(scratch("index.htm")), "<P>newer\r\n");
    passTime();
    EXPECT_FALSE(copyIsThere());
}

TEST_F(PreviewTest, ANameWithoutExtensionAndOneWithBlanksReachTheBrowser) {
    const Browser browser(Browser::standIn(), seenFolder());
    openPage("my page", "a", "b");
    run(tbrPreview);
    EXPECT_NE(browser.shown().find('"' + scratch("$$my page.htm") + '"'), std::string::npos);
    passTime();
    EXPECT_EQ(readFile(scratch("$$my page.htm")), "(no file)");
    EXPECT_EQ(readFile(scratch("my page")), "a");
}

TEST_F(PreviewTest, APreviewDuringAnotherShowsTheNewTextAndHasItsOwnTime) {
    const Browser browser(Browser::standIn(), seenFolder());
    openPage("index.htm", "1", "2");
    run(tbrPreview);
    browser.shown();
    type("3");
    run(tbrPreview);
    browser.shown();
    EXPECT_EQ(browser.page(), "231\r\n");
    EXPECT_TRUE(copyIsThere());
    passTime();
    EXPECT_FALSE(copyIsThere());
    EXPECT_FALSE(::FindWindowA("modPreview", nullptr));
}

TEST_F(PreviewTest, TheCopyGoesWithTheProgram) {
    const Browser browser(Browser::standIn(), seenFolder());
    frmChild& page = openPage("index.htm", "1", "2");
    run(tbrPreview);
    browser.shown();
    EXPECT_TRUE(copyIsThere());
    page.txtPad().setChanged(false);
    ::SendMessageA(page.hwnd(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(copyIsThere()) << "the page may go before";
    closeMain();
    EXPECT_FALSE(copyIsThere());
}

TEST_F(PreviewTest, ACopyThatIsHeldOpenIsRemovedLater) {
    const Browser browser(Browser::standIn(), seenFolder());
    openPage("index.htm", "1", "2");
    run(tbrPreview);
    browser.shown();
    {
        const win::UniqueFile held(::CreateFileA(scratch("$$index.htm").c_str(), GENERIC_READ,
                                                 FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
        passTime();
        EXPECT_TRUE(copyIsThere());
    }
    passTime();
    EXPECT_FALSE(copyIsThere());
}

TEST_F(PreviewTest, WithoutABrowserTwoMessagesCome) {
    const Browser none("", seenFolder());
    openPage("index.htm", "1", "2");
    run(tbrPreview);
    EXPECT_TRUE(copyIsThere());
    User user({User::press("Browser Not Found", IDOK), User::press("URL Failed", IDOK)});
    passTime();
    EXPECT_EQ(user.heard(), (std::vector<std::string>{"Could not find associated Browser",
                                                      "Web Page Could Not Be Opened."}));
    EXPECT_FALSE(copyIsThere());
    EXPECT_FALSE(::FindWindowA("modPreview", nullptr));
}

TEST_F(PreviewTest, ABrowserThatDoesNotStartIsTold) {
    writeFile(scratch("broken.exe"), "no program");
    const Browser broken(scratch("broken.exe"), seenFolder());
    openPage("index.htm", "1", "2");
    User user({User::press("URL Failed", IDOK)});
    run(tbrPreview);
    EXPECT_EQ(user.heard()[0], "Web Page Could Not Be Opened.");
    EXPECT_FALSE(copyIsThere());
}

TEST_F(PreviewTest, WithNowhereToWriteThereIsOneMessage) {
    const Browser browser(Browser::standIn(), seenFolder());
    newPage("untitled");
    {
        User user({User::press("Quillon", IDOK)});
        run(tbrPreview);
        EXPECT_EQ(user.heard()[0], kFailure);
    }
    const std::string folder = scratch("gone");
    ::CreateDirectoryA(folder.c_str(), nullptr);
    frmChild& page = openPage("gone\\index.htm", "1", "2");
    ::DeleteFileA((folder + "\\index.htm").c_str());
    ::RemoveDirectoryA(folder.c_str());
    User user({User::press("Quillon", IDOK)});
    run(tbrPreview);
    EXPECT_EQ(user.heard()[0], kFailure);
    EXPECT_EQ(page.txtPad().text(), "21");
    EXPECT_TRUE(page.txtPad().isChanged());
}

class ResetTest : public AppTest {};

TEST_F(ResetTest, ResetBringsBackTheSavedPageAndLeavesTheEditedOneOnTheClipboard) {
    writeFile(scratch("index.htm"), "one\r\ntwo\r\n");
    frmChild& page = *files::OpenFile(main(), scratch("index.htm"));
    page.txtPad().setWordWrap(true);
    page.txtPad().select(5, 8);
    type("2");
    run(tbrReset);
    EXPECT_EQ(pageText(), "one\r\ntwo\r\n");
    EXPECT_EQ(win::ClipboardText(main().mainHwnd()), "one\r\n2\r\n");
    EXPECT_TRUE(label("Current Line No: 1"));
    EXPECT_FALSE(page.txtPad().isChanged());
    EXPECT_TRUE(page.txtPad().wordWrap());
}

TEST_F(ResetTest, RefusalsAndFailuresLeaveThePageAlone) {
    writeFile(scratch("index.htm"), "one\r\n");
    frmChild& page = *files::OpenFile(main(), scratch("index.htm"));
    win::SetClipboardText(main().mainHwnd(), "kept");
    User user({User::press("Quillon", IDOK), User::press("Quillon", IDOK), User::press("Quillon", IDOK)});
    run(tbrReset);
    type("x");
    {
        const win::UniqueFile locked(
            ::CreateFileA(scratch("index.htm").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
        run(tbrReset);
    }
    ::DeleteFileA(scratch("index.htm").c_str());
    run(tbrReset);
    EXPECT_EQ(user.heard(),
              (std::vector<std::string>{
                  "Page has not been edited since last save...\r\n\r\nNo need to Reset",
                  "Error reading in file.\r\n\r\n...may have never been save, or been moved since last save.",
                  "File was not previously saved, or was moved.\r\n\r\n      Reset is therefore aborted."}));
    EXPECT_EQ(pageText(), "xone\r\n");
    EXPECT_TRUE(page.txtPad().isChanged());
    EXPECT_EQ(win::ClipboardText(main().mainHwnd()), "kept");
}

}  // namespace
