// Servers that refuse commands, break off, or send what no server should.
#include <cstdlib>

#include "files/atomic_file.h"
#include "forms/frmToUp.h"
#include "forms/frmUpload.h"
#include "ftp/frmUpload.h"
#include "ftp/site_store.h"
#include "ftp/transfers.h"
#include "menu_ids.h"
#include "win/error.h"
#include "win/failing_calls.h"
#include "win/ftp_test.h"
#include "win/message_loop.h"
#include "win/unique.h"

namespace {

class FtpFaultsTest : public FtpTest {
 protected:
    // Opens the window on a server of this behaviour, runs a command on a line and returns what was said.
    std::string sayWith(const char* behaviour, const std::string& line, int item,
                        const std::vector<User::Act>& acts) {
        openScripted(behaviour);
        return say(line, item, acts);
    }
    static bool wasTold(const std::string& command) {
        return seen::Until([&] { return told().find(command) != std::string::npos; });
    }
    static bool answers(HWND window) {
        return ::SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, 1000, nullptr) != 0;
    }
    // Once the server has received the command and keeps silent: checks that the windows answer, and closes
    // one.
    User::Act closeDuring(const std::string& command, const std::string& title, HWND& closing) {
        return {title, [=, &closing, main = main().mainHwnd()](HWND dialog) {
                    EXPECT_TRUE(wasTold(command)) << told();
                    EXPECT_EQ(::GetForegroundWindow(), dialog) << "Esc reaches it";
                    EXPECT_TRUE(answers(dialog) && answers(main)) << command;
                    ::PostMessageA(closing ? closing : dialog, WM_CLOSE, 0, 0);
                }};
    }
    User::Act saveAs(const std::string& name) { return User::chooseFile("Save File As...", scratch(name)); }
};

TEST_F(FtpFaultsTest, EveryRefusedCommandIsReportedAndTheSessionGoesOn) {
    const User::Act yes = User::press("DELETION CONFIRMATION", IDYES);
    EXPECT_EQ(sayWith("refuse-DELE", "good.htm", mnuRClist + 5, {yes, User::press("FAILED TO DELETE", IDOK)}),
              "Could not delete file");
    EXPECT_EQ(sayWith("refuse-RNTO", "good.htm", mnuRClist + 3,
                      {User::enter("FILENAME CHANGE", "x"), User::press("NET GLITCH", IDOK)}),
              "Unable to rename file...");
    EXPECT_EQ(sayWith("refuse-RETR", "good.htm", mnuRClist + 2,
                      {saveAs("x.htm"), User::press("DOWNLOAD FAILURE", IDOK)}),
              "Unable to download good.htm.");
    EXPECT_EQ(readFile(scratch("x.htm")), "(no file)");
    EXPECT_EQ(textOf(txtCurDir), "/");
    EXPECT_TRUE(::IsWindowEnabled(control(cmdRefresh)));
}

TEST_F(FtpFaultsTest, ATransferThatBreaksOffIsNoSuccessAndLeavesTheOldFile) {
    for (const char* behaviour : {"cut-RETR", "break-RETR"}) {
        writeFile(scratch("kept.bin"), "good");
        EXPECT_EQ(sayWith(behaviour, "large.bin", mnuRClist + 2,
                          {saveAs("kept.bin"), User::press("Save File As...", IDYES),
                           User::press("DOWNLOAD FAILURE", IDOK)}),
                  "Unable to download large.bin.");
        EXPECT_EQ(readFile(scratch("kept.bin")), "good") << behaviour;
    }
    EXPECT_EQ(found("qui*"), "");
    savePage("page.htm", "");
    writeFile(scratch("page.htm"), std::string(500000, 'x'));
    for (const char* behaviour : {"refuse-STOR", "cut-STOR", "break-STOR"}) {
        openScripted(behaviour);
        EXPECT_EQ(saidToClick(cmdUp, "UPLOAD FAILURE"), "Unable to upload the current file.") << behaviour;
    }
}

