// Servers that refuse, break off, or send what no server should.
#include <cstdlib>

#include "forms/frmUpload.h"
#include "ftp/core/scramble.h"
#include "ftp/download.h"
#include "ftp/frmUpload.h"
#include "ftp/site_store.h"
#include "win/error.h"
#include "win/failing_calls.h"
#include "win/ftp_test.h"
#include "win/message_loop.h"

namespace {

class FtpFaultsTest : public FtpTest {
 protected:
    // Gives what was said when the window has opened with this behaviour and the line's command has run.
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
    // Once the server keeps silent about the command: looks whether the windows answer, and closes one.
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

TEST_F(FtpFaultsTest, EveryRefusedCommandIsToldAndTheSessionGoesOn) {
    const User::Act yes = User::press("DELETION CONFIRMATION", IDYES);
    EXPECT_EQ(sayWith("refuse-DELE", "good.htm", mnuRClist + 5, {yes, User::press("FAILED TO DELETE", IDOK)}),
              "Could not delete file");
    EXPECT_EQ(sayWith("refuse-RMD", "folder/", mnuDirDelete, {yes, User::press("FAILED TO DELETE", IDOK)})
                  .substr(0, 21),
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
    savePage("page.htm", std::string(500000, 'x'));
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
    EXPECT_GE(FailEachCall({[&] { writeFile(path, "old"); }, download, check}), 8);
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
    EXPECT_EQ(lines(), "folder/,good.htm,large.bin") << "nothing is lost when the probes fail";
    openScripted("stay");
    EXPECT_EQ(textOf(txtCurDir), "/");
}

TEST_F(FtpFaultsTest, OddNamesStayInsideTheChosenFolder) {
    openScripted("list-odd");
    EXPECT_EQ(lines(),
              "..\\up.htm,/etc/passwd,C:\\boot.ini,CON,a\x01"
              "b\x7F.htm,%TEMP%.htm,caf\xE9.htm,last.htm");
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
    savePage("page.htm", "");
    openScripted("silent-STOR");
    const auto goOn = [&](HWND form) {
        EXPECT_TRUE(wasTold("STOR"));
        EXPECT_EQ(textOf(txtCurDir), "Uploading.....");
        EXPECT_FALSE(::IsWindowEnabled(control(cmdUp)));
        type("going on");
        EXPECT_TRUE(answers(form));
        ::PostMessageA(form, WM_CLOSE, 0, 0);
    };
    heard([&] { click(cmdUp); }, {{kFtpTitle, goOn}});
    EXPECT_EQ(ftpWindow(), nullptr);
    EXPECT_EQ(pageText(), "going on");
    active().txtPad().setChanged(false);
    openScripted("silent-DELE");
    closing = main().mainHwnd();
    say("good.htm", mnuRClist + 5,
        {User::press("DELETION CONFIRMATION", IDYES), closeDuring("DELE", kFtpTitle, closing)});
    EXPECT_FALSE(::IsWindow(closing)) << "the main window is not held up either";
    EXPECT_EQ(ftpWindow(), nullptr);
    EXPECT_FALSE(win::RunPending()) << "nor the end of the program";
}

TEST_F(FtpFaultsTest, APasswordArrivesByteForByte) {
    const std::string password = "mno847\xE9 x";  // the key itself scrambles to codes 0
    addSite("127.0.0.1", "plain", password);
    frmUpload::open(main(), 0, ScriptedSession);
    EXPECT_NE(told().find("PASS " + password + "\n"), std::string::npos) << told();
}

// What no server on loopback can bring about: a machine that is not on any network, or one on which every
// change ends in an error that no server's answer explains.
template <bool kOnline>
class Odd : public ftp::FtpSession {
 public:
    static std::unique_ptr<ftp::FtpSession> make() { return std::make_unique<Odd>(); }

    bool dial() override { return kOnline; }
    bool open() override { return kOnline; }
    bool connect(const std::string&, const std::string&, const std::string&) override { return kOnline; }
    bool isConnected() const override { return kOnline; }
    void close() override {}
    void giveUp(DWORD) override {}
    bool answered() const override { return true; }
    std::optional<std::string> currentDirectory() override { return {}; }
    std::optional<ftp::RemoteEntry> findFirst(const std::string&) override {
        return ftp::RemoteEntry{"old", FILE_ATTRIBUTE_DIRECTORY, 0};
    }
    std::optional<ftp::RemoteEntry> findNext() override { return {}; }
    void endFind() override {}
    bool tell(ftp::RemoteCommand, const std::string&, const std::string&, ftp::TransferType) override {
        throw win::Failure("out of order");
    }
};

TEST_F(FtpFaultsTest, WithoutADialUpLinkTheAttemptGoesOnAndWithoutNetworkingItEnds) {
    addSite("127.0.0.1", "plain", "pw");
    const User::Act understand = User::press("NOT CONNECTED", IDOK);
    EXPECT_EQ(User::hears([&] { frmUpload::open(main(), 0, Odd<false>::make); }, {understand, understand}),
              (std::vector<std::string>{"Could not connect to the internet through AutoDial.\r\n"
                                        "Connect to Internet before attempting to use FTP.",
                                        "Cannot obtain internet handle..."}));
    EXPECT_EQ(ftpWindow(), nullptr);
}

TEST_F(FtpFaultsTest, AnErrorThatNoServerExplainsIsToldInTheWordsOfItsCommand) {
    addSite("127.0.0.1", "plain", "pw");
    frmUpload::open(main(), 0, Odd<true>::make);
    EXPECT_EQ(say("old/", mnuDirDelete,
                  {User::press("DELETION CONFIRMATION", IDYES), User::press("DELETE DIFFICULTY", IDOK)}),
              "There was a problem deleting old/.");
    // A given-up upload may hold the file of another test for a while.
    savePage("other.htm", "page");
    EXPECT_EQ(saidToClick(cmdUp, "ERROR"), "Error uploading");
    EXPECT_EQ(saidToDrop({scratch("other.htm")}, "Quillon"), "Could not upload files.");
    EXPECT_EQ(textOf(txtCurDir), "/");
}

}  // namespace
