#include "files/recovery.h"
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
        EXPECT_TRUE(later.takeOver().empty()) << "its program runs";
    }
    writeFile(scratch("~quillon-1-1.page"), "Quillon page 1\r\nand no more");
    const auto back = later.takeOver();
    ASSERT_EQ(back.size(), 1U);
    EXPECT_EQ(back[0].copy, expected);
    EXPECT_EQ(readFile(scratch("~quillon-1-1.page")), "Quillon page 1\r\nand no more")
        << "what is no copy stays";
    files::Recovery third(folder());
    EXPECT_TRUE(third.takeOver().empty()) << "it has been taken over";
    later.adopt(page, back[0].file);
    later.remove(page.id());
    EXPECT_EQ(found("~quillon-*-back*"), "") << "a saved page leaves none";
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
    EXPECT_TRUE(recovery.isAnyDue()) << "while one types there is time";
    recovery.writeDue(main(), 26000);
    EXPECT_FALSE(recovery.isAnyDue()) << "half a minute is the most";
    EXPECT_TRUE(seen::Until(isWritten));
    recovery.remove(page.id());
    EXPECT_FALSE(isWritten());
}

TEST_F(RecoveryTest, CallsThatFailCostTheCopyAndNotThePage) {
    const frmChild& page = changedPage();
    const std::string text = pageText();
    const auto prepare = [] {
        DeleteTree(scratch("copies"));
        ::CreateDirectoryW(Wide(scratch("copies")).c_str(), nullptr);
    };
    const int faults = FailEachCall({prepare,
                                     [&] {
                                         files::Recovery first(scratch("copies\\"));
                                         first.writeNow(page);
                                         first.leave(page.id());
                                     },
                                     [&](const Fault& fault) {
                                         EXPECT_TRUE(fault.said.empty()) << fault.what;
                                         EXPECT_EQ(pageText(), text) << fault.what;
                                         EXPECT_TRUE(page.isChanged()) << fault.what;
                                         files::Recovery next(scratch("copies\\"));
                                         EXPECT_LE(next.takeOver().size(), 1U) << fault.what;
                                     }});
    EXPECT_GT(faults, 0);
}

TEST_F(RecoveryTest, TheEndOfTheSessionAsksNothingAndChangesNothing) {
    changedPage();
    EXPECT_EQ(::SendMessageW(main().mainHwnd(), WM_QUERYENDSESSION, 0, 0), TRUE);
    ::SendMessageW(main().mainHwnd(), WM_ENDSESSION, FALSE, 0);
    EXPECT_EQ(main().documents().size(), 1U);
    EXPECT_TRUE(active().isChanged());
    files::Recovery next(main().temporaryFolder());
    EXPECT_TRUE(next.takeOver().empty()) << "it still runs";
}

}  // namespace
