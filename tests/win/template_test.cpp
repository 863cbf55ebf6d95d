#include "authoring/templates/mTemplateLoad.h"
#include "authoring/templates/template_store.h"
#include "settings/CRegSettings.h"
#include "win/app_test.h"

namespace {

using authoring::TemplatePath;

constexpr DWORD kReadOnly = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE;
constexpr char kAdd[] = "Add a Template";
constexpr char kOrganize[] = "Organize Templates";
constexpr char kNote[] = "Quillon Note:";

void Press(HWND dialog, const std::string& button) {
    ::PostMessageA(seen::Child(dialog, button, "Button"), BM_CLICK, 0, 0);
}

class TemplateTest : public AppTest {
 protected:
    void SetUp() override {
        clearFolder();
        AppTest::SetUp();
        newPage("page");
    }
    void TearDown() override {
        AppTest::TearDown();
        clearFolder();
    }

    static void clearFolder() { DeleteTree(authoring::TemplateFolder()); }

    // Enters name and ID into the dialog. Where a message is expected, answers it, cancels and returns it.
    std::string add(const std::string& name, const std::string& id, const char* messageTitle = nullptr) {
        std::vector<User::Act> acts{{kAdd, [&](HWND form) { seen::FillIn(form, name, id, "Enter"); }}};
        if (messageTitle) {
            acts.push_back(User::press(messageTitle, IDOK));
            acts.push_back(User::press(kAdd, IDCANCEL));
        }
        const auto heard = User::hears([&] { run(mnuOptsTempAdd); }, acts);
        return messageTitle ? heard[1] : "";
    }

