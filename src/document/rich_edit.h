// The system's rich-edit control, version 1, used for plain text.
#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

#include "win/control.h"

namespace document {

// Positions and lengths count UTF-16 units, CR LF as two, so that a position in the control is a position in
// the page's text.
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

// There is not enough memory for a page.
class PageTooLarge : public std::exception {
 public:
    explicit PageTooLarge(std::string what = "The page is too large.") : what_(std::move(what)) {}
    const char* what() const noexcept override { return what_.c_str(); }

 private:
    std::string what_;
};

class RichEdit : public win::Control {
 public:
    // Creates the control as a child, without a size yet. Throws win::Error.
    void create(HWND parent, int id, const Font& font);

    // Puts the text into the empty control and marks it unchanged. False when the control does not hold
    // exactly that text. Throws PageTooLarge while there still is memory for everything else.
    bool load(std::u16string_view text);
    std::u16string text() const;
    long textLength() const;

    Selection selection() const;
    void select(long start, long end);
    void scrollToCaret() const { send(EM_SCROLLCARET); }
    std::u16string selectedText() const;
    // As one step that can be undone. The caret ends behind the text, which holds no NUL. A read-only control
    // stays as it is.
    void replaceSelection(std::u16string_view text);

    void setReadOnly();
    bool isReadOnly() const;

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
    void setFace(const std::string& face);
    void setPoints(float points);

 protected:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
    void apply(const Font& font, CHARFORMATW& format);

    bool wordWrap_ = false;
    Font font_;
};

}  // namespace document
