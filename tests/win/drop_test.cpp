#include "win/app_test.h"
#include "win/clipboard.h"
#include "win/drop_target.h"
#include "win/message_loop.h"

namespace {

class DropTest : public AppTest {
 protected:
    // Only drops: the page inserts its tags later, when the program that the files came from goes on.
    static void drop(const frmChild& page, const std::vector<std::string>& paths) {
        win::SendDropped(page.txtPad().hwnd(), paths);
    }
};

TEST_F(DropTest, ATagGoesIntoThePageThatItWasDroppedOnAndCanBeUndone) {
    frmChild& first = newPage("one");
    first.txtPad().select(1, 2);
    newPage("other");
    const std::string path = writeGif("\u0141\u30BD \u03A9.gif");
    drop(first, {path});
    ::DeleteFileW(win::ToWide(path).c_str());  // as archivers do with files that they have unpacked
    win::RunPending();
    EXPECT_EQ(&active(), &first);
    EXPECT_EQ(pageText(), "o" + gifTag("&#321;&#12477; &#937;.gif") + "e")
        << "in the way that the page's encoding can hold";
    EXPECT_TRUE(label("\u0141\u30BD \u03A9.gif    10 bytes"));
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "one");
}

TEST_F(DropTest, WhatGivesNoTagIsReportedAndTheRestIsInserted) {
    const frmChild& page = newPage("");
    const std::string locked = writeGif("locked.gif");
    const win::UniqueFile lock = hold(locked, 0);
    const std::string note = "Quillon...OLE Note.";
    const User::Act tellNote = User::press(note, IDOK);
    const User::Act tellError = User::press("Quillon", IDOK);
    writeFile(scratch("a.bmp"), "BM" + std::string(60, ' '));
    writeFile(scratch("b.png"), "\x89PNG");
    writeFile(scratch("empty.gif"), "");
    const auto act = [&] {
        drop(page, {scratch("a.bmp"), scratch("b.png"), locked, scratch("empty.gif"), scratch("gone.gif"),
                    writeGif("c.gif")});
        win::RunPending();
    };
    const std::string unknown = "Unknown or unrecognized file type...";
    const std::string error = "File Processing Error";
    EXPECT_EQ(User::hears(act, {tellNote, tellNote, tellError, tellNote, tellNote, tellError, tellNote}),
              (std::vector<std::string>{"File read as a BitMap. Try a GIF or a JPEG.", unknown, error,
                                        unknown, unknown, error, unknown}));
    EXPECT_EQ(pageText(), gifTag("c.gif"));
    EXPECT_EQ(said([&] { drop(page, {}), win::RunPending(); }, "Quillon"), "Unknown Object");
    ::SendMessageA(page.txtPad().hwnd(), win::kDropped, 1, 0x1234);
    win::RunPending();
    EXPECT_EQ(pageText(), gifTag("c.gif")) << "another program's message is not a drop";
}

}  // namespace
