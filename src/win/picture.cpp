#include "win/picture.h"

#include "win/units.h"

namespace win {
namespace {

constexpr int kSmall = 16;  // the only size whose icons are bitmaps; Windows XP cannot read the others' PNG

struct Pixels {
    explicit Pixels(int size) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = size;
        info.bmiHeader.biHeight = -size;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap.reset(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        if (bitmap) first = static_cast<RGBQUAD*>(bits);
    }

    UniqueBitmap bitmap;
    RGBQUAD* first = nullptr;
};

// The icon on black or on white.
Pixels DrawnOn(DWORD ground, HICON icon, int size) {
    Pixels pixels(size);
    if (!pixels.first) return pixels;
    const UniqueDc memory(::CreateCompatibleDC(nullptr));
    const HGDIOBJ old = ::SelectObject(memory.get(), pixels.bitmap.get());
    ::PatBlt(memory.get(), 0, 0, size, size, ground);
    ::DrawIconEx(memory.get(), 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
    ::GdiFlush();
    ::SelectObject(memory.get(), old);
    return pixels;
}

// Grey, and half gone into the ground below.
void Disable(RGBQUAD& pixel) {
    const int grey = (30 * pixel.rgbRed + 59 * pixel.rgbGreen + 11 * pixel.rgbBlue) / 200;
    pixel.rgbRed = pixel.rgbGreen = pixel.rgbBlue = static_cast<BYTE>(grey);
    pixel.rgbReserved = static_cast<BYTE>(pixel.rgbReserved / 2);
}

UniqueIcon Load(const char* name, int size) {
    return UniqueIcon(static_cast<HICON>(
        ::LoadImageA(::GetModuleHandleA(nullptr), name, IMAGE_ICON, size, size, LR_DEFAULTCOLOR)));
}

}  // namespace

int PictureSize() {
    const int room = Scaled(kSmall);
    return room >= 32 ? 32 : room >= 24 ? 24 : kSmall;
}

Picture::Picture(const char* name, int size, Look look) : size_(size) {
    UniqueIcon icon = Load(name, size_);
    if (!icon) icon = Load(name, size_ = kSmall);
    if (!icon) return;
    // On black an icon shows its colours times their alpha, and how much lighter it gets on white is what
    // its alpha lacks. So any icon will do, whatever the depth of the screen has made of it.
    Pixels black = DrawnOn(BLACKNESS, icon.get(), size_);
    const Pixels white = DrawnOn(WHITENESS, icon.get(), size_);
    if (!black.first || !white.first) return;
    for (int i = 0; i < size_ * size_; ++i) {
        RGBQUAD& pixel = black.first[i];
        pixel.rgbReserved = static_cast<BYTE>(255 - (white.first[i].rgbGreen - pixel.rgbGreen));
        if (look == Look::disabled) Disable(pixel);
    }
    bitmap_ = std::move(black.bitmap);
}

void Picture::draw(HDC dc, int left, int top) const {
    if (!bitmap_) return;
    const UniqueDc memory(::CreateCompatibleDC(dc));
    const HGDIOBJ old = ::SelectObject(memory.get(), bitmap_.get());
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::GdiAlphaBlend(dc, left, top, size_, size_, memory.get(), 0, 0, size_, size_, blend);
    ::SelectObject(memory.get(), old);
}

}  // namespace win