TEST_F(FtpFaultsTest, ADownloadThatCannotBePutInItsPlaceLeavesTheOldFile) {
    const auto session = ScriptedSession();
    ASSERT_TRUE(session->open() && session->connect("127.0.0.1", "plain", "pw"));
    const std::string path = scratch("kept.htm");
    bool done = false;
    const auto download = [&] {
        done = ftp::Download(*session, "good.htm", path, ftp::TransferType::binary);
    };
    download();
    ASSERT_TRUE(done);
    const std::string remote = readFile(path);
    const auto check = [&](const Fault& fault) {
        EXPECT_EQ(readFile(path), done ? remote : "old") << fault.what;
        const std::string left = found("qui*");
        EXPECT_TRUE(left.empty() || fault.what.find("all after") != std::string::npos) << fault.what;
        ::DeleteFileA(scratch(left).c_str());
    };
    FailEachCall({"a download", 8, [&] { writeFile(path, "old"); }, download, check});
}

TEST_F(FtpFaultsTest, LoginsThatFailOpenNoWindow) {
    for (const char* behaviour : {"refuse-USER", "refuse-PASS", "drop-USER", "drop-PASS"}) {
        EXPECT_EQ(said([&] { openScripted(behaviour); }, "NOT CONNECTED"), "Cannot connect to FTP site...")
            << behaviour;
        EXPECT_EQ(ftpWindow(), nullptr);
        EXPECT_EQ(ftp::LastUsedIndex(ftp::ReadSections()), std::nullopt);
    }
}

TEST_F(FtpFaultsTest, AListingThatFailsLeavesAnEmptyListAndAWorkingWindow) {
    for (const char* behaviour :
         {"refuse-LIST", "drop-LIST", "refuse-PORT", "refuse-TYPE", "refuse-PWD", "list-long"}) {
        openScripted(behaviour);
        EXPECT_EQ(textOf(txtCurDir), "/") << behaviour;
        EXPECT_TRUE(::IsWindowEnabled(control(cmdRefresh))) << behaviour;
    }
    openScripted("drop-CWD");
    EXPECT_EQ(lines(), "folder/,good.htm,large.bin") << "the lines stay when the probes fail";
    openScripted("list-plain stay");
    EXPECT_EQ(textOf(txtCurDir), "/folder") << "the directory that a probe has entered and cannot leave";
}

TEST_F(FtpFaultsTest, OddNamesStayInsideTheChosenFolder) {
    openScripted("list-odd");
    EXPECT_EQ(lines(),
              "..\\up.htm,/etc/passwd,C:\\boot.ini,CON,a\x01"
              "b\x7F.htm,%TEMP%.htm,café.htm,last.htm");
    const auto look = [&](HWND dialog) {
        const std::string proposed = seen::TextOf(seen::FileNameBox(dialog));
        EXPECT_EQ(proposed.substr(0, proposed.find_last_not_of(' ') + 1), "up.htm");
        ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    };
    say("..\\up.htm", mnuRClist + 2, {{"Save File As...", look}});
}

TEST_F(FtpFaultsTest, WhileASilentServerIsWaitedForTheWindowsAnswerAndCanBeClosed) {
    HWND closing = nullptr;
    const std::pair<const char*, const char*> behaviours[] = {
        {"silent-PASS", "PASS"}, {"silent-LIST", "LIST"}, {"list-endless", "LIST"}, {"silent-CWD", "CWD"}};
    for (const auto& [behaviour, command] : behaviours) {
        ::DeleteFileA(std::getenv("QUILLON_FTP_LOG"));
        EXPECT_EQ(heard([&] { openScripted(behaviour); },
                        {closeDuring(command, "Quillon FTP", closing), User::press("NOT CONNECTED", IDOK)}),
                  "Cannot connect to FTP site...")
            << behaviour;
        EXPECT_EQ(ftpWindow(), nullptr) << behaviour;
    }
    openScripted("silent-DELE");
    closing = main().mainHwnd();
    say("good.htm", mnuRClist + 5,
        {User::press("DELETION CONFIRMATION", IDYES), closeDuring("DELE", kFtpTitle, closing)});
    EXPECT_FALSE(::IsWindow(closing)) << "the main window can be closed too";
    EXPECT_EQ(ftpWindow(), nullptr);
    EXPECT_FALSE(win::RunPending()) << "and the program ends";
}

