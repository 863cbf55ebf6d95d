#include <ctime>

#include "authoring/core/modScripts.h"
#include "authoring/core/tag_fragments.h"
#include "win/app_test.h"

namespace {

using authoring::TagMenu;

// The first item of each menu, and what the menu inserts.
constexpr std::pair<int, TagMenu> kMenus[] = {{mnuTagsBasicList, TagMenu::Basic},
                                              {mnuTagsBodyInc, TagMenu::BodyInc},
                                              {mnuTagsModList, TagMenu::Mod},
                                              {mnuTagsFontList, TagMenu::Font},
                                              {mnuTagsImg, TagMenu::Img},
                                              {mnuTagsHref, TagMenu::Href},
                                              {mnuTagsRuleList, TagMenu::Rule},
                                              {mnuTagsAlignList, TagMenu::Align},
                                              {mnutagsTableList, TagMenu::Table},
                                              {mnuTagsFSetList, TagMenu::FSet},
                                              {mnuTagsFrameList, TagMenu::Frame},
                                              {mnuTagsFormList, TagMenu::Form},
                                              {mnuTagsInputList, TagMenu::Input},
                                              {mnuTagsLsList, TagMenu::Ls},
                                              {mnuTagsOlList, TagMenu::Ol},
                                              {mnutagsDLs, TagMenu::DLs},
                                              {mnuTagsSpecialChar, TagMenu::Special}};

class TagsTest : public AppTest {
 protected:
    // A page in which "this" is to be replaced.
    void SetUp() override {
        AppTest::SetUp();
        newPage("keep this too").txtPad().select(5, 9);
    }
    // In one step, and the caret is behind it. Afterwards all is as before.
    void expectReplacedBy(const std::string& fragment) {
        EXPECT_EQ(pageText(), "keep " + fragment + " too");
        const std::string caret = std::to_string(5 + fragment.size());
        EXPECT_EQ(selected(), caret + "-" + caret);
        EXPECT_TRUE(active().txtPad().isChanged());
        run(mnuEditUndo);
        EXPECT_EQ(pageText(), "keep this too");
        active().txtPad().select(5, 9);
    }
    void expectInserts(int command, std::string_view fragment) {
        SCOPED_TRACE(command);
        run(static_cast<Command>(command));
        if (!fragment.empty()) return expectReplacedBy(std::string(fragment));
        EXPECT_EQ(active().txtPad().selectedText(), "this");
    }
    static User::Act answering(const std::string& reply, WORD button) {
        return {"Font Size", [=](HWND form) {
                    ::SetWindowTextA(seen::ChildOfClass(form, "Edit"), reply.c_str());
                    ::PostMessageA(form, WM_COMMAND, button, 0);
                }};
    }
};

TEST_F(TagsTest, EveryItemReplacesTheSelectionWithItsFragmentInOneStepOrLeavesIt) {
    for (const auto& [first, menu] : kMenus) {
        int items = 9;
        while (authoring::TagFragment(menu, items - 1).empty()) --items;
        for (int i = 0; i < items; ++i) {
            if (first + i == mnuTagsFontList + 1) continue;  // it asks
            expectInserts(first + i, authoring::TagFragment(menu, i));
        }
    }
    for (int i = 0; i < 6; ++i) expectInserts(mnuScriptTags + i, modScripts::ScriptBlock(i));
    const char* keywords[] = {"drop", "goBtn", "Wnd", "dCbo"};
    for (int i = 0; i < 4; ++i) expectInserts(mnuScriptDrops + i, modScripts::MakeDropMenu(keywords[i]));
}

TEST_F(TagsTest, AFontSizeGoesInAsItWasTypedAndNoneDeletesTheSelection) {
    const auto ask = [&] { run(mnuTagsFontList + 1); };
    const std::tuple<const char*, WORD, const char*> answers[] = {
        {"75", IDOK, "<FONT size=75></FONT>"}, {"", IDOK, ""}, {"5", IDCANCEL, ""}};
    for (const auto& [reply, button, fragment] : answers) {
        EXPECT_EQ(heard(ask, {answering(reply, button)}), "Type in  number below between 1 and 7.");
        expectReplacedBy(fragment);
    }
    EXPECT_EQ(heard(ask, {answering("8", IDOK), User::press("Size out of range...", IDOK)}),
              "You will have to try again.\r\nRemember to enter a number between 1 and 7.");
    EXPECT_EQ(active().txtPad().selectedText(), "this");
}

TEST_F(TagsTest, TheDateIsTodays) {
    const auto today = [] {
        const std::time_t now = std::time(nullptr);
        char text[40];
        return std::string(text, std::strftime(text, sizeof text, "%B %d, %Y", std::localtime(&now)));
    };
    const std::string before = today();
    run(mnuTagsDate);
    const bool isOfBefore = pageText().find(before) != std::string::npos;
    expectReplacedBy(isOfBefore ? before : today());  // at midnight it may be either
}

TEST_F(TagsTest, AnInsertAnUndoAndASaveKeepEveryByteOfThePage) {
    const std::string page = "<BODY>\r\n\tcaf\xE9 \x80\xFF\r\n\r\n</BODY>";
    writeFile(scratch("page.htm"), "");
    frmChild& document = newPage(page);
    document.setTag(scratch("page.htm"));
    document.txtPad().select(8, 8);
    run(mnuTagsLsList);
    EXPECT_EQ(pageText(),
              "<BODY>\r\n" + std::string(authoring::TagFragment(TagMenu::Ls, 0)) + page.substr(8));
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), page);
    run(mnuFileSave);
    EXPECT_EQ(readFile(scratch("page.htm")), page + "\r\n");
}

}  // namespace
