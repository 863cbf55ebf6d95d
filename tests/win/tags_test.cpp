#include <ctime>

#include "authoring/tags/core/modScripts.h"
#include "authoring/tags/core/tag_fragments.h"
#include "win/app_test.h"

namespace {

using authoring::TagMenu;

// The first item of each menu, in the order of TagMenu.
constexpr int kFirstItems[] = {
    mnuTagsBasicList, mnuTagsBodyInc,   mnuTagsModList,   mnuTagsFontList, mnuTagsImg,        mnuTagsHref,
    mnuTagsRuleList,  mnuTagsAlignList, mnutagsTableList, mnuTagsFSetList, mnuTagsFrameList,  mnuTagsFormList,
    mnuTagsInputList, mnuTagsLsList,    mnuTagsOlList,    mnutagsDLs,      mnuTagsSpecialChar};

class TagsTest : public AppTest {
 protected:
    // Opens a page in which "this" is selected.
    void SetUp() override {
        AppTest::SetUp();
        newPage("keep this too").txtPad().select(5, 9);
    }
    // Checks that this was one step of undo and that the caret is behind the fragment, then undoes it.
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
        EXPECT_EQ(active().txtPad().selectedText(), u"this");
    }
};

TEST_F(TagsTest, EveryItemReplacesTheSelectionWithItsFragmentInOneStepOrLeavesIt) {
    auto menu = TagMenu::Basic;
    for (const int first : kFirstItems) {
        int items = 9;
        while (authoring::TagFragment(menu, items - 1).empty()) --items;
        for (int i = 0; i < items; ++i) {
            if (first + i == mnuTagsFontList + 1) continue;  // it asks for a size
            expectInserts(first + i, authoring::TagFragment(menu, i));
        }
        menu = static_cast<TagMenu>(static_cast<int>(menu) + 1);
    }
    for (int i = 0; i < 6; ++i) expectInserts(mnuScriptTags + i, modScripts::ScriptBlock(i));
    const char* keywords[] = {"drop", "goBtn", "Wnd", "dCbo"};
    for (int i = 0; i < 4; ++i) expectInserts(mnuScriptDrops + i, modScripts::MakeDropMenu(keywords[i]));
}

TEST_F(TagsTest, AFontSizeIsInsertedAsTypedAndNoneDeletesTheSelection) {
    const auto ask = [&] { run(mnuTagsFontList + 1); };
    const std::tuple<const char*, WORD, const char*> answers[] = {
        {"75", IDOK, "<FONT size=75></FONT>"}, {"", IDOK, ""}, {"5", IDCANCEL, ""}};
    for (const auto& [reply, button, fragment] : answers) {
        EXPECT_EQ(heard(ask, {User::enter("Font Size", reply, button)}),
                  "Type in  number below between 1 and 7.");
        expectReplacedBy(fragment);
    }
    EXPECT_EQ(heard(ask, {User::enter("Font Size", "8"), User::press("Size out of range...", IDOK)}),
              "You will have to try again.\r\nRemember to enter a number between 1 and 7.");
    EXPECT_EQ(active().txtPad().selectedText(), u"this");
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
    expectReplacedBy(isOfBefore ? before : today());  // midnight may have passed
}

}  // namespace
