// The pictures beside menu items.
#pragma once

#include <vector>

#include "win/menu_bar.h"

namespace shell {

class MenuPictures {
 public:
    // Puts them into the menu, which must not outlive this object. Again after a change of the system's
    // colours or measures.
    void addTo(win::MenuBar& menu);

 private:
    std::vector<win::UniqueBitmap> bitmaps_;
};

}  // namespace shell
