#include "e2e/quillon.h"
#include "menu_ids.h"

#include <shlwapi.h>

namespace {

class PageToolsTest : public QuillonTest {
 protected:
    void TearDown() override { RemoveTemplate("mine.htm"); }

    // The ID of the newest template in the settings.
    static std::string storedId() {
        char text[128] = "";
        DWORD size = sizeof text - 1;
        ::SHGetValueA(HKEY_CURRENT_USER, "Software\\Corvale\\Quillon\\templateIDs", "0", nullptr, text,
                      &size);
        return text;
    }
};

TEST_F(PageToolsTest, TextIsFoundAndReplacedFromTheKeyboard) {
    std::string lines;
    for (int i = 0; i < 4000; ++i) lines += "<P>Some words and a <B>Needle</B> in the hay of a page.</P>\r\n";
    writeFile(scratch("index.htm"), "<HTML>\r\n" + lines);
    const Quillon quillon(scratch("index.htm"));
    quillon.pressKey('F', true);
    const HWND find = quillon.waitForDialog("Find");
    quillon.typeText("needle");
    quillon.pressKey(VK_RETURN);
    EXPECT_TRUE(seen::Until([&] { return seen::LabelsOf(find) == "4000\r\noccurrences"; }));
    quillon.pressKey('F', true);  // the page has the focus by now
    quillon.pressKey(VK_ESCAPE);
    EXPECT_TRUE(seen::Until([&] { return !::IsWindow(find); }));
    quillon.pressKey('H', true);
    const HWND replace = quillon.waitForDialog("Replace");
    quillon.typeText("Needle");
    quillon.pressKey(VK_TAB);
    quillon.typeText("Pin");
    quillon.pressKey(VK_RETURN);
    EXPECT_TRUE(quillon.shows("Last Replace changed 1 occurrence."));
    EXPECT_EQ(quillon.pageText().substr(0, 38), "<HTML>\r\n<P>Some words and a <B>Pin</B>");
    ::PostMessageA(seen::Child(replace, "Replace All", "Button"), BM_CLICK, 0, 0);
    EXPECT_TRUE(quillon.shows("Last Replace changed  3999 occurrences."));
    EXPECT_EQ(quillon.pageText().find("Needle"), std::string::npos);
}

TEST_F(PageToolsTest, ATemplateIsThereAgainAtTheNextStart) {
    const std::string page = "<HTML>\r\n" + std::string(100000, 'x') + "\u00E9</HTML>";
    writeFile(scratch("page.htm"), page);
    {
        const Quillon quillon(scratch("page.htm"));
        quillon.choose(mnuOptsTempAdd);
        const HWND dialog = quillon.waitForDialog("Add a Template");
        seen::FillIn(dialog, "mine.htm", "My Cool Template", "Enter");
        EXPECT_TRUE(seen::Until([&] { return !::IsWindow(dialog); }));
    }
    EXPECT_TRUE(readFile(TemplatePath("mine.htm")) == page + "\r\n");
    {
        const Quillon quillon;
        quillon.choose(mnuOptsTempList);
        EXPECT_TRUE(seen::Until([&] { return quillon.pageCaption() == "My Cool Template"; }));
        EXPECT_TRUE(quillon.pageText() == page + "\r\n");
    }
    EXPECT_EQ(storedId(), "My Cool Template");
    RemoveTemplate("mine.htm");
    const Quillon quillon;
    EXPECT_EQ(storedId(), "My Cool Template") << "a start writes nothing, although its file has gone";
}

}  // namespace
