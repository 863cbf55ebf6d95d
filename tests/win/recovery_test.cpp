#include <algorithm>
#include <optional>

#include "files/recovery.h"
#include "shell/frmNotePad.h"
#include "support/wide.h"
#include "win/app_test.h"
#include "win/failing_calls.h"

namespace {

class RecoveryTest : public AppTest {
 protected:
    static std::string folder() { return scratch(""); }
    frmChild& changedPage() {
        frmChild& page =
            openPage("za\u017C\u00F3\u0142\u0107.htm", "\xEF\xBB\xBF<P>\u0141\xFF\r\n</P>", "new ");
        page.txtPad().select(6, 6);
        return page;
    }
};

TEST_F(RecoveryTest, ACopyComesBackOnceItsProgramNoLongerRuns) {
    const frmChild& page = changedPage();
    const files::RecoveryCopy expected{page.Tag(), page.Caption(), page.encoding(), 6, page.txtPad().text()};
    files::Recovery later(folder());
    {
        files::Recovery running(folder());
        running.writeNow(page);
        EXPECT_TRUE(later.takeOver().empty()) << "while its program runs";
    }
    writeFile(scratch("~quillon-1-1.page"), "Quillon page 1\r\nand no more");
    const win::UniqueFile huge(::CreateFileW(Wide(scratch("~quillon-0-1.page")).c_str(), GENERIC_WRITE, 7,
                                             nullptr, CREATE_NEW, FILE_FLAG_DELETE_ON_CLOSE, nullptr));
    // More than a 32-bit program has memory for; a 64-bit one would take long.
    ::SetFilePointer(huge.get(), sizeof(void*) == 4 ? 0x7FFFFFF0 : 0, nullptr, FILE_BEGIN);
    ::SetEndOfFile(huge.get());
    const auto back = later.takeOver();
    ASSERT_EQ(back.size(), 1U);
    EXPECT_EQ(back[0].copy, expected);
    EXPECT_EQ(readFile(scratch("~quillon-1-1.page")), "Quillon page 1\r\nand no more")
        << "a file that is no copy stays";
    files::Recovery third(folder());
    EXPECT_TRUE(third.takeOver().empty()) << "while another program has taken it over";
    later.adopt(page, back[0].file);
    win::UniqueFile scanner = hold(scratch(found("~quillon-*-back*")), FILE_SHARE_READ);
    later.remove(page.id());
    scanner.reset();
    later.writeNow(page);
    later.remove(page.id());
    EXPECT_EQ(found("~quillon-*-back*"), "") << "a saved page leaves no copy in the end";
}

TEST_F(RecoveryTest, ACopyIsDueAfterTheLastChangeOrLongAfterTheFirst) {
    const frmChild& page = changedPage();
    files::Recovery recovery(folder());
    const auto isWritten = [&] { return found("~quillon-*.page") != ""; };
    recovery.noteChange(page.id(), 1000);
    recovery.writeDue(main(), 3900);
    EXPECT_TRUE(recovery.isAnyDue());
    for (DWORD now = 2000; now < 26000; now += 2000) recovery.noteChange(page.id(), now);
    recovery.writeDue(main(), 25900);
    EXPECT_TRUE(recovery.isAnyDue()) << "typing puts it off";
    recovery.writeDue(main(), 26000);
    EXPECT_TRUE(seen::Until(isWritten)) << "but not for longer than this";
    const std::string copy = scratch(found("~quillon-*.page"));
    recovery.remove(page.id());
    EXPECT_FALSE(isWritten());
    recovery.writeDue(main(), 30000);
    EXPECT_FALSE(recovery.isAnyDue());
    // A folder of its name keeps it from being written for a while.
    ::CreateDirectoryW(Wide(copy).c_str(), nullptr);
    recovery.noteChange(page.id(), 40000);
    const auto isWrittenLater = [&, now = DWORD{40000}]() mutable {
        if (now > 60000) ::RemoveDirectoryW(Wide(copy).c_str());
        recovery.writeDue(main(), now += 1000);
        return readFile(copy) != "(no file)";
    };
    EXPECT_TRUE(seen::Until(isWrittenLater)) << "it is tried again";
}

TEST_F(RecoveryTest, CallsThatFailWhileWritingCostTheCopyAndNotThePage) {
    frmChild& page = changedPage();
    const std::string file = readFile(page.Tag());
    const std::string copies = scratch("copies\\");
    for (const bool hasCopy : {false, true}) {
        std::optional<files::Recovery> recovery;
        std::u16string before;
        const auto prepare = [&] {
            DeleteTree(scratch("copies"));
            ::CreateDirectoryW(Wide(copies).c_str(), nullptr);
            recovery.emplace(copies);
            if (hasCopy) recovery->writeNow(page);
            before = page.txtPad().text();
            page.insert(u"x");
        };
        const auto check = [&](const Fault& fault) {
            recovery.reset();
            EXPECT_TRUE(fault.said.empty()) << fault.what;
            EXPECT_EQ(page.txtPad().text().size(), before.size() + 1) << fault.what;
            EXPECT_TRUE(page.isChanged()) << fault.what;
            EXPECT_EQ(readFile(page.Tag()), file) << fault.what;
            const auto back = files::Recovery(copies).takeOver();
            const bool isNew = back.size() == 1 && back[0].copy.text == page.txtPad().text();
            const bool isOld = hasCopy ? back.size() == 1 && back[0].copy.text == before : back.empty();
            EXPECT_TRUE(isNew || (isOld && fault.isAny)) << fault.what;
        };
        const auto write = [&] { recovery->writeNow(page); };
        FailEachCall({"writing a copy", 21, prepare, write, check, Calls::any});
    }
}

TEST_F(RecoveryTest, CallsThatFailWhileReadingLeaveTheCopyForTheNextStart) {
    const std::string copies = main().temporaryFolder() + "~quillon-*.page";
    const std::u16string text = changedPage().txtPad().text();
    const auto prepare = [&] {
        for (const auto& [copy, details] : Listing(copies)) ::DeleteFileW(Wide(copy).c_str());
        for (int i = 0; i < 2; ++i) files::Recovery(main().temporaryFolder()).writeNow(active());
    };
    const auto check = [&](const Fault& fault) {
        EXPECT_TRUE(fault.said.empty()) << fault.what;
        EXPECT_TRUE(fault.isAny || main().documents().size() == 3) << fault.what;
        EXPECT_EQ(Listing(copies).size(), 2U) << fault.what;
        for (const auto& [copy, details] : Listing(copies))
            EXPECT_EQ(files::Unpack(readFile(copy)).value_or(files::RecoveryCopy{}).text, text) << fault.what;
        while (main().documents().size() > 1) {
            frmChild& back = *main().documents().back();
            EXPECT_EQ(back.txtPad().text(), text) << fault.what;
            EXPECT_TRUE(back.isChanged()) << fault.what;
            back.txtPad().setChanged(false);
            ::SendMessageW(back.hwnd(), WM_CLOSE, 0, 0);
        }
    };
    const auto restore = [&] { static_cast<frmNotePad&>(main()).restorePages(); };
    FailEachCall({"reading two copies", 21, prepare, restore, check, Calls::any});
}

TEST_F(RecoveryTest, CopiesOfAnEarlierProcessOfTheSameIdComeBackAndAreNotOverwritten) {
    const frmChild& page = changedPage();
    files::Recovery(folder()).writeNow(page);
    const std::string copy = Listing(scratch("~quillon-*.page")).begin()->first;
    // Taking over the first needs a name before it comes to the copy that has this process's id.
    for (const DWORD number : {DWORD{0}, ::GetCurrentProcessId()})
        writeFile(scratch("~quillon-" + std::to_string(number) + "-7.page"), readFile(copy));
    ::DeleteFileW(Wide(copy).c_str());
    files::Recovery later(folder());
    EXPECT_EQ(later.takeOver().size(), 2U);
}

}  // namespace
