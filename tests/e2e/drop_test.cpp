#include "e2e/drag_source.h"
#include "e2e/quillon.h"

namespace {

using namespace std::string_literals;

const std::string kGif = "GIF89a\x78\x00\x3C\x00"s;

class DropTest : public QuillonTest {
 protected:
    std::string file(const std::string& name, const std::string& bytes) const {
        writeFile(scratch(name), bytes);
        return scratch(name);
    }
    static std::string tag(const std::string& name) {
        return "<img src=\"images/" + name + "\" width=\"120\" height=\"60\" border=\"0\">";
    }
    static bool copies(const std::vector<std::string>& files, HWND pad) {
        return Drag(CF_HDROP, FileList(files), pad, DROPEFFECT_COPY | DROPEFFECT_MOVE | DROPEFFECT_LINK) ==
               DROPEFFECT_COPY;
    }
    static void expectText(HWND pad, const std::string& text) {
        EXPECT_TRUE(seen::Until([&] { return seen::TextOf(pad) == text; })) << seen::TextOf(pad);
    }
};

TEST_F(DropTest, SeveralImagesGiveTheirTagsAtTheCaret) {
    Quillon quillon(file("page.htm", " after"));
    quillon.typeText("before ");
    expectText(quillon.pad(), "before  after");
    EXPECT_TRUE(copies({file("a b.gif", kGif), file("Photo.JPG", kGif), file("x & y.gif", kGif + "....")},
                       quillon.pad()));
    ::DeleteFileA(scratch("Photo.JPG").c_str());  // as an archive does with what it has unpacked
    const std::string tags = tag("a b.gif") + tag("Photo.JPG") + tag("x & y.gif");
    expectText(quillon.pad(), "before " + tags + " after");
    EXPECT_TRUE(quillon.shows("x & y.gif    14 bytes"));
    quillon.typeText("|");
    expectText(quillon.pad(), "before " + tags + "| after");
    quillon.pressKey('V', true);
    expectText(quillon.pad(), "before " + tags + "|" + tag("x & y.gif") + " after");
}

TEST_F(DropTest, TextIsAnUnknownObjectAndStaysWithItsOwner) {
    Quillon quillon(file("page.htm", "page"));
    EXPECT_EQ(Drag(CF_TEXT, "dragged\0"s, quillon.pad(), DROPEFFECT_MOVE),
              static_cast<DWORD>(DROPEFFECT_NONE));
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
    expectText(quillon.pad(), tag("b.gif") + "page");
}

}  // namespace
