#include "files/modOpen.h"
#include "files/open_file.h"
#include "files/replace_file.h"
#include "win/app_test.h"
#include "win/unique.h"
#include "win/wide_path.h"

namespace {

// Lets the n-th call fail, and after it everything when the disk is gone for good.
class FailingCalls : public files::FileCalls {
 public:
    FailingCalls(int failAt, DWORD error) : left_(failAt), error_(error) {}
    bool failed() const { return left_ <= 0; }

    HANDLE create(const std::wstring& path, DWORD access, DWORD disposition) override {
        return fails() ? INVALID_HANDLE_VALUE : FileCalls::create(path, access, disposition);
    }
    bool write(HANDLE file, std::string_view bytes) override {
        if (!fails()) return FileCalls::write(file, bytes);
        FileCalls::write(file, bytes.substr(0, bytes.size() / 2));  // as a disk does that fills up
        ::SetLastError(error_);
        return false;
    }
    bool cut(HANDLE file) override { return !fails() && FileCalls::cut(file); }
    bool flush(HANDLE file) override { return !fails() && FileCalls::flush(file); }
    bool close(HANDLE file) override { return !fails() & FileCalls::close(file); }
    bool replace(const std::wstring& from, const std::wstring& to) override {
        return !fails() && FileCalls::replace(from, to);
    }

 private:
    bool fails() {
        if (--left_ != 0) return false;
        ::SetLastError(error_);
        return true;
    }

