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
    static void expectText(HWND pad, const std::string& text) {
        EXPECT_TRUE(seen::Until([&] { return seen::TextOf(pad) == text; })) << seen::TextOf(pad);
    }
};

TEST_F(DropTest, SeveralImagesGiveTheirTagsAtTheCaret) {
    Quillon quillon(file("page.htm", " after"));
    quillon.typeText("before ");
    expectText(quillon.pad(), "before  after");
    const std::vector<std::string> files = {file("a b.gif", kGif), file("Photo.JPG", kGif),
                                            file("x & y.gif", kGif + "....")};
    // A window that comes to the front in the middle of it costs a drag.
    const auto copies = [&] { return Drag(files, quillon.pad()) == DROPEFFECT_COPY; };
    EXPECT_TRUE(copies() || copies());
    ::DeleteFileA(scratch("Photo.JPG").c_str());  // as an archive does with what it has unpacked
    const std::string tags = tag("a b.gif") + tag("Photo.JPG") + tag("x & y.gif");
    expectText(quillon.pad(), "before " + tags + " after");
    EXPECT_TRUE(quillon.shows("x & y.gif    14 bytes"));
    quillon.typeText("|");
    expectText(quillon.pad(), "before " + tags + "| after");
    quillon.pressKey('V', true);
    expectText(quillon.pad(), "before " + tags + "|" + tag("x & y.gif") + " after");
}

}  // namespace
