#include "e2e/quillon.h"
#include "forms/frmUpload.h"
#include "menu_ids.h"

#include <shlwapi.h>

#include <cstring>

namespace {

class PublishingTest : public QuillonTest {
 protected:
    // Waits until the files are listed.
    bool isReady(const Quillon& quillon) {
        return seen::Until([&] {
            form_ = seen::Titled(quillon.process(), "Quillon FTP - - - - -");
            return form_ && ::IsWindowEnabled(::GetDlgItem(form_, cmdRefresh));
        });
    }
    void upload(const Quillon& quillon) {
        ASSERT_TRUE(isReady(quillon));
        ::PostMessageA(::GetDlgItem(form_, cmdUp), BM_CLICK, 0, 0);
        EXPECT_EQ(quillon.answer("Quillon", IDOK), "Upload Complete");
    }
    static std::string onServer() { return readFile(Environment("QUILLON_FTP_FOLDER") + "\\own\\index.htm"); }

    HWND form_ = nullptr;
};

TEST_F(PublishingTest, APageIsPublishedChangedAndDownloadedAgain) {
    const std::string address = Environment("QUILLON_FTP_ADDRESS");
    if (address.empty()) GTEST_SKIP() << "no FTP server: port 21 is in use everywhere or needs root";
    const std::string path = scratch("index.htm");
    writeFile(path, readFile(Environment("QUILLON_EXE") + "\\..\\..\\examples\\index.htm"));
    const Quillon quillon(path);
    quillon.choose(mnuUploadSite);
    const HWND dialog = quillon.waitForDialog("ADD An Upload Site");
    for (const std::string& text : {address + "/own", std::string("user"), std::string("secret")}) {
        quillon.typeText(text);
        quillon.pressKey(VK_TAB);
    }
    quillon.pressKey(VK_SPACE);  // checks "Save Password"
    quillon.pressKey(VK_RETURN);
    ASSERT_TRUE(seen::Until([&] { return !::IsWindow(dialog); }));
    EXPECT_EQ(::SHGetValueA(HKEY_CURRENT_USER, "Software\\VB and VBA Program Settings\\Quillon\\FTP Sites",
                            "0", nullptr, nullptr, nullptr),
              ERROR_SUCCESS);

    quillon.choose(mnuUploadFile);
    upload(quillon);
    const std::string changed = "<!-- new -->" + onServer() + "\n";  // a save adds a line end
    // The FTP window takes the focus back when its message is closed.
    ASSERT_TRUE(isReady(quillon));
    EXPECT_TRUE(seen::Until([&] {
        return ::SetForegroundWindow(quillon.window()) && ::GetForegroundWindow() == quillon.window();
    }));
    quillon.typeText("<!-- new -->");
    ASSERT_TRUE(seen::Until([&] { return quillon.pageText().substr(0, 12) == "<!-- new -->"; }));
    quillon.choose(mnuFileSave);
    ASSERT_TRUE(quillon.shows("Saved :  " + path));
    upload(quillon);
    EXPECT_EQ(onServer(), changed);

    ASSERT_TRUE(isReady(quillon));
    ::SendMessageA(::GetDlgItem(form_, lstRemoteFiles), LB_SETCURSEL, 0, 0);
    ::PostMessageA(form_, WM_COMMAND, mnuRClist + 2, 0);
    quillon.chooseFile("Save File As...", scratch("fetched.htm"));
    EXPECT_EQ(quillon.answer("TASK COMPLETE", IDOK), "Download of index.htm is complete.");
    EXPECT_EQ(readFile(scratch("fetched.htm")), readFile(path));
}

// In the shipped program, because Wine goes on with a connection whose handle is closed, and may crash then.
TEST_F(PublishingTest, CancelBeforeTheServerIsReachedSendsNoLogin) {
    const std::string address = Environment("QUILLON_FTP_FULL_ADDRESS");
    if (address.empty()) GTEST_SKIP() << "no full FTP server: port 21 is in use everywhere or needs root";
    const std::string log = Environment("QUILLON_FTP_LOG");
    const auto isLogged = [&](const std::string& line) {
        return seen::Until([&] { return readFile(log).find(line) != std::string::npos; });
    };
    for (const auto& [section, value] :
         {std::pair("FTP Sites", address.c_str()), std::pair("FTP Names", "user"),
          std::pair("FTP Passes", "scrambled")}) {
        const std::string key = std::string("Software\\VB and VBA Program Settings\\Quillon\\") + section;
        ::SHSetValueA(HKEY_CURRENT_USER, key.c_str(), "0", REG_SZ, value,
                      static_cast<DWORD>(std::strlen(value)));
    }
    const Quillon quillon;
    quillon.choose(mnuUploadFile);
    const HWND connecting = quillon.waitForDialog("Quillon FTP");
    ASSERT_TRUE(isLogged("(somebody waits)"));
    ::PostMessageA(connecting, WM_CLOSE, 0, 0);
    EXPECT_EQ(quillon.answer("NOT CONNECTED", IDOK), "Cannot connect to FTP site...");
    ::DeleteFileA(log.c_str());
    EXPECT_TRUE(isLogged("(heard: )")) << readFile(log);
}

}  // namespace