    int left_;
    DWORD error_;
};

class SaveTest : public AppTest {
 protected:
    int filesInFolder() {
        WIN32_FIND_DATAA found{};
        const HANDLE search = ::FindFirstFileA(scratch("*").c_str(), &found);
        int count = 0;
        do {
            count += (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
        } while (::FindNextFileA(search, &found));
        ::FindClose(search);
        return count;
    }
    frmChild& openPage(const std::string& name, const std::string& bytes) {
        writeFile(scratch(name), bytes);
        return *files::OpenFile(main(), scratch(name));
    }
};

TEST_F(SaveTest, EveryStepThatFailsLeavesTheOldFileAndNothingElse) {
    const std::string path = scratch("page.htm");
    const std::string fresh(100000, 'n');
    for (const DWORD error : {ERROR_ACCESS_DENIED, ERROR_DISK_FULL}) {
        bool failed = true;
        for (int step = 1; failed; ++step) {
            writeFile(path, "old");
            FailingCalls calls(step, error);
            const bool saved = files::ReplaceFileContents(calls, path, fresh);
            failed = calls.failed();
            EXPECT_EQ(readFile(path), saved ? fresh : "old") << "step " << step;
            EXPECT_EQ(filesInFolder(), 1) << "step " << step;
            EXPECT_TRUE(saved || failed);
            ASSERT_LT(step, 20);
        }
    }
}

TEST_F(SaveTest, WhereNoSecondFileIsAllowedTheFileIsOverwrittenOrRestored) {
    const std::string path = scratch("page.htm");
    class NoNeighbour : public FailingCalls {
     public:
        using FailingCalls::FailingCalls;
        HANDLE create(const std::wstring& file, DWORD access, DWORD disposition) override {
            if (disposition != CREATE_ALWAYS) return FailingCalls::create(file, access, disposition);
            ::SetLastError(ERROR_ACCESS_DENIED);
            return INVALID_HANDLE_VALUE;
        }
    };
    bool failed = true;
    for (int step = 1; failed; ++step) {
        writeFile(path, "the old bytes");
        NoNeighbour calls(step, ERROR_DISK_FULL);
        const bool saved = files::ReplaceFileContents(calls, path, "new");
        failed = calls.failed();
        EXPECT_EQ(readFile(path), saved ? "new" : "the old bytes") << "step " << step;
    }
}

TEST_F(SaveTest, AnUnwritableTargetLeavesThePageChangedAndTheFileAsItWas) {
    openPage("locked.htm", "old");
    type("new ");
    const auto refuse = [&] {
        User user({User::press("Quillon", IDOK)});
        run(mnuFileSave);
        EXPECT_EQ(user.heard()[0], "Could not write to the specified file at this time.");
        EXPECT_TRUE(active().txtPad().isChanged());
        EXPECT_EQ(pageText(), "new old");
    };
    {
        const win::UniqueFile lock(::CreateFileA(scratch("locked.htm").c_str(), GENERIC_READ, FILE_SHARE_READ,
                                                 nullptr, OPEN_EXISTING, 0, nullptr));
        refuse();
    }
    ::SetFileAttributesA(scratch("locked.htm").c_str(), FILE_ATTRIBUTE_READONLY);
    refuse();
    ::SetFileAttributesA(scratch("locked.htm").c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(readFile(scratch("locked.htm")), "old");
    EXPECT_EQ(filesInFolder(), 1);
    run(mnuFileSave);
    EXPECT_EQ(readFile(scratch("locked.htm")), "new old\r\n");
    EXPECT_FALSE(active().txtPad().isChanged());
    EXPECT_TRUE(label("Saved :  " + scratch("locked.htm")));
}

TEST_F(SaveTest, APageWithoutAFileIsSavedUnderAnotherName) {
    run(mnuFileNew);
    type("<!-- -->");
    std::string proposed;
    User user({{"Save File As...", [&](HWND dialog) {
                    proposed = seen::TextOf(::GetDlgItem(dialog, 0x47c) ? ::GetDlgItem(dialog, 0x47c)
                                                                        : ::GetDlgItem(dialog, 0x480));
                    seen::ChooseFile(dialog, scratch("named.htm"));
                }}});
    run(mnuFileSave);
    user.heard();
    EXPECT_EQ(proposed, "Untitled1");
    EXPECT_EQ(active().Tag(), scratch("named.htm"));
    EXPECT_EQ(active().Caption(), "named.htm");
    EXPECT_EQ(readFile(scratch("named.htm")), pageText() + "\r\n");
    EXPECT_EQ(main().menu().caption(mnuFileMRU + 1), scratch("named.htm"));
}

TEST_F(SaveTest, OpeningSaysWhatIsWrong) {
    openPage("open.htm", "x");
    writeFile(scratch("closed.htm"), "y");
    const win::UniqueFile lock(
        ::CreateFileA(scratch("closed.htm").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    User user({User::chooseFile("Open File...", scratch("open.htm")), User::press("Quillon", IDOK),
               User::chooseFile("Open File...", scratch("closed.htm")), User::press("Quillon Note:", IDOK)});
    run(mnuFileOpen);
    run(mnuFileOpen);
    EXPECT_EQ(user.heard()[1], "That file is already open.");
    EXPECT_EQ(user.heard()[3], "Error While Processing the File.");
    EXPECT_EQ(main().documents().size(), 1U);
}

TEST_F(SaveTest, LongPathsAndOddNamesAreFilesLikeOthers) {
    std::string folder = scratch("");
    folder.pop_back();
    for (int i = 0; i < 5; ++i) {
        folder += "\\" + std::string(60, static_cast<char>('a' + i));
        ::CreateDirectoryW(win::WidePath(folder).c_str(), nullptr);
    }
    for (const std::string& path : {folder + "\\deep.htm", scratch("[a] ~+%^{b} & caf\xE9.htm")}) {
        files::FileCalls calls;
        ASSERT_TRUE(files::ReplaceFileContents(calls, path, "bytes")) << path;
        frmChild* page = files::OpenFile(main(), path);
        ASSERT_TRUE(page) << path;
        EXPECT_EQ(page->txtPad().text(), "bytes");
        EXPECT_TRUE(modOpen::SaveDocument(main(), page->id(), path));
        ::DeleteFileW(win::WidePath(path).c_str());
    }
    for (; folder.size() > scratch("").size(); folder.resize(folder.rfind('\\'))) {
        ::RemoveDirectoryW(win::WidePath(folder).c_str());
    }
}

}  // namespace
