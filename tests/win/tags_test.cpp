#include <ctime>

#include "authoring/core/modScripts.h"
#include "win/app_test.h"

namespace {

using document::Selection;

// One item of every menu, the last of each list, as it reads in the page.
struct Item {
    Command command;
    const char* fragment;
};

const Item kItems[] = {
    {mnuTagsBasicList + 3, "<BODY>\r\n\r\n</BODY>"},
    {mnuTagsBodyInc + 4, " onload=\"\""},
    {mnuTagsModList + 5, "<!--    -->"},
    {mnuTagsFontList + 4, "<FONT size= color= face=\"\"></FONT>"},
    {mnuTagsImg, "<IMG SRC=\"\" NAME=\"\" width=X height=Y border=0 alt=\"\">"},
    {mnuTagsHref, "<A HREF=\"\"></A>"},
    {mnuTagsRuleList + 5, "<HR size= width= color= align=>"},
    {mnuTagsAlignList + 3, "<span ID=\"\"></span>"},
    {mnutagsTableList, "<TABLE><TR><TD>\r\n\r\n</TD></TR>\r\n</TABLE>"},
    {mnuTagsFSetList + 3, "<NOFRAMES></NOFRAMES>"},
    {mnuTagsFrameList + 3, " NORESIZE"},
    {mnuTagsFormList + 3, "<TEXTAREA NAME=\"\" COLS=\"40\" ROWS=\"6\" WRAP=\"VIRTUAL\">\r\n</TEXTAREA>"},
    {mnuTagsInputList + 7, "<INPUT TYPE=\"SUBMIT\" VALUE=\"Submit\">"},
    {mnuTagsLsList + 2, "<UL type=square>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n</UL>"},
    {mnuTagsOlList, "<OL>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n</OL>"},
    {mnutagsDLs,
     "<DL>  <!-- List an item after <DT>, subitem after <DD> -->\r\n    <DT>\r\n        <DD>\r\n</DL>"},
    {mnuTagsSpecialChar + 6, "&reg;"},
    {mnuScriptTags + 1, "<SCRIPT LANGUAGE=\"VBScript\">\r\n<!--\r\n\r\n-->\r\n</SCRIPT>"},
};

class TagsTest : public AppTest {
 protected:
    // A page in which "this" is to be replaced.
    frmChild& selectedPage() {
        frmChild& page = newPage("keep this too");
        page.txtPad().select(5, 9);
        return page;
    }
    void expectCaretBehind(const std::string& text) {
        const Selection caret = active().txtPad().selection();
        EXPECT_EQ(caret.start, static_cast<long>(text.size()));
        EXPECT_EQ(caret.length(), 0);
    }
    void expectReplacedBy(const std::string& fragment) {
        EXPECT_EQ(pageText(), "keep " + fragment + " too");
        expectCaretBehind("keep " + fragment);
        EXPECT_TRUE(active().txtPad().isChanged());
        run(mnuEditUndo);
        EXPECT_EQ(pageText(), "keep this too");
    }
    void answerFontSize(const std::string& reply, WORD button) {
        User user({{"Font Size", [&](HWND box) {
                        ::SendMessageA(seen::ChildOfClass(box, "Edit"), WM_SETTEXT, 0,
                                       reinterpret_cast<LPARAM>(reply.c_str()));
                        ::PostMessageA(box, WM_COMMAND, button, 0);
                    }}});
        run(mnuTagsFontList + 1);
        EXPECT_EQ(user.heard()[0], "Type in  number below between 1 and 7.");
    }
};

TEST_F(TagsTest, EveryMenuReplacesTheSelectionWithItsOwnFragmentInOneStep) {
    selectedPage();
    for (const Item& item : kItems) {
        active().txtPad().select(5, 9);
        run(item.command);
        expectReplacedBy(item.fragment);
    }
}

TEST_F(TagsTest, TheFourNavigationMenusComeInTheirOrder) {
    const char* keywords[] = {"drop", "goBtn", "Wnd", "dCbo"};
    selectedPage();
    for (int i = 0; i < 4; ++i) {
        active().txtPad().select(5, 9);
        run(static_cast<Command>(mnuScriptDrops + i));
        expectReplacedBy(modScripts::MakeDropMenu(keywords[i]));
    }
}

TEST_F(TagsTest, ItemsWithoutAFragmentLeaveTheSelectionAlone) {
    selectedPage();
    for (const int command : {mnuScriptTags + 3, mnuScriptTags + 4, mnuScriptTags + 5, mnuTagsFSetList + 2,
                              mnuTagsFormList + 2, mnuTagsFormList + 4}) {
        run(static_cast<Command>(command));
        EXPECT_EQ(active().txtPad().selectedText(), "this");
    }
    EXPECT_FALSE(active().txtPad().isChanged());
}

TEST_F(TagsTest, AFontSizeGoesInAsItWasTyped) {
    selectedPage();
    answerFontSize("75", IDOK);
    expectReplacedBy("<FONT size=75></FONT>");
}

TEST_F(TagsTest, NoFontSizeDeletesTheSelection) {
    for (const WORD button : {WORD{IDOK}, WORD{IDCANCEL}}) {
        selectedPage();
        answerFontSize(button == IDOK ? "" : "5", button);
        expectReplacedBy("");
    }
}

TEST_F(TagsTest, AFontSizeOutOfRangeIsToldAndChangesNothing) {
    selectedPage();
    User user({{"Font Size",
                [](HWND box) {
                    ::SendMessageA(seen::ChildOfClass(box, "Edit"), WM_SETTEXT, 0,
                                   reinterpret_cast<LPARAM>("8"));
                    ::PostMessageA(box, WM_COMMAND, IDOK, 0);
                }},
               User::press("Size out of range...", IDOK)});
    run(mnuTagsFontList + 1);
    EXPECT_EQ(user.heard().at(1),
              "You will have to try again.\r\nRemember to enter a number between 1 and 7.");
    EXPECT_EQ(active().txtPad().selectedText(), "this");
}

TEST_F(TagsTest, TheDateIsTodays) {
    const auto today = [] {
        const std::time_t now = std::time(nullptr);
        char text[40];
        return std::string(text, std::strftime(text, sizeof text, "%B %d, %Y", std::localtime(&now)));
    };
    selectedPage();
    const std::string before = today();
    run(mnuTagsDate);
    const std::string after = today();
    EXPECT_TRUE(pageText() == "keep " + before + " too" || pageText() == "keep " + after + " too")
        << pageText();
}

TEST_F(TagsTest, AnInsertAnUndoAndASaveKeepEveryByteOfThePage) {
    const std::string page = "<BODY>\r\n\tcaf\xE9 \x80\xFF\r\n\r\n</BODY>";
    writeFile(scratch("page.htm"), "");
    frmChild& document = newPage(page);
    document.setTag(scratch("page.htm"));
    document.txtPad().select(8, 8);
    run(mnuTagsLsList);
    const std::string list = "<UL type=disc>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n</UL>";
    EXPECT_EQ(pageText(), "<BODY>\r\n" + list + page.substr(8));
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), page);
    run(mnuFileSave);
    EXPECT_EQ(readFile(scratch("page.htm")), page + "\r\n");
}

}  // namespace
