// A row of buttons with pictures.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "win/control.h"
#include "win/picture.h"
#include "win/tool_tips.h"

namespace win {

// A real button, so that it has a name, a tool tip and a place for the keyboard. Flat until the mouse is
// over it.
class PictureButton : public Control {
 public:
    // `name` is the window text, `icon` an icon of the resources.
    PictureButton(HWND parent, int id, const char* name, const char* icon, const RECT& place);

    // For its parent's WM_DRAWITEM.
    void draw(const DRAWITEMSTRUCT& item);

 private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void setHot(bool hot);

    const Picture& picture(bool disabled);

    const char* icon_;
    // Made when first drawn: a start of the program does not wait for them.
    std::optional<Picture> normal_;
    std::optional<Picture> disabled_;
    bool hot_ = false;
};

class PictureButtons {
 public:
    // The row begins at this place of the client area of `parent`, in pixels.
    void open(HWND parent, int left, int top);
    // At the right end of the row; the row's buttons come before all others in the parent's tab order.
    // `name` is the tool tip too and must outlive the row.
    void add(int id, const char* name, const char* icon, bool beginsGroup);
    HWND button(std::size_t index) const { return buttons_[index]->hwnd(); }
    // For the parent's WM_DRAWITEM; false when the item is none of the row's.
    bool draw(const DRAWITEMSTRUCT& item) const;

    int right() const { return left_; }  // where the row ends
    static int height();                 // pixels

 private:
    HWND parent_ = nullptr;
    ToolTips tips_;
    int left_ = 0;
    int top_ = 0;
    std::vector<std::unique_ptr<PictureButton>> buttons_;
};

}  // namespace win
