#include "e2e/drag_source.h"
#include "e2e/quillon.h"

namespace {

using namespace std::string_literals;

const std::string kGif = "GIF89a\x78\x00\x3C\x00"s;
const std::string kJpeg = "\xFF\xD8\xFF\xE0\x00\x10JFIF\x00\xFF\xC0\x00\x11\x08\x00\x14\x00\x1E"s;

class DropTest : public QuillonTest {
 protected:
    std::string file(const std::string& name, const std::string& bytes) const {
        writeFile(scratch(name), bytes);
        return scratch(name);
    }
    static std::string tag(const std::string& name, int width, int height) {
        return "<img src=\"images/" + name + "\" width=\"" + std::to_string(width) + "\" height=\"" +
               std::to_string(height) + "\" border=\"0\">";
    }
    static bool copies(const std::vector<std::string>& files, HWND pad) {
        return DragFiles(files, pad, DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK) == DROPEFFECT_COPY;
    }
    static void expectText(HWND pad, const std::string& text) {
        EXPECT_TRUE(seen::Until([&] { return seen::TextOf(pad) == text; })) << seen::TextOf(pad);
    }
};

TEST_F(DropTest, SeveralImagesGiveTheirTagsAtTheCaret) {
    Quillon quillon(file("page.htm", " after"));
    quillon.typeText("before ");
    expectText(quillon.pad(), "before  after");
    EXPECT_TRUE(copies({file("a b.gif", kGif), file("Photo.JPG", kJpeg), file("x & y.gif", kGif + "....")},
                       quillon.pad()));
    const std::string tags = tag("a b.gif", 120, 60) + tag("Photo.JPG", 30, 20) + tag("x & y.gif", 120, 60);
    expectText(quillon.pad(), "before " + tags + " after");
    EXPECT_TRUE(quillon.shows("x & y.gif    14 bytes"));
    quillon.typeText("|");
    expectText(quillon.pad(), "before " + tags + "| after");
    quillon.pressKey('V', true);
    expectText(quillon.pad(), "before " + tags + "|" + tag("x & y.gif", 120, 60) + " after");
}

TEST_F(DropTest, ATagGoesIntoThePageThatItWasDroppedOnAndCanBeUndone) {
    Quillon quillon(file("page.htm", "one"));
    quillon.pressKey(VK_END);
    const HWND first = quillon.page();
    const HWND firstPad = quillon.pad();
    quillon.pressKey(VK_F2);
    ASSERT_TRUE(seen::Until([&] { return quillon.page() != first; }));
    const std::string second = quillon.pageText();
    const HWND secondPad = quillon.pad();
    ::SetWindowPos(quillon.page(), nullptr, 0, 0, 120, 120, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(copies({file("logo.gif", kGif)}, firstPad));
    expectText(firstPad, "one" + tag("logo.gif", 120, 60));
    EXPECT_TRUE(seen::Until([&] { return quillon.page() == first; }));
    EXPECT_EQ(seen::TextOf(secondPad), second);
    quillon.pressKey('Z', true);
    expectText(firstPad, "one");
}

TEST_F(DropTest, WhatGivesNoTagIsToldAndTheRestGoesOn) {
    Quillon quillon(file("page.htm", ""));
    const std::string locked = file("locked.gif", kGif);
    const HANDLE lock = ::CreateFileA(locked.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_TRUE(copies({file("a.bmp", "BM" + std::string(60, ' ')), file("b.png", "\x89PNG"), locked,
                        file("empty.gif", ""), scratch("gone.gif"), file("c.gif", kGif)},
                       quillon.pad()));
    const std::string note = "Quillon...OLE Note.";
    EXPECT_EQ(quillon.answer(note, IDOK), "File read as a BitMap. Try a GIF or a JPEG.");
    EXPECT_EQ(quillon.answer(note, IDOK), "Unknown or unrecognized file type...");
    EXPECT_EQ(quillon.answer("Quillon", IDOK), "File Processing Error");
    for (int i = 0; i < 2; ++i) EXPECT_EQ(quillon.answer(note, IDOK), "Unknown or unrecognized file type...");
    EXPECT_EQ(quillon.answer("Quillon", IDOK), "File Processing Error");
    EXPECT_EQ(quillon.answer(note, IDOK), "Unknown or unrecognized file type...");
    expectText(quillon.pad(), tag("c.gif", 120, 60));
    ::CloseHandle(lock);
}

TEST_F(DropTest, TextIsAnUnknownObjectAndStaysWithItsOwner) {
    Quillon quillon(file("page.htm", "page"));
    EXPECT_EQ(DragText("dragged", quillon.pad(), DROPEFFECT_MOVE), static_cast<DWORD>(DROPEFFECT_NONE));
    EXPECT_EQ(quillon.answer("Quillon", IDOK), "Unknown Object");
    EXPECT_EQ(quillon.pageText(), "page");
}

TEST_F(DropTest, ABusyClipboardCostsOneTagAndNothingElse) {
    Quillon quillon(file("page.htm", "page"));
    ASSERT_TRUE(::OpenClipboard(nullptr));
    EXPECT_TRUE(copies({file("a.gif", kGif), file("b.gif", kGif)}, quillon.pad()));
    const HWND box = quillon.waitForDialog("Quillon");
    ::CloseClipboard();
    EXPECT_EQ(seen::LabelsOf(box), "File Processing Error");
    ::PostMessageA(box, WM_COMMAND, IDOK, 0);
    expectText(quillon.pad(), tag("b.gif", 120, 60) + "page");
}

}  // namespace
