// A tool bar of the system's whose buttons show pictures.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "win/picture.h"

namespace win {

struct ToolButton {
    const char* tip;        // the tool tip, and what a screen reader says
    std::uint16_t command;  // for the bar's owner
    const char* picture;    // name of the icon resource
    bool beginsGroup = false;
};

class ToolBar {
 public:
    // Creates the bar as the first child of `parent` in the order of Tab. Clicking the button with the index
    // i sends the WM_COMMAND `firstId` + i.
    void create(HWND parent, int firstId, std::span<const ToolButton> buttons);
    void enable(int index, bool enabled) const;
    bool isEnabled(int index) const;
    // Places it in its parent, in as many rows as a bar of this width takes, and returns its height; all in
    // pixels.
    int place(int left, int top, int width) const;
    HWND hwnd() const { return hwnd_; }

 private:
    void add(std::span<const ToolButton> buttons);

    HWND hwnd_ = nullptr;
    int firstId_ = 0;
    int count_ = 0;
    std::optional<PictureLists> pictures_;
};

}  // namespace win
