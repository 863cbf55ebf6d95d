#include <algorithm>

#include "files/atomic_file.h"
#include "files/basMRU.h"
#include "files/core/recent_files.h"
#include "files/modOpen.h"
#include "files/open_file.h"
#include "settings/app_settings.h"
#include "win/app_test.h"
#include "win/failing_calls.h"
#include "win/system_dll.h"
#include "win/unique.h"
#include "win/wide_path.h"

#include <shlobj.h>

namespace {

using SaveTest = AppTest;

TEST_F(SaveTest, EveryCallThatFailsLeavesTheOldFileOrTheNewOne) {
    const std::string path = scratch("page.htm");
    openPage("page.htm", "old");
    for (int i = 1; i <= 7; ++i) {
        writeFile(scratch(std::to_string(i)), "");
        basMRU::AddRecentFile(main(), scratch(std::to_string(i)));
    }
    const auto before = files::StoredFiles("7", settings::GetAll("Recent Files"));
    const std::string page = "<P>new</P>\r\n" + std::string(500, 'x');
    bool inPlace = false;
    const auto check = [&](const Fault& fault) {
        const std::string left = readFile(path);
        const bool isSaved = !active().txtPad().isChanged();
        // Where no second file is allowed, nothing can be put back on a disk that fails in mid-write for
        // good.
        const bool beyondHelp = inPlace && fault.what.find("all after it") != std::string::npos;
        EXPECT_TRUE(left == page + "\r\n" || (!isSaved && (left == "old" || beyondHelp))) << fault.what;
        EXPECT_EQ(fault.said.empty(), isSaved) << fault.what;
        EXPECT_EQ(pageText(), page) << fault.what;
        // The list was full, so that only its last entry may go.
        const auto now = files::StoredFiles("7", settings::GetAll("Recent Files"));
        for (std::size_t i = 0; i < 6; ++i)
            EXPECT_EQ(std::count(now.begin(), now.end(), before[i]), 1) << fault.what;
    };
    const auto prepare = [&] {
        for (std::size_t i = 7; i > 0; --i) settings::Save("Recent Files", std::to_string(i), before[i - 1]);
        writeFile(path, "old");
        active().txtPad().setChanged(false);
        active().selectAll();
        active().insert(win::Utf16FromUtf8(page));
    };
    for (const bool refused : {false, true}) {
        inPlace = refused;
        FailEachCall({"a save", 21, prepare, [&] { run(mnuFileSave); }, check, Calls::changing, inPlace});
    }
}

// Leaves this many bytes of a small disk free.
void Fill(const std::string& disk, DWORD free) {
    const win::UniqueFile filler(::CreateFileA((disk + "\\filler").c_str(), GENERIC_WRITE, FILE_SHARE_READ,
                                               nullptr, CREATE_ALWAYS, 0, nullptr));
    const std::string block(4096, 'f');
    DWORD written = 0;
    while (::WriteFile(filler.get(), block.data(), 4096, &written, nullptr) && written > 0) continue;
    ::SetFilePointer(filler.get(), -static_cast<LONG>(free), nullptr, FILE_END);
    ::SetEndOfFile(filler.get());
}

TEST_F(SaveTest, AFullDiskLeavesTheOldFileOrTheNewOne) {
    char disk[MAX_PATH] = "";
    if (::GetEnvironmentVariableA("QUILLON_SMALL_DISK", disk, sizeof disk) == 0)
        GTEST_SKIP() << "no small file system could be mounted";
    const std::string path = std::string(disk) + "\\page.htm";
    const std::string old(9000, 'o');
    writeFile(path, old);
    frmChild& page = *files::OpenFile(main(), path);
    page.insert(std::u16string(16000, u'n'));
    const std::string fresh = pageText() + "\r\n";
    int kept = 0;
    int saved = 0;
    for (DWORD free = 0; free <= 10 * 4096; free += 2048) {
        writeFile(path, old);
        Fill(disk, free);
        const std::string copy = std::string(disk) + "\\copy.htm";
        page.txtPad().setChanged(true);
        const auto said = SaidBy([&] { run(mnuFileSave); });
        const bool isSaved = said.empty();
        EXPECT_TRUE(readFile(path) == (isSaved ? fresh : old)) << free << " bytes free";
        EXPECT_EQ(page.txtPad().isChanged(), !isSaved) << free << " bytes free";
        EXPECT_TRUE(isSaved || said[0] == "Could not write to the specified file at this time.");
        EXPECT_EQ(pageText() + "\r\n", fresh);
        const bool isCopied = modOpen::SaveDocument(main(), page.id(), copy);
        EXPECT_TRUE(readFile(copy) == (isCopied ? fresh : "(no file)")) << free << " bytes free";
        ::DeleteFileA(copy.c_str());
        ++(isSaved ? saved : kept);
    }
    EXPECT_TRUE(kept > 5 && saved > 2) << kept << " times the old file, " << saved << " times the new one";
}

TEST_F(SaveTest, AnUnwritableTargetLeavesThePageChangedAndTheFileAsItWas) {
    openPage("locked.htm", "old");
    type("new ");
    const auto refuse = [&] {
        EXPECT_EQ(said(mnuFileSave), "Could not write to the specified file at this time.");
        EXPECT_TRUE(active().txtPad().isChanged());
        EXPECT_EQ(pageText(), "new old");
    };
    win::UniqueFile lock = hold(scratch("locked.htm"), FILE_SHARE_READ);
    refuse();
    lock.reset();
    ::SetFileAttributesA(scratch("locked.htm").c_str(), FILE_ATTRIBUTE_READONLY);
    refuse();
    ::SetFileAttributesA(scratch("locked.htm").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(readFile(scratch("locked.htm")), "old");
    EXPECT_EQ(found("*.tmp"), "");
    run(mnuFileSave);
    EXPECT_EQ(readFile(scratch("locked.htm")), "new old\r\n");
    EXPECT_FALSE(active().txtPad().isChanged());
    EXPECT_TRUE(label("Saved :  " + scratch("locked.htm")));
}

// Who may access the file.
std::vector<BYTE> AccessTo(const std::string& path) {
    DWORD size = 0;
    ::GetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<BYTE> access(size);
    ::GetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, access.data(), size, &size);
    return access;
}

TEST_F(SaveTest, ASaveKeepsTheFilesRightsAttributesAndLinks) {
    openPage("page.htm", "old");
    const std::string path = scratch("page.htm");
    std::vector<BYTE> access = AccessTo(path);
    BOOL present = FALSE;
    BOOL defaulted = FALSE;
    ACL* list = nullptr;
    ::GetSecurityDescriptorDacl(access.data(), &present, &list, &defaulted);
    while (list->AceCount > 1) ::DeleteAce(list, list->AceCount - 1U);
    ::SetFileSecurityA(path.c_str(), DACL_SECURITY_INFORMATION, access.data());
    ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_HIDDEN);
    writeFile(scratch("usual.htm"), "");
    access = AccessTo(path);
    ASSERT_NE(access, AccessTo(scratch("usual.htm")));
    type("new ");
    run(mnuFileSave);
    EXPECT_EQ(readFile(path), "new old\r\n");
    EXPECT_EQ(AccessTo(path), access);
    EXPECT_EQ(::GetFileAttributesA(path.c_str()) & FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_HIDDEN + 0U);

