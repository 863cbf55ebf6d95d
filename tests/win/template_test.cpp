#include "authoring/mTemplateLoad.h"
#include "authoring/template_store.h"
#include "settings/CRegSettings.h"
#include "win/app_test.h"
#include "win/unique.h"

namespace {

using authoring::TemplatePath;

HWND ControlOfClass(HWND dialog, const std::string& cls, int index) {
    for (const HWND child : seen::Below(dialog)) {
        if (seen::ClassOf(child) == cls && ::GetParent(child) == dialog && index-- == 0) return child;
    }
    return nullptr;
}

void Press(HWND dialog, const std::string& button) {
    ::PostMessageA(seen::Child(dialog, button, "Button"), BM_CLICK, 0, 0);
}

class TemplateTest : public AppTest {
 protected:
    void SetUp() override {
        clearFolder();
        AppTest::SetUp();
    }
    void TearDown() override {
        AppTest::TearDown();
        clearFolder();
    }

    static void clearFolder() {
        WIN32_FIND_DATAA found{};
        const HANDLE search = ::FindFirstFileA(TemplatePath("*").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE) return;
        do {
            ::SetFileAttributesA(TemplatePath(found.cFileName).c_str(), FILE_ATTRIBUTE_NORMAL);
            ::DeleteFileA(TemplatePath(found.cFileName).c_str());
        } while (::FindNextFileA(search, &found));
        ::FindClose(search);
        ::RemoveDirectoryA(authoring::TemplateFolder().c_str());
    }

    // Enters name and ID into the dialog. With a message expected, answers it and cancels.
    std::string add(const std::string& name, const std::string& id, const char* messageTitle = nullptr) {
        std::vector<User::Act> acts{{"Add a Template", [&](HWND dialog) {
                                         ::SetWindowTextA(ControlOfClass(dialog, "Edit", 0), name.c_str());
                                         ::SetWindowTextA(ControlOfClass(dialog, "Edit", 1), id.c_str());
                                         Press(dialog, "Enter");
                                     }}};
        if (messageTitle) {
            acts.push_back(User::press(messageTitle, IDOK));
            acts.push_back({"Add a Template", [](HWND dialog) { Press(dialog, "Cancel"); }});
        }
        User user(acts);
        run(mnuOptsTempAdd);
        return messageTitle && user.heard().size() > 1 ? user.heard()[1] : "";
    }

    // Picks an entry of the Organize dialog and one of its options, and has `enter` go on from there.
    static User::Act organize(int entry, const std::string& option, const std::function<void(HWND)>& enter) {
        return {"Organize Templates", [=](HWND dialog) {
                    const HWND list = ControlOfClass(dialog, "ComboBox", 0);
                    ::SendMessageA(seen::Child(dialog, option, "Button"), BM_CLICK, 0, 0);
                    ::SendMessageA(list, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
                    ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(list), CBN_SELCHANGE),
                                   reinterpret_cast<LPARAM>(list));
                    enter(dialog);
                }};
    }

    static void store(std::size_t slot, const std::string& name, const std::string& id) {
        CRegSettings().SaveRegSetting("templateNames", std::to_string(slot), name);
        CRegSettings().SaveRegSetting("templateIDs", std::to_string(slot), id);
    }

    // The IDs of the store, which the menu must show, with what belongs to them.
    std::string ids() {
        std::string text;
        for (std::size_t i = 0; i < authoring::kTemplateSlots; ++i) {
            const auto item = static_cast<Command>(mnuOptsTempList + i);
            const std::string id = CRegSettings().GetRegSetting("templateIDs", std::to_string(i));
            EXPECT_EQ(main().menu().isShown(item), !id.empty()) << "slot " << i;
            EXPECT_EQ(main().menu().caption(item), id) << "slot " << i;
            EXPECT_EQ(CRegSettings().GetRegSetting("templateNames", std::to_string(i)).empty(), id.empty());
            text += id.empty() ? "-" : id + ",";
        }
        const bool any = main().menu().isShown(mnuOptsTempList);
        EXPECT_EQ(main().menu().isShown(mnuOptsTempOrg), any);
        EXPECT_EQ(main().menu().isShown(mnuOptsTempSep1), any);
        return text;
    }

    static DWORD attributes(const std::string& name) {
        return ::GetFileAttributesA(TemplatePath(name).c_str());
    }
};

constexpr DWORD kReadOnly = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE;

