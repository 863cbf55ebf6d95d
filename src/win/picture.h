// The pictures of buttons, menu items and captions: icons of the resources.
#pragma once

#include <vector>

#include "win/unique.h"

namespace win {

using UniqueImageList = Unique<HIMAGELIST, ::ImageList_Destroy>;

// 16, 24 or 32 pixels: the largest size in the resources that suits the system's DPI and that the system can
// read.
int PictureSize();

// An icon of that size; null where it cannot be loaded.
UniqueIcon Picture(const char* name);
// The same as a bitmap of 32 bits a pixel, with premultiplied alpha.
UniqueBitmap PictureBitmap(const char* name);
// For the caption of a window. Not a shared icon: those keep the size at which they were asked for first.
UniqueIcon SmallIcon(const char* name);

// Pictures in the order of their names, as normal and as disabled ones. One that cannot be loaded is left
// empty.
struct PictureLists {
    explicit PictureLists(const std::vector<const char*>& names);
    UniqueImageList normal;
    UniqueImageList disabled;
};

// Puts a picture before the text of a push button, which shows it for as long as the list lives.
UniqueImageList ShowPicture(HWND button, const char* name);

}  // namespace win
