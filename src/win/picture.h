// The pictures of buttons and menu items.
#pragma once

#include "win/unique.h"

namespace win {

// 16, 24 or 32 pixels: the largest size drawn for pictures that the system's DPI has room for.
int PictureSize();

// An icon of the resources as a bitmap with its transparency.
class Picture {
 public:
    enum class Look { normal, disabled };

    // `name` is the resource's. Where the system cannot read a size, the picture is smaller; empty where it
    // cannot read any.
    Picture(const char* name, int size, Look look = Look::normal);

    int size() const { return size_; }  // pixels, width and height alike
    // 32 bits a pixel, the colours multiplied by their alpha.
    UniqueBitmap release() { return std::move(bitmap_); }
    void draw(HDC dc, int left, int top) const;

 private:
    int size_ = 0;
    UniqueBitmap bitmap_;
};

// An icon of the resources for the caption of a window. Not a shared one: those keep the size at which they
// were asked for first. Null where it cannot be had.
UniqueIcon SmallIcon(const char* name);

// An icon of the resources with a gap at its right, for a button that draws its text right behind it. Null
// where it cannot be had.
UniqueIcon IconBeforeText(const char* name);

}  // namespace win
