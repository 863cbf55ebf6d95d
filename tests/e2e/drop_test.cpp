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
    ::DeleteFileA(scratch("Photo.JPG").c_str());  // as an archive does with what it has unpacked
    const std::string tags = tag("a b.gif", 120, 60) + tag("Photo.JPG", 30, 20) + tag("x & y.gif", 120, 60);
    expectText(quillon.pad(), "before " + tags + " after");
    EXPECT_TRUE(quillon.shows("x & y.gif    14 bytes"));
    quillon.typeText("|");
    expectText(quillon.pad(), "before " + tags + "| after");
    quillon.pressKey('V', true);
    expectText(quillon.pad(), "before " + tags + "|" + tag("x & y.gif", 120, 60) + " after");
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
