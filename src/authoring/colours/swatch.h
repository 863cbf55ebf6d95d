// One box of the colour chart.
#pragma once

#include "win/control.h"

namespace authoring {

// The system's edit control with the colour's text, used as a button: a click or Enter sends its parent a
// WM_COMMAND with BN_CLICKED, the mouse above it one with kHovered. Arrow keys hand the focus to the box in
// their direction. The text is there to be read by programs; people see the colour alone.
class Swatch : public win::Control {
 public:
    static constexpr WORD kHovered = 1;

    // Box i of the chart has the control number kFirstId + i.
    static constexpr int kFirstId = 1000;
    static bool isSwatch(int id);

    void create(HWND parent, int index);
    // Draws the box where it stands in its parent.
    void drawInParent(HDC dc) const;

 private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool handleKey(WPARAM key) const;
    void moveFocus(int columns, int rows) const;
    void click() const;
    void release(LPARAM at) const;
    void paint() const;
    void draw(HDC dc, RECT area) const;

    int index_ = 0;
};

}  // namespace authoring
