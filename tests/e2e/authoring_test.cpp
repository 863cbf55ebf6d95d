#include "e2e/quillon.h"
#include "menu_ids.h"
#include "support/standin_word.h"

namespace {

// The ID of the newest template in the settings.
std::string StoredId() {
    char text[128] = "";
    DWORD size = sizeof text - 1;
    HKEY key = nullptr;
    ::RegOpenKeyA(HKEY_CURRENT_USER, "Software\\Corvale\\Quillon\\templateIDs", &key);
    ::RegQueryValueExA(key, "0", nullptr, nullptr, reinterpret_cast<BYTE*>(text), &size);
    ::RegCloseKey(key);
    return text;
}

class AuthoringTest : public QuillonTest {
 protected:
    void SetUp() override {
        QuillonTest::SetUp();
        RemoveTemplate("mine.htm");
    }
    void TearDown() override { RemoveTemplate("mine.htm"); }
    static std::string page() {
        std::string text = "<HTML>\r\n";
        while (text.size() < 300000) text += "<P>A line of teh page, caf\xE9 &amp; bread.</P>\r\n";
        return text + "</HTML>\r\n";
    }
};

TEST_F(AuthoringTest, ATemplateIsThereAgainAtTheNextStartIfItsFileIs) {
    writeFile(scratch("page.htm"), page());
    {
        Quillon quillon(scratch("page.htm"));
        quillon.choose("Options/Templates/Add  Current Page");
        const HWND dialog = quillon.waitForDialog("Add a Template");
        const HWND name = seen::ChildOfClass(dialog, "Edit");
        const HWND id = ::GetNextDlgTabItem(dialog, name, FALSE);
        ::SendMessageA(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("mine.htm"));
        ::SendMessageA(id, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("My Cool Template"));
        ::PostMessageA(seen::Child(dialog, "Enter", "Button"), BM_CLICK, 0, 0);
        EXPECT_TRUE(seen::Until([&] { return !::IsWindow(dialog); }));
    }
    EXPECT_TRUE(readFile(TemplatePath("mine.htm")) == page() + "\r\n");
    {
        Quillon quillon;
        ::PostMessageA(quillon.window(), WM_COMMAND, mnuOptsTempList, 0);
        EXPECT_TRUE(seen::Until([&] { return quillon.pageCaption() == "My Cool Template"; }));
        EXPECT_TRUE(quillon.pageText() == page() + "\r\n");
    }
    EXPECT_EQ(StoredId(), "My Cool Template");
    RemoveTemplate("mine.htm");
    const Quillon quillon;
    EXPECT_EQ(StoredId(), "") << "its file has gone";
}

TEST_F(AuthoringTest, ALargePageIsSpellChecked) {
    const StandinWord word(scratch("word.log"));
    writeFile(scratch("page.htm"), page());
    Quillon quillon(scratch("page.htm"));
    ::PostMessageA(seen::Child(quillon.window(), "Spelling", "Button"), BM_CLICK, 0, 0);
    EXPECT_EQ(quillon.answer("Quillon Note:", IDOK), "Spell Check Completed.");
    std::string corrected = page();
    for (std::size_t at = 0; (at = corrected.find("teh", at)) != std::string::npos;)
        corrected.replace(at, 3, "the");
    EXPECT_TRUE(quillon.pageText() == corrected);
}

}  // namespace