TEST_F(FtpFaultsTest, APasswordArrivesByteForByte) {
    const std::string password = "mno847\xE9 x";  // the key itself is scrambled to zeros
    AddSite("127.0.0.1", "plain", password);
    frmUpload::open(main(), 0, ScriptedSession);
    EXPECT_NE(told().find("PASS " + password + "\n"), std::string::npos) << told();
}

TEST_F(FtpFaultsTest, NamesAreTheServersBytesAndThoseThatCannotBeSentAreRefused) {
    openScripted("list-alike");
    EXPECT_EQ(lines(), "café.htm,café.htm,Małe.htm");
    for (const auto& [row, bytes] : {std::pair(1, "café.htm"), {0, "caf\xE9.htm"}, {2, "Małe.htm"}}) {
        const auto remove = [row = row] {
            ::SendMessageA(control(lstRemoteFiles), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
            ::SendMessageA(ftpWindow(), WM_COMMAND, mnuRClist + 5, 0);
        };
        const User::Act yes = User::press("DELETION CONFIRMATION", IDYES);
        heard(remove, {yes, User::press("DELETION CONFIRMATION", IDOK)});
        EXPECT_TRUE(wasTold(std::string("DELE ") + bytes + "\n")) << told();
    }
    const std::string refusal =
        "The server cannot be given the name Małe.htm.\r\nChoose another name, of plain letters.";
    savePage("Małe.htm", "<P>");
    EXPECT_EQ(saidToClick(cmdUp, "UPLOAD FAILURE"), refusal);
    EXPECT_EQ(saidToDrop({scratch("Małe.htm"), scratch("gone.htm")}, "UPLOAD DIFFICULTY"),
              "There was a problem uploading gone.htm.\r\n\r\n" + refusal);
    EXPECT_EQ(told().find("STOR"), std::string::npos);
}

TEST_F(FtpFaultsTest, AServerThatHasGoneIsReportedOnceAndConnectedToAgain) {
    openScripted("drop-STOR");
    std::vector<std::string> files;
    for (int i = 0; i < 50; ++i) {
        files.push_back(scratch(std::to_string(i) + ".htm"));
        writeFile(files.back(), "");
    }
    EXPECT_EQ(saidToDrop(files, "UPLOAD DIFFICULTY"),
              "There was a problem uploading 0.htm, 1.htm, 2.htm, 3.htm, 4.htm and 45 more.");
    const HWND dead = ftpWindow();
    frmUpload::open(main(), 0, ScriptedSession);
    EXPECT_FALSE(::IsWindow(dead));
    EXPECT_EQ(lines(), "folder/,good.htm,large.bin");
}

TEST_F(FtpFaultsTest, AnUploadInProgressIsBrokenOffOnlyWhenTheUserWantsThat) {
    const auto during = [&](const std::function<void()>& act) {
        return User::Act{kFtpTitle, [this, act](HWND form) {
                             EXPECT_TRUE(wasTold("STOR"));
                             EXPECT_TRUE(answers(form));
                             act();
                         }};
    };
    const auto post = [](HWND window, UINT message, WPARAM wParam) {
        return [=] { ::PostMessageA(window, message, wParam, 0); };
    };
    savePage("page.htm", "<P>");
    openScripted("hold-STOR");
    EXPECT_EQ(heard([&] { click(cmdUp); },
                    {during(post(ftpWindow(), WM_CLOSE, 0)), User::press("UPLOAD NOT FINISHED", IDYES)}),
              "Still sending page.htm.\r\nBreak it off? The server then has only a part.");
    EXPECT_EQ(ftpWindow(), nullptr);

    ::DeleteFileA(Environment("QUILLON_FTP_LOG").c_str());
    openScripted("hold-STOR");
    AddSite("other.example", "user", "pw");
    ftp::LoadSiteMenu(main());
    const auto goOn = [&] {
        EXPECT_TRUE(files::ReplaceFileContents(scratch("page.htm"), "saved meanwhile"));
        const auto other = ScriptedSession();
        EXPECT_TRUE(other->open() && other->connect("127.0.0.1", "go-on", "pw"));
    };
    const HWND mainWindow = main().mainHwnd();
    const auto heard =
        User::hears([&] { click(cmdUp); },
                    {during(post(mainWindow, WM_COMMAND, mnuUploadSites)), User::press("FTP Site", cmdUpload),
                     User::press("Quillon Note:", IDOK), during(post(mainWindow, WM_CLOSE, 0)),
                     User::press("UPLOAD NOT FINISHED", IDNO), during(goOn), User::press("Quillon", IDOK)});
    EXPECT_EQ(heard[2], "127.0.0.1 is still busy.\r\nWait until it is done, or close its window.");
    EXPECT_EQ(heard[6], "Upload Complete");
    EXPECT_EQ(ftpWindow(), nullptr);
    EXPECT_FALSE(win::RunPending()) << "the program ends once the file has been sent";
}

// What no server on loopback can cause: a machine without a network, or every change ending in an error that
// no server's answer explains.
template <bool kOnline>
class Odd : public ftp::FtpSession {
 public:
    static std::unique_ptr<ftp::FtpSession> make() { return std::make_unique<Odd>(); }

    bool dial() override { return kOnline; }
    bool open() override { return kOnline; }
    bool connect(const std::string&, const std::string&, const std::string&) override { return kOnline; }
    bool isConnected() const override { return kOnline; }
    bool isLost() const override { return false; }
    void close() override {}
    void stop() override {}
    std::optional<std::string> currentDirectory() override { return {}; }
    void list(const std::string& pattern, const std::function<bool(const ftp::RemoteEntry&)>& take) override {
        if (pattern == "*") take({"old", FILE_ATTRIBUTE_DIRECTORY, 0}) && take({"my page.htm", 0, 42});
    }
    bool changeDirectory(const std::string&) override { return false; }
    bool createDirectory(const std::string&) override { return fail(); }
    bool removeDirectory(const std::string&) override { return fail(); }
    bool removeFile(const std::string&) override { return fail(); }
    bool rename(const std::string&, const std::string&) override { return fail(); }
    bool put(const ftp::ReadChunk&, const std::string&, ftp::TransferType) override { return fail(); }
    bool get(const std::string&, HANDLE, ftp::TransferType) override { return fail(); }

 private:
    static bool fail() { throw win::Failure("out of order"); }
};

TEST_F(FtpFaultsTest, WithoutADialUpLinkTheAttemptGoesOnAndWithoutNetworkingItEnds) {
    AddSite("127.0.0.1", "plain", "pw");
    const User::Act understand = User::press("NOT CONNECTED", IDOK);
    EXPECT_EQ(User::hears([&] { frmUpload::open(main(), 0, Odd<false>::make); }, {understand, understand}),
              (std::vector<std::string>{"Could not connect to the internet through AutoDial.\r\n"
                                        "Connect to Internet before attempting to use FTP.",
                                        "Cannot obtain internet handle..."}));
    EXPECT_EQ(ftpWindow(), nullptr);
}

TEST_F(FtpFaultsTest, AnErrorThatNoServerExplainsIsReportedInTheWordsOfItsCommand) {
    AddSite("127.0.0.1", "plain", "pw");
    frmUpload::open(main(), 0, Odd<true>::make);
    EXPECT_EQ(say("old/", mnuDirDelete,
                  {User::press("DELETION CONFIRMATION", IDYES), User::press("DELETE DIFFICULTY", IDOK)}),
              "There was a problem deleting old/.");
    EXPECT_EQ(say("my page.htm", mnuRClist, {User::press("SIZE of my page.htm is:", IDOK)}),
              "Approximately 42 Bytes")
        << "asked for without a pattern, which would end at the blank";
    // Not "page.htm": an upload that another test has given up may still hold that file.
    savePage("other.htm", "page");
    EXPECT_EQ(saidToClick(cmdUp, "ERROR"), "Error uploading");
    EXPECT_EQ(saidToDrop({scratch("other.htm")}, "Quillon"), "Could not upload files.");
    EXPECT_EQ(textOf(txtCurDir), "/");
}

}  // namespace
