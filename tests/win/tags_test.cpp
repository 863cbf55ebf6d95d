#include <ctime>

#include "authoring/core/modScripts.h"
#include "win/app_test.h"

namespace {

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
    static User::Act answering(const std::string& reply, WORD button) {
        return {"Font Size", [=](HWND form) {
                    ::SetWindowTextA(seen::ChildOfClass(form, "Edit"), reply.c_str());
                    ::PostMessageA(form, WM_COMMAND, button, 0);
                }};
    }
};

TEST_F(TagsTest, EveryMenuReplacesTheSelectionWithItsOwnFragmentInOneStep) {
    for (const Item& item : kItems) {
        run(item.command);
        expectReplacedBy(item.fragment);
    }
    const char* keywords[] = {"drop", "goBtn", "Wnd", "dCbo"};
    for (int i = 0; i < 4; ++i) {
        run(static_cast<Command>(mnuScriptDrops + i));
        expectReplacedBy(modScripts::MakeDropMenu(keywords[i]));
    }
}

TEST_F(TagsTest, ItemsWithoutAFragmentLeaveTheSelectionAlone) {
    for (const int command : {mnuScriptTags + 3, mnuScriptTags + 4, mnuScriptTags + 5, mnuTagsFSetList + 2,
                              mnuTagsFormList + 2, mnuTagsFormList + 4}) {
        run(static_cast<Command>(command));
        EXPECT_EQ(active().txtPad().selectedText(), "this");
    }
    EXPECT_FALSE(active().txtPad().isChanged());
}

TEST_F(TagsTest, AFontSizeGoesInAsItWasTypedAndNoneDeletesTheSelection) {
    const struct {
        const char* reply;
        WORD button;
        const char* fragment;
    } answers[] = {{"75", IDOK, "<FONT size=75></FONT>"}, {"", IDOK, ""}, {"5", IDCANCEL, ""}};
    for (const auto& answer : answers) {
        User user({answering(answer.reply, answer.button)});
        run(mnuTagsFontList + 1);
        EXPECT_EQ(user.heard()[0], "Type in  number below between 1 and 7.");
        expectReplacedBy(answer.fragment);
    }
    User user({answering("8", IDOK), User::press("Size out of range...", IDOK)});
    run(mnuTagsFontList + 1);
    EXPECT_EQ(user.heard()[1], "You will have to try again.\r\nRemember to enter a number between 1 and 7.");
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
    const std::string list = "<UL type=disc>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n   <LI>\r\n</UL>";
    EXPECT_EQ(pageText(), "<BODY>\r\n" + list + page.substr(8));
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), page);
    run(mnuFileSave);
    EXPECT_EQ(readFile(scratch("page.htm")), page + "\r\n");
}

}  // namespace
