// The pictures of buttons, menu items and captions: icons of the resources.
#pragma once

#include <vector>

#include "win/unique.h"

namespace win {

using UniqueImageList = Unique<HIMAGELIST, ::ImageList_Destroy>;

// 16, 24 or 32 pixels: the largest size drawn for pictures that the system's DPI has room for and the system
// can read.
int PictureSize();

// Of that size. Null where it cannot be had.
UniqueIcon Picture(const char* name);
// The same as a bitmap with 32 bits a pixel, its colours multiplied by their alpha.
UniqueBitmap PictureBitmap(const char* name);
// For the caption of a window. Not a shared icon: those keep the size at which they were asked for first.
UniqueIcon SmallIcon(const char* name);

// Pictures in their order, and the same as they look while what they stand for is disabled. One that cannot
// be had is left empty.
struct PictureLists {
    explicit PictureLists(const std::vector<const char*>& names);
    UniqueImageList normal;
    UniqueImageList disabled;
};

// Puts a picture before the text of a push button, which shows it for as long as the list lives.
UniqueImageList ShowPicture(HWND button, const char* name);

}  // namespace win
