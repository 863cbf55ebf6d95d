#include "e2e/drag_source.h"
#include "e2e/quillon.h"

namespace {

class DropTest : public QuillonTest {
 protected:
    static void expectText(HWND pad, const std::string& text) {
        EXPECT_TRUE(seen::Until([&] { return seen::TextOf(pad) == text; })) << seen::TextOf(pad);
    }
};

TEST_F(DropTest, SeveralImagesGiveTheirTagsAtTheCaret) {
    writeFile(scratch("page.htm"), " after");
    Quillon quillon(scratch("page.htm"));
    quillon.typeText("before ");
    expectText(quillon.pad(), "before  after");
    const std::vector<std::string> files = {writeGif("a b.gif"), writeGif("Photo.JPG"),
                                            writeGif("x & y.gif", "....")};
    // A window that comes to the front in mid-drag makes the drag fail.
    const auto copies = [&] { return Drag(files, quillon.pad()) == DROPEFFECT_COPY; };
    EXPECT_TRUE(copies() || copies());
    ::DeleteFileA(scratch("Photo.JPG").c_str());  // as archivers do with files that they have unpacked
    const std::string tags = gifTag("a b.gif") + gifTag("Photo.JPG") + gifTag("x & y.gif");
    expectText(quillon.pad(), "before " + tags + " after");
    EXPECT_TRUE(quillon.shows("x & y.gif    14 bytes"));
    quillon.typeText("|");
    expectText(quillon.pad(), "before " + tags + "| after");
    quillon.pressKey('V', true);
    expectText(quillon.pad(), "before " + tags + "|" + gifTag("x & y.gif") + " after");
}

}  // namespace