TEST_F(TemplateTest, APageBecomesATemplateAndATemplateANewPage) {
    newPage("<B>\r\nx");
    type("!");
    EXPECT_EQ(ids(), "---------");
    add("one.htm", "One & only");
    EXPECT_EQ(ids(), "One & only,--------");
    EXPECT_EQ(readFile(TemplatePath("one.htm")), "!<B>\r\nx\r\n");
    EXPECT_EQ(attributes("one.htm"), kReadOnly);
    EXPECT_TRUE(active().txtPad().isChanged()) << "the page itself has not been saved";

    run(mnuOptsTempList);
    EXPECT_EQ(main().documents().size(), 2U);
    EXPECT_EQ(active().Caption(), "One & only");
    EXPECT_EQ(active().Tag(), "") << "a save must not overwrite the template";
    EXPECT_EQ(pageText(), "!<B>\r\nx\r\n");
    EXPECT_FALSE(active().txtPad().isChanged());
    EXPECT_TRUE(label("Current Line No: 1"));
}

TEST_F(TemplateTest, APageTitledWithWhatIsNoFileNameCanStillBeSaved) {
    newPage("page");
    add("one.htm", "a/b: \"c\"?");
    run(mnuOptsTempList);
    User user({User::chooseFile("Save File As...", scratch("saved.htm"))});
    run(mnuFileSave);
    user.heard();
    EXPECT_EQ(readFile(scratch("saved.htm")), "page\r\n\r\n");
}

TEST_F(TemplateTest, TheTenthDropsTheOldestButNotItsFile) {
    newPage("page");
    for (int i = 0; i < 10; ++i) add("t" + std::to_string(i) + ".htm", std::to_string(i));
    EXPECT_EQ(ids(), "9,8,7,6,5,4,3,2,1,");
    EXPECT_EQ(attributes("t0.htm"), kReadOnly);
    // Its name is free again, and the read-only file gives way.
    active().txtPad().replaceSelection("new ");
    add("t0.htm", "again");
    EXPECT_EQ(ids(), "again,9,8,7,6,5,4,3,2,");
    EXPECT_EQ(readFile(TemplatePath("t0.htm")), "new page\r\n");
    EXPECT_EQ(attributes("t0.htm"), kReadOnly);
}

