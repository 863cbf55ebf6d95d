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
    // `name` is the window text and the tool tip, `icon` an icon of the resources.
    PictureButton(HWND parent, int id, const char* name, const char* icon, const RECT& place, bool enabled);

    const char* name() const { return name_; }

    // For its parent's WM_DRAWITEM.
    void draw(const DRAWITEMSTRUCT& item);

 private:
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void setHot(bool hot);

    const Picture& picture(bool disabled);

    const char* name_;
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
    // The texts must outlive the row.
    void add(int id, const char* name, const char* icon, bool beginsGroup, bool enabled = true);
    // From the first call on the buttons that there are have tool tips. They make every message to a button
    // slower, so a parent that is in a hurry waits until the mouse comes.
    void useTips();
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