    // Chooses an entry of the Organize dialog and one of its options.
    static void choose(HWND dialog, int entry, const std::string& option) {
        const HWND list = ControlsOfClass(dialog, "ComboBox").at(0);
        ::SendMessageA(seen::Child(dialog, option, "Button"), BM_CLICK, 0, 0);
        ::SendMessageA(list, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
        Notify(list, CBN_SELCHANGE);
    }
    // Returns what the first message over the Organize dialog says.
    std::string organize(const std::vector<User::Act>& acts) {
        return User::hears([&] { run(mnuOptsTempOrg); }, acts)[1];
    }
    static User::Act deleting(int entry) {
        return {kOrganize, [entry](HWND dialog) {
                    choose(dialog, entry, "Delete");
                    Press(dialog, "Enter");
                }};
    }

    static void store(std::size_t slot, const std::string& name, const std::string& id) {
        CRegSettings().SaveRegSetting("templateNames", std::to_string(slot), name);
        CRegSettings().SaveRegSetting("templateIDs", std::to_string(slot), id);
    }

    // The IDs in the store; in brackets those that the menu does not show.
    std::string ids() {
        std::string text;
        for (std::size_t i = 0; i < authoring::kTemplateSlots; ++i) {
            const auto item = static_cast<Command>(mnuOptsTempList + i);
            const std::string id = CRegSettings().GetRegSetting("templateIDs", std::to_string(i));
            EXPECT_EQ(CRegSettings().GetRegSetting("templateNames", std::to_string(i)).empty(), id.empty());
            const bool shown = main().menu().isShown(item);
            EXPECT_EQ(main().menu().caption(item), shown ? id : "") << "slot " << i;
            text += id.empty() ? "-" : shown ? id + "," : "[" + id + "]";
        }
        EXPECT_EQ(main().menu().isShown(mnuOptsTempOrg), text != "---------");
        EXPECT_EQ(main().menu().isShown(mnuOptsTempSep1), text != "---------");
        return text;
    }

    static DWORD attributes(const std::string& name) {
        return ::GetFileAttributesA(TemplatePath(name).c_str());
    }
};

TEST_F(TemplateTest, APageBecomesATemplateAndATemplateANewPage) {
    type("!");
    EXPECT_EQ(ids(), "---------");
    add("one.htm", "One & \u0141/b: \"c\"?");
    EXPECT_EQ(ids(), "One & \u0141/b: \"c\"?,--------");
    EXPECT_EQ(readFile(TemplatePath("one.htm")), "!page\r\n");
    EXPECT_EQ(attributes("one.htm"), kReadOnly);
    EXPECT_TRUE(active().txtPad().isChanged()) << "the page itself has not been saved";

    run(mnuOptsTempList);
    EXPECT_EQ(main().documents().size(), 2U);
    EXPECT_EQ(active().Caption(), "One & \u0141/b: \"c\"?");
    EXPECT_EQ(active().Tag(), "") << "a save must not overwrite the template";
    EXPECT_EQ(pageText(), "!page\r\n");
    EXPECT_FALSE(active().txtPad().isChanged());
    EXPECT_TRUE(label("Current Line No: 1"));
    heard([&] { run(mnuFileSave); }, {User::chooseFile("Save File As...", scratch("saved.htm"))});
    EXPECT_EQ(readFile(scratch("saved.htm")), "!page\r\n\r\n") << "although its title is no file name";
}

TEST_F(TemplateTest, TheTenthDropsTheOldestButNotItsFile) {
    for (int i = 0; i < 10; ++i) add("t" + std::to_string(i) + ".htm", std::to_string(i));
    EXPECT_EQ(ids(), "9,8,7,6,5,4,3,2,1,");
    EXPECT_EQ(attributes("t0.htm"), kReadOnly);
    // Its name is free again, and the read-only file is replaced.
    active().insert(u"new ");
    add("t0.htm", "again");
    EXPECT_EQ(ids(), "again,9,8,7,6,5,4,3,2,");
    EXPECT_EQ(readFile(TemplatePath("t0.htm")), "new page\r\n");
    EXPECT_EQ(attributes("t0.htm"), kReadOnly);
}

TEST_F(TemplateTest, WhatCannotBeATemplateIsRefusedAndChangesNothing) {
    add("one.htm", "One");
    EXPECT_EQ(add("", "Two", kNote), "Please enter a filename for the template.");
    EXPECT_EQ(add("ONE.HTM", "Two", kNote).find("That template file is already in use.\r\n"), 0U);
    EXPECT_NE(add("..\\x.htm", "Two", kNote), "");
    EXPECT_EQ(ids(), "One,--------");
    EXPECT_EQ(attributes("one.htm"), kReadOnly);
    EXPECT_EQ(attributes("..\\x.htm"), INVALID_FILE_ATTRIBUTES);
}

TEST_F(TemplateTest, AFileThatCannotBeWrittenLeavesTheListAndTheOlderTemplateAlone) {
    constexpr char kFailed[] = "Could not write to the specified file at this time.";
    writeFile(authoring::TemplateFolder(), "in the way");
    EXPECT_EQ(add("one.htm", "One", "Quillon"), kFailed);
    EXPECT_EQ(ids(), "---------");
    ::DeleteFileA(authoring::TemplateFolder().c_str());
    add("one.htm", "One");
    // The older file of a template that is no longer listed, held open by another program.
    writeFile(TemplatePath("two.htm"), "older");
    ::SetFileAttributesA(TemplatePath("two.htm").c_str(), kReadOnly);
    const win::UniqueFile lock = hold(TemplatePath("two.htm"), FILE_SHARE_READ);
    EXPECT_EQ(add("two.htm", "Two", "Quillon"), kFailed);
    EXPECT_EQ(ids(), "One,--------");
    EXPECT_EQ(readFile(TemplatePath("two.htm")), "older");
    EXPECT_EQ(attributes("two.htm"), kReadOnly);
}

TEST_F(TemplateTest, AStartHidesEntriesWithoutAFileAndOnlyRebuildingDropsThem) {
    ::CreateDirectoryA(authoring::TemplateFolder().c_str(), nullptr);
    writeFile(TemplatePath("a.htm"), "template");
    store(1, "gone.htm", "Gone");
    store(8, "a.htm", "A");
    mTemplateLoad::ShowTemplateMenu(main());
    EXPECT_EQ(ids(), "-[Gone]------A,");
    run(mnuOptsTempList + 8);
    EXPECT_EQ(pageText(), "template");
    mTemplateLoad::RebuildTemplateMenu(main());
    EXPECT_EQ(ids(), "A,--------");
    clearFolder();
    EXPECT_EQ(said(mnuOptsTempList, kNote), "Unable to open Template");
    EXPECT_EQ(main().documents().size(), 2U);
    mTemplateLoad::RebuildTemplateMenu(main());
    EXPECT_EQ(ids(), "---------");
}

TEST_F(TemplateTest, ATemplateIsRenamedInTheMenuOnlyAndDeletedWithItsFileUnlessTheUserDeclines) {
    add("one.htm", "One");
    add("two.htm", "Two");
    const auto enterNothing = [](HWND dialog) {
        const HWND list = ControlsOfClass(dialog, "ComboBox").at(0);
        const HWND box = ControlsOfClass(dialog, "Edit").at(0);
        EXPECT_EQ(seen::TextOf(list), "Template List");
        EXPECT_EQ(::SendMessageA(list, CB_GETCOUNT, 0, 0), 2);
        EXPECT_FALSE(::IsWindowEnabled(box));
        // With nothing chosen. It is sent: if posted, it would arrive after the messages that follow.
        ::SendMessageA(seen::Child(dialog, "Enter", "Button"), BM_CLICK, 0, 0);
        choose(dialog, 1, "ReName");
        EXPECT_TRUE(seen::Until([&] { return ::IsWindowEnabled(box) != FALSE; }));
        ::SetWindowTextA(box, "");
        Press(dialog, "Enter");
    };
    const auto enterUno = [](HWND dialog) {
        ::SetWindowTextA(ControlsOfClass(dialog, "Edit").at(0), "Uno");
        Press(dialog, "Enter");
    };
    EXPECT_EQ(organize({{kOrganize, enterNothing}, User::press(kNote, IDOK), {kOrganize, enterUno}}),
              "Please enter a name for the template.");
    EXPECT_EQ(ids(), "Two,Uno,-------");
    run(mnuOptsTempList + 1);
    EXPECT_EQ(active().Caption(), "Uno");
    EXPECT_EQ(pageText(), "page\r\n");
    const auto enterAgain = [](HWND dialog) {
        EXPECT_EQ(attributes("two.htm"), kReadOnly);
        Press(dialog, "Enter");
    };
    organize({deleting(0),
              User::press("Confirm file deletion", IDNO),
              {kOrganize, enterAgain},
              User::press("Confirm file deletion", IDYES)});
    EXPECT_EQ(ids(), "Uno,--------");
    EXPECT_EQ(attributes("two.htm"), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(attributes("one.htm"), kReadOnly);
}

TEST_F(TemplateTest, OfEntriesWithEqualIdsTheChosenOneIsDeleted) {
    for (const char* name : {"3.htm", "2.htm", "1.htm"}) add(name, name);
    store(0, "1.htm", "Same");
    store(1, "2.htm", "Same");
    store(2, "", "");
    store(3, "3.htm", "Same");
    const auto deleteLast = [](HWND dialog) {
        choose(dialog, 2, "Delete");
        const HWND list = ControlsOfClass(dialog, "ComboBox").at(0);
        for (const WPARAM dropped : {TRUE, FALSE}) ::SendMessageA(list, CB_SHOWDROPDOWN, dropped, 0);
        Press(dialog, "Enter");
    };
    organize({{kOrganize, deleteLast}, User::press("Confirm file deletion", IDYES)});
    EXPECT_EQ(attributes("3.htm"), INVALID_FILE_ATTRIBUTES);
    EXPECT_EQ(ids(), "Same,Same,-------");
}

TEST_F(TemplateTest, DeletingAnEntryWithoutAFileDeletesNoOtherFile) {
    add("one.htm", "One");
    for (const char* name : {"*.htm", "gone.htm", "..\\Templates", ".\\one.htm"}) {
        store(1, "one.htm", "One");
        store(0, name, "Odd");
        User::hears([&] { run(mnuOptsTempOrg); }, {deleting(0)});
        EXPECT_EQ(ids(), "One,--------") << name;
        EXPECT_EQ(attributes("one.htm"), kReadOnly) << name;
    }
}

}  // namespace