TEST_F(TemplateTest, WhatCannotBeATemplateIsRefusedAndChangesNothing) {
    newPage("page");
    add("one.htm", "One");
    const std::string before = "One,--------";
    const std::string goBack =
        "\r\nPlease go back and enter a new name,\r\nor delete the template with that name\r\nunder the "
        "ORGANIZE "
        "TEMPLATES menu.";
    const char* const title = "Quillon Note:";
    EXPECT_EQ(add("", "Two", title), "Please enter a filename for the template.");
    EXPECT_EQ(add("two.htm", "", title), "Please enter a ID for the template.");
    EXPECT_EQ(add("one.htm", "Two", title), "That template file is already in use." + goBack);
    EXPECT_EQ(add("ONE.HTM", "Two", title), "That template file is already in use." + goBack);
    EXPECT_EQ(add("two.htm", "One", title), "That template name is already in use." + goBack);
    for (const char* name : {"..\\x.htm", "a*b.htm", "CON", "nul.htm", "C:x.htm"}) {
        EXPECT_NE(add(name, "Two", title), "") << name;
        EXPECT_EQ(ids(), before) << name;
    }
    EXPECT_NE(::GetFileAttributesA(TemplatePath("one.htm").c_str()), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(::GetFileAttributesA(TemplatePath("..\\x.htm").c_str()), INVALID_FILE_ATTRIBUTES);
}

TEST_F(TemplateTest, AFileThatCannotBeWrittenCostsNeitherListNorOlderTemplate) {
    newPage("page");
    add("one.htm", "One");
    // The older file of a template that is no longer listed, held open by somebody.
    writeFile(TemplatePath("two.htm"), "older");
    ::SetFileAttributesA(TemplatePath("two.htm").c_str(), kReadOnly);
    const win::UniqueFile lock(::CreateFileA(TemplatePath("two.htm").c_str(), GENERIC_READ, FILE_SHARE_READ,
                                             nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_EQ(add("two.htm", "Two", "Quillon"), "Could not write to the specified file at this time.");
    EXPECT_EQ(ids(), "One,--------");
    EXPECT_EQ(readFile(TemplatePath("two.htm")), "older");
    EXPECT_EQ(attributes("two.htm"), kReadOnly);
}

TEST_F(TemplateTest, AFolderThatIsNoFolderIsSaid) {
    newPage("page");
    writeFile(authoring::TemplateFolder(), "in the way");
    EXPECT_EQ(add("one.htm", "One", "Quillon"), "Could not write to the specified file at this time.");
    EXPECT_EQ(ids(), "---------");
    ::DeleteFileA(authoring::TemplateFolder().c_str());
}

TEST_F(TemplateTest, RebuildingDropsWhatHasGoneAndClosesTheGaps) {
    ::CreateDirectoryA(authoring::TemplateFolder().c_str(), nullptr);
    for (const char* name : {"a.htm", "b.htm", "c.htm"}) writeFile(TemplatePath(name), name);
    store(1, "a.htm", "A");
    store(2, "gone.htm", "Gone");
    store(4, "b.htm", "B");
    store(5, "", "no name");
    store(8, "c.htm", "C");
    mTemplateLoad::RebuildTemplateMenu(main());
    EXPECT_EQ(ids(), "A,B,C,------");
    clearFolder();
    User user({User::press("Quillon Note:", IDOK)});
    run(mnuOptsTempList + 1);
    EXPECT_EQ(user.heard()[0], "Unable to open Template");
    EXPECT_TRUE(main().documents().empty());
    mTemplateLoad::RebuildTemplateMenu(main());
    EXPECT_EQ(ids(), "---------");
}

TEST_F(TemplateTest, ATemplateIsRenamedInTheMenuOnly) {
    newPage("page");
    add("one.htm", "One");
    add("two.htm", "Two");
    std::string offered;
    User user({{"Organize Templates",
                [&](HWND dialog) {
                    const HWND list = ControlOfClass(dialog, "ComboBox", 0);
                    offered =
                        seen::TextOf(list) + ":" + std::to_string(::SendMessageA(list, CB_GETCOUNT, 0, 0));
                    EXPECT_FALSE(::IsWindowEnabled(ControlOfClass(dialog, "Edit", 0)));
                    Press(dialog, "Enter");  // with nothing chosen
                    organize(1, "ReName", [](HWND form) {
                        const HWND box = ControlOfClass(form, "Edit", 0);
                        EXPECT_TRUE(seen::Until([&] { return ::IsWindowEnabled(box) != FALSE; }));
                        ::SetWindowTextA(box, "");
                        Press(form, "Enter");
                    }).act(dialog);
                }},
               User::press("Quillon Note:", IDOK),
               {"Organize Templates", [](HWND dialog) {
                    ::SetWindowTextA(ControlOfClass(dialog, "Edit", 0), "Uno");
                    Press(dialog, "Enter");
                }}});
    run(mnuOptsTempOrg);
    EXPECT_EQ(user.heard()[1], "Please enter a name for the template.");
    EXPECT_EQ(offered, "Template List:2");
    EXPECT_EQ(ids(), "Two,Uno,-------");
    run(mnuOptsTempList + 1);
    EXPECT_EQ(active().Caption(), "Uno");
    EXPECT_EQ(pageText(), "page\r\n");
}

TEST_F(TemplateTest, DeletingTakesTheFileTooUnlessItIsCalledOff) {
    newPage("page");
    add("one.htm", "One");
    add("two.htm", "Two");
    const auto enter = [](HWND dialog) { Press(dialog, "Enter"); };
    const std::string question = "Confirm file deletion";
    User user({organize(0, "Delete", enter),
               User::press(question, IDNO),
               {"Organize Templates",
                [&](HWND dialog) {
                    EXPECT_EQ(attributes("two.htm"), kReadOnly);
                    enter(dialog);
                }},
               User::press(question, IDYES)});
    run(mnuOptsTempOrg);
    user.heard();
    EXPECT_EQ(ids(), "One,--------");
    EXPECT_EQ(attributes("two.htm"), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(attributes("one.htm"), kReadOnly);
}

TEST_F(TemplateTest, DeletingNeverReachesBeyondTheTemplatesFile) {
    newPage("page");
    add("one.htm", "One");
    for (const char* name : {"*.htm", "gone.htm", "..\\Templates"}) {
        store(0, name, "Odd");
        User user({organize(0, "Delete", [](HWND dialog) { Press(dialog, "Enter"); }),
                   User::press("Quillon Note:", IDOK),
                   {"Organize Templates", [](HWND dialog) { Press(dialog, "Cancel"); }}});
        run(mnuOptsTempOrg);
        EXPECT_EQ(user.heard()[1].find("The file of that template is no longer there."), 0U) << name;
        EXPECT_EQ(attributes("one.htm"), kReadOnly) << name;
    }
}

}  // namespace
