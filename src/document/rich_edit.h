// The system's rich-edit control, version 1, used for plain text.
#pragma once

#include <string>
#include <string_view>

#include "win/control.h"

namespace document {

// Positions and lengths count bytes of the code page, CR LF as two, so that a position in the control is a
// position in the page.
struct Selection {
    long start = 0;
    long end = 0;
    long length() const { return end - start; }
};

struct Font {
    std::string face;
    float points = 0;
    friend bool operator==(const Font&, const Font&) = default;
};

class RichEdit : public win::Control {
 public:
    // Creates the control as a child that fills nothing yet. Throws win::Error.
    void create(HWND parent, int id, const Font& font);

    // Puts the bytes into the empty control: none is dropped, parsed or converted. Marks it unchanged.
    void load(std::string_view bytes);
    std::string text() const;
    long textLength() const { return static_cast<long>(send(WM_GETTEXTLENGTH)); }

    Selection selection() const;
    void select(long start, long end);
    void scrollToCaret() const { send(EM_SCROLLCARET); }
    std::string selectedText() const;
    // As one step that can be undone. The caret ends behind the text, which holds no NUL.
    void replaceSelection(const std::string& text);
    std::string textRange(long start, long end) const;

    // Displayed lines, from 0.
    long firstVisibleLine() const { return static_cast<long>(send(EM_GETFIRSTVISIBLELINE)); }
    void scrollLines(long down) const { send(EM_LINESCROLL, 0, down); }
    // The one that holds a position.
    long lineOf(long position) const { return static_cast<long>(send(EM_EXLINEFROMCHAR, 0, position)); }

    bool isChanged() const { return send(EM_GETMODIFY) != 0; }
    void setChanged(bool changed) { send(EM_SETMODIFY, changed ? TRUE : FALSE); }

    bool wordWrap() const { return wordWrap_; }
    void setWordWrap(bool wrap);

    const Font& font() const { return font_; }
    void setFont(const Font& font);

 private:
    bool wordWrap_ = false;
    Font font_;
};

}  // namespace document