    ASSERT_TRUE(::CreateHardLinkA(scratch("link.htm").c_str(), path.c_str(), nullptr));
    type("still ");
    run(mnuFileSave);
    EXPECT_EQ(readFile(scratch("link.htm")), "new still old\r\n") << "it still names the same file";
}

TEST_F(SaveTest, APageWithoutAFileIsSavedUnderAnotherName) {
    run(mnuFileNew);
    type("<!-- -->");
    const auto folderOf = [](HWND dialog) {
        wchar_t folder[MAX_PATH] = L"";
        ::SendMessageW(dialog, CDM_GETFOLDERPATH, MAX_PATH, reinterpret_cast<LPARAM>(folder));
        return win::ToUtf8(folder) + '\\';
    };
    wchar_t documents[MAX_PATH] = L"";
    ::SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, documents);
    const auto choose = [&](HWND dialog) {
        EXPECT_EQ(folderOf(dialog), win::ToUtf8(documents) + '\\');
        EXPECT_EQ(seen::TextOf(seen::FileNameBox(dialog)), "Untitled1");
        seen::ChooseFile(dialog, scratch("named.htm"));
    };
    heard([&] { run(mnuFileSave); }, {{"Save File As...", choose}});
    wchar_t current[MAX_PATH] = L"";
    ::GetCurrentDirectoryW(MAX_PATH, current);
    EXPECT_EQ(current, win::SystemFolder());
    EXPECT_EQ(active().Tag(), scratch("named.htm"));
    EXPECT_EQ(active().Caption(), "named.htm");
    EXPECT_EQ(readFile(scratch("named.htm")), pageText() + "\r\n");
    EXPECT_EQ(main().menu().caption(mnuFileMRU + 1), scratch("named.htm"));
    newPage("");
    const auto look = [&](HWND dialog) {
        EXPECT_EQ(folderOf(dialog), scratch(""));
        ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
    };
    heard([&] { run(mnuFileOpen); }, {{"Open File...", look}});
}

TEST_F(SaveTest, OpeningReportsWhatIsWrong) {
    openPage("open.htm", "x");
    writeFile(scratch("closed.htm"), "y");
    const win::UniqueFile lock = hold(scratch("closed.htm"), 0);
    const auto open = [&](const std::string& name, const std::string& title) {
        return heard([&] { run(mnuFileOpen); },
                     {User::chooseFile("Open File...", scratch(name)), User::press(title, IDOK)});
    };
    EXPECT_EQ(open("open.htm", "Quillon"), "That file is already open.");
    EXPECT_EQ(open("closed.htm", "Quillon Note:"), "Error While Processing the File.");
    EXPECT_EQ(main().documents().size(), 1U);
}

TEST_F(SaveTest, LongPathsAndOddNamesWorkLikeOthers) {
    std::string folder = scratch("");
    folder.pop_back();
    for (int i = 0; i < 5; ++i) {
        folder += "\\" + std::string(60, static_cast<char>('a' + i));
        ::CreateDirectoryW(win::WidePath(folder).c_str(), nullptr);
    }
    for (const std::string& path :
         {folder + "\\deep.htm", scratch("[a] ~+%^{b} & caf\u00E9 \u0141\u65E5.htm")}) {
        ASSERT_TRUE(files::ReplaceFileContents(path, "bytes")) << path;
        frmChild* page = files::OpenFile(main(), path);
        ASSERT_TRUE(page) << path;
        EXPECT_EQ(page->txtPad().text(), u"bytes");
        EXPECT_TRUE(modOpen::SaveDocument(main(), page->id(), path));
        ::DeleteFileW(win::WidePath(path).c_str());
    }
    for (; folder.size() > scratch("").size(); folder.resize(folder.rfind('\\'))) {
        ::RemoveDirectoryW(win::WidePath(folder).c_str());
    }
}

}  // namespace
