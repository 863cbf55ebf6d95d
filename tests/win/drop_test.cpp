#include "win/app_test.h"
#include "win/clipboard.h"
#include "win/drop_target.h"
#include "win/message_loop.h"

namespace {

using namespace std::string_literals;

const std::string kGif = "GIF89a\x78\x00\x3C\x00"s;

class DropTest : public AppTest {
 protected:
    std::string file(const std::string& name, const std::string& bytes = kGif) const {
        writeFile(scratch(name), bytes);
        return scratch(name);
    }
    static std::string tag(const std::string& name) {
        return "<img src=\"images/" + name + "\" width=\"120\" height=\"60\" border=\"0\">";
    }
    // What the page makes of them comes when the program that they were dragged from goes on.
    static void drop(const frmChild& page, const std::vector<std::string>& paths) {
        win::SendDropped(page.txtPad().hwnd(), paths);
    }
};

TEST_F(DropTest, ATagGoesIntoThePageThatItWasDroppedOnAndCanBeUndone) {
    frmChild& first = newPage("one");
    first.txtPad().select(1, 2);
    newPage("other");
    const std::string path = file("\u0141\u30BD \u03A9.gif");
    drop(first, {path});
    ::DeleteFileW(win::ToWide(path).c_str());  // as an archive does with what it has unpacked
    win::RunPending();
    EXPECT_EQ(&active(), &first);
    EXPECT_EQ(pageText(), "o" + tag("&#321;&#12477; &#937;.gif") + "e")
        << "as the page's encoding can hold it";
    EXPECT_TRUE(label("\u0141\u30BD \u03A9.gif    10 bytes"));
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "one");
}

TEST_F(DropTest, WhatGivesNoTagIsToldAndTheRestGoesOn) {
    const frmChild& page = newPage("");
    const std::string locked = file("locked.gif");
    const win::UniqueFile lock = hold(locked, 0);
    const std::string note = "Quillon...OLE Note.";
    const User::Act tellNote = User::press(note, IDOK);
    const User::Act tellError = User::press("Quillon", IDOK);
    const auto act = [&] {
        drop(page, {file("a.bmp", "BM" + std::string(60, ' ')), file("b.png", "\x89PNG"), locked,
                    file("empty.gif", ""), scratch("gone.gif"), file("c.gif")});
        win::RunPending();
    };
    const std::string unknown = "Unknown or unrecognized file type...";
    const std::string error = "File Processing Error";
    EXPECT_EQ(User::hears(act, {tellNote, tellNote, tellError, tellNote, tellNote, tellError, tellNote}),
              (std::vector<std::string>{"File read as a BitMap. Try a GIF or a JPEG.", unknown, error,
                                        unknown, unknown, error, unknown}));
    EXPECT_EQ(pageText(), tag("c.gif"));
    EXPECT_EQ(said([&] { drop(page, {}), win::RunPending(); }, "Quillon"), "Unknown Object");
    ::SendMessageA(page.txtPad().hwnd(), win::kDropped, 1, 0x1234);
    win::RunPending();
    EXPECT_EQ(pageText(), tag("c.gif")) << "a message of another program is no drop";
}

}  // namespace
