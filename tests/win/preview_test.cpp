#include "files/modPubFuncs.h"
#include "support/standin_browser.h"
#include "win/app_test.h"
#include "win/message_loop.h"

namespace {

constexpr char kFailure[] =
    "Browser initialization failed.\r\nIf problem persists, please contact Quillon Support.";

class PreviewTest : public AppTest {
 protected:
    // Makes the program the one that opens .htm files.
    void use(const std::string& program) {
        browser_.reset();
        browser_.emplace(program, scratch("seen"));
    }
    void SetUp() override {
        AppTest::SetUp();
        use(Browser::standIn());
    }
    // Previews the active page; the browser must be started with this file.
    void preview(const std::string& name) {
        run(tbrPreview);
        const std::string shown = browser_->shown();
        EXPECT_NE(shown.find('\\' + name), std::string::npos) << shown;
    }
    std::string shownPage() const { return browser_->page(); }
    bool copyIsThere() { return modPubFuncs::FileExists(scratch("$$my index.htm")); }
    // Ends the wait before its time.
    static void passTime() {
        if (const HWND wait = ::FindWindowA("modPreview", nullptr)) ::SendMessageA(wait, WM_TIMER, 1, 0);
    }

 private:
    std::optional<Browser> browser_;
};

TEST_F(PreviewTest, AnEditedPageIsShownFromACopyThatIsDeletedAfterThreeSeconds) {
    const frmChild& page = openPage("my index.htm", "<P>saved", "new ");
    const DWORD start = ::GetTickCount();
    run(tbrPreview);
    EXPECT_LT(::GetTickCount() - start, 2500U) << "the command does not wait for it";
    EXPECT_TRUE(copyIsThere());
    EXPECT_TRUE(seen::Until([&] {
        win::RunPending();
        return !copyIsThere();
    }));
    EXPECT_GE(::GetTickCount() - start, 2900U);
    EXPECT_EQ(shownPage(), "new <P>saved\r\n");
    EXPECT_EQ(readFile(scratch("my index.htm")), "<P>saved");
    EXPECT_TRUE(page.txtPad().isChanged()) << "the edits are still unsaved";
}

TEST_F(PreviewTest, AnUnchangedPageIsShownFromItsOwnFile) {
    openPage("my index.htm", "<P>saved");
    preview("my index.htm");
    passTime();
    EXPECT_EQ(readFile(scratch("my index.htm")), "<P>saved");
    run(mnuFileSave);
    preview("my index.htm");
    // A preview must not overwrite what another program has written meanwhile.
    writeFile(scratch("my index.htm"), "<P>newer\r\n");
    preview("$$my index.htm");
    EXPECT_EQ(shownPage(), "<P>saved\r\n");
    EXPECT_EQ(readFile(scratch("my index.htm")), "<P>newer\r\n");
    passTime();
    EXPECT_FALSE(copyIsThere());
}

TEST_F(PreviewTest, APreviewDuringAnotherShowsTheNewTextAndIsTimedByItself) {
    openPage("my index.htm", "1", "2");
    preview("$$my index.htm");
    type("3");
    preview("$$my index.htm");
    EXPECT_EQ(shownPage(), "231\r\n");
    {
        const win::UniqueFile held = hold(scratch("$$my index.htm"), FILE_SHARE_READ);
        passTime();
        EXPECT_TRUE(copyIsThere()) << "another program still has it open";
    }
    passTime();
    EXPECT_FALSE(copyIsThere());
    EXPECT_FALSE(::FindWindowA("modPreview", nullptr));
}

TEST_F(PreviewTest, AFileOfTheAuthorsIsNeitherWrittenNorDeleted) {
    openPage("my index.htm", "1", "2");
    writeFile(scratch("$$my index.htm"), "the author's");
    preview("$$$my index.htm");
    // Another program writes over our copy while the browser shows it.
    writeFile(scratch("$$$my index.htm"), "the author's own");
    passTime();
    EXPECT_EQ(readFile(scratch("$$my index.htm")), "the author's");
    EXPECT_EQ(readFile(scratch("$$$my index.htm")), "the author's own");
    EXPECT_FALSE(::FindWindowA("modPreview", nullptr));
    preview("$$$$my index.htm");
    ::DeleteFileA(scratch("$$$$my index.htm").c_str());
    passTime();
    EXPECT_FALSE(::FindWindowA("modPreview", nullptr)) << "a copy that is no longer there is not waited for";
    // The file of an unchanged page that is no longer there is not made again.
    active().txtPad().setChanged(false);
    ::DeleteFileA(scratch("my index.htm").c_str());
    preview("$$$$my index.htm");
    EXPECT_EQ(readFile(scratch("my index.htm")), "(no file)");
}

TEST_F(PreviewTest, TheCopyIsDeletedWhenTheProgramEnds) {
    frmChild& page = openPage("my index.htm", "1", "2");
    preview("$$my index.htm");
    page.txtPad().setChanged(false);
    ::SendMessageA(page.hwnd(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(copyIsThere()) << "although the page has been closed";
    closeMain();
    EXPECT_FALSE(copyIsThere());
}

TEST_F(PreviewTest, ABrowserThatIsMissingOrDoesNotStartIsReported) {
    use("");
    openPage("my index.htm", "1", "2");
    run(tbrPreview);
    EXPECT_TRUE(copyIsThere());
    EXPECT_EQ(
        User::hears(passTime, {User::press("Browser Not Found", IDOK), User::press("URL Failed", IDOK)}),
        (std::vector<std::string>{"Could not find associated Browser", "Web Page Could Not Be Opened."}));
    EXPECT_FALSE(copyIsThere());
    EXPECT_FALSE(::FindWindowA("modPreview", nullptr));
    // No plain executable is found, but the shell knows how to open the page.
    ::SetEnvironmentVariableA("PATH", (Environment("PATH") + ';' + ToolPath("")).c_str());
    use("standin_browser");
    preview("$$my index.htm");
    passTime();
    writeFile(scratch("broken.exe"), "no program");
    use(scratch("broken.exe"));
    EXPECT_EQ(said(tbrPreview, "URL Failed"), "Web Page Could Not Be Opened.");
    EXPECT_FALSE(copyIsThere());
}

TEST_F(PreviewTest, WhereNoCopyCanBeWrittenThereIsOneMessage) {
    newPage("untitled");
    EXPECT_EQ(said(tbrPreview), kFailure);
    ::CreateDirectoryA(scratch("gone").c_str(), nullptr);
    const frmChild& page = openPage("gone\\my index.htm", "1", "2");
    DeleteTree(scratch("gone"));
    EXPECT_EQ(said(tbrPreview), kFailure);
    EXPECT_EQ(pageText(), "21");
    EXPECT_TRUE(page.txtPad().isChanged());
}

using ResetTest = PreviewTest;

TEST_F(ResetTest, ResetBringsBackTheSavedPageAndLeavesTheEditedOneOnTheClipboard) {
    const frmChild& page = openPage("index.htm", "one\r\ntwo\r\n");
    run(mnuOptWW);
    page.txtPad().select(5, 8);
    type("2");
    run(tbrReset);
    EXPECT_EQ(pageText(), "one\r\ntwo\r\n");
    EXPECT_EQ(clipboard(), "one\r\n2\r\n");
    EXPECT_TRUE(label("Current Line No: 1"));
    EXPECT_FALSE(page.txtPad().isChanged());
    EXPECT_TRUE(page.txtPad().wordWrap());
}

TEST_F(ResetTest, RefusalsAndFailuresLeaveThePageAlone) {
    const frmChild& page = openPage("index.htm", "one\r\n");
    setClipboard("kept");
    EXPECT_EQ(said(tbrReset), "Page has not been edited since last save...\r\n\r\nNo need to Reset");
    type("x");
    win::UniqueFile locked = hold(scratch("index.htm"), 0);
    EXPECT_EQ(said(tbrReset),
              "Error reading in file.\r\n\r\n...may have never been save, or been moved since last save.");
    locked.reset();
    ::DeleteFileA(scratch("index.htm").c_str());
    EXPECT_EQ(said(tbrReset),
              "File was not previously saved, or was moved.\r\n\r\n      Reset is therefore aborted.");
    EXPECT_EQ(pageText(), "xone\r\n");
    EXPECT_TRUE(page.txtPad().isChanged());
    EXPECT_EQ(clipboard(), "kept");
}

}  // namespace
