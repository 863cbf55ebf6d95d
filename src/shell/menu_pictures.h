// The pictures beside menu items.
#pragma once

#include <vector>

#include "win/menu_bar.h"

namespace shell {

// Made when a menu is first opened: a start of the program does not wait for them.
class MenuPictures {
 public:
    bool empty() const { return bitmaps_.empty(); }
    // Puts them into the menu, which must not outlive this object. Again after a change of the system's
    // colours.
    void addTo(win::MenuBar& menu);

 private:
    std::vector<win::UniqueBitmap> bitmaps_;
};

}  // namespace shell
