#include <optional>

#include "e2e/quillon.h"
#include "menu_ids.h"
#include "support/standin_browser.h"

namespace {

class PageToolsTest : public QuillonTest {
 protected:
    void open(const std::string& text) {
        writeFile(scratch("index.htm"), text);
        quillon_.emplace(scratch("index.htm"));
    }
    Quillon& quillon() { return *quillon_; }
    bool isGone(const std::string& name) {
        return seen::Until(
            [&] { return ::GetFileAttributesA(scratch(name).c_str()) == INVALID_FILE_ATTRIBUTES; });
    }

 private:
    std::optional<Quillon> quillon_;
};

TEST_F(PageToolsTest, TextIsFoundAndReplacedFromTheKeyboard) {
    std::string lines;
    for (int i = 0; i < 4000; ++i) lines += "<P>Some words and a <B>Needle</B> in the hay of a page.</P>\r\n";
    open("<HTML>\r\n" + lines);
    quillon().pressKey('F', true);
    const HWND find = quillon().waitForDialog("Find");
    quillon().typeText("needle");
    quillon().pressKey(VK_RETURN);
    EXPECT_TRUE(seen::Until([&] { return seen::LabelsOf(find) == "4000\r\noccurrences"; }));
    quillon().pressKey('F', true);
    quillon().pressKey(VK_ESCAPE);
    EXPECT_TRUE(seen::Until([&] { return !::IsWindow(find); }));
    quillon().pressKey('H', true);
    const HWND replace = quillon().waitForDialog("Replace");
    quillon().typeText("Needle");
    quillon().pressKey(VK_TAB);
    quillon().typeText("Pin");
    quillon().pressKey(VK_RETURN);
    EXPECT_TRUE(quillon().shows("Last Replace changed 1 occurrence."));
    EXPECT_EQ(quillon().pageText().substr(0, 38), "<HTML>\r\n<P>Some words and a <B>Pin</B>");
    ::PostMessageA(seen::Child(replace, "Replace All", "Button"), BM_CLICK, 0, 0);
    EXPECT_TRUE(quillon().shows("Last Replace changed  3999 occurrences."));
    EXPECT_EQ(quillon().pageText().find("Needle"), std::string::npos);
    EXPECT_FALSE(::IsWindow(replace));
}

TEST_F(PageToolsTest, ClosingTheProgramDuringAPreviewLeavesNoCopy) {
    const Browser browser(Browser::standIn(), scratch("seen"));
    open("<P>saved");
    quillon().typeText("new ");
    ASSERT_TRUE(seen::Until([&] { return quillon().pageText() == "new <P>saved"; }));
    ::PostMessageA(quillon().window(), WM_COMMAND, tbrPreview, 0);
    EXPECT_NE(browser.shown().find(scratch("$$index.htm")), std::string::npos);
    EXPECT_EQ(browser.page(), "new <P>saved\r\n");
    ::PostMessageA(quillon().window(), WM_CLOSE, 0, 0);
    quillon().answer("Quillon", IDNO);
    EXPECT_TRUE(quillon().waitForEnd());
    EXPECT_TRUE(isGone("$$index.htm"));
    EXPECT_EQ(readFile(scratch("index.htm")), "<P>saved");
}

}  // namespace
