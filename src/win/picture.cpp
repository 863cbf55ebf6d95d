#include "win/picture.h"

#include <algorithm>
#include <vector>

#include "win/units.h"

namespace win {
namespace {

constexpr int kGap = 4;     // pixels of a 96-dpi screen
constexpr int kSmall = 16;  // the only size whose icons are bitmaps; Windows XP cannot read the others' PNG

struct Pixels {
    Pixels(int width, int height) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
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
    Pixels pixels(size, size);
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

UniqueIcon Load(const char* name, int width, int height) {
    return UniqueIcon(static_cast<HICON>(
        ::LoadImageA(::GetModuleHandleA(nullptr), name, IMAGE_ICON, width, height, LR_DEFAULTCOLOR)));
}

// An icon of the resources, its colours multiplied by their alpha; in a smaller `size` where the system
// cannot read this one, and empty where it cannot read any.
Pixels Blended(const char* name, int& size) {
    UniqueIcon icon = Load(name, size, size);
    if (!icon) {
        size = kSmall;
        icon = Load(name, size, size);
    }
    if (!icon) return {0, 0};
    // On black an icon shows its colours times their alpha, and how much lighter it gets on white is what
    // its alpha lacks. So any icon will do, whatever the depth of the screen has made of it.
    Pixels black = DrawnOn(BLACKNESS, icon.get(), size);
    const Pixels white = DrawnOn(WHITENESS, icon.get(), size);
    if (!black.first || !white.first) return {0, 0};
    for (int i = 0; i < size * size; ++i) {
        RGBQUAD& pixel = black.first[i];
        pixel.rgbReserved = static_cast<BYTE>(255 - (white.first[i].rgbGreen - pixel.rgbGreen));
    }
    return black;
}

// The colour itself, as an icon wants it, where there is any.
BYTE Divided(BYTE colour, BYTE alpha) {
    return static_cast<BYTE>(std::min(255, colour * 255 / alpha));
}

}  // namespace

int PictureSize() {
    const int room = Scaled(kSmall);
    return room >= 32 ? 32 : room >= 24 ? 24 : kSmall;
}

Picture::Picture(const char* name, int size, Look look) : size_(size) {
    Pixels pixels = Blended(name, size_);
    if (!pixels.first) return;
    if (look == Look::disabled) std::for_each(pixels.first, pixels.first + size_ * size_, Disable);
    bitmap_ = std::move(pixels.bitmap);
}

void Picture::draw(HDC dc, int left, int top) const {
    if (!bitmap_) return;
    const UniqueDc memory(::CreateCompatibleDC(dc));
    const HGDIOBJ old = ::SelectObject(memory.get(), bitmap_.get());
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    ::GdiAlphaBlend(dc, left, top, size_, size_, memory.get(), 0, 0, size_, size_, blend);
    ::SelectObject(memory.get(), old);
}

UniqueIcon SmallIcon(const char* name) {
    return Load(name, ::GetSystemMetrics(SM_CXSMICON), ::GetSystemMetrics(SM_CYSMICON));
}

UniqueIcon IconBeforeText(const char* name) {
    int size = PictureSize();
    const Pixels picture = Blended(name, size);
    const int width = size + Scaled(kGap);
    const Pixels wide(width, size);
    if (!picture.first || !wide.first) return {};
    const int maskRow = (width + 15) / 16 * 2;  // bytes
    std::vector<BYTE> mask(static_cast<std::size_t>(maskRow * size), BYTE{0xFF});
    for (int i = 0; i < size * size; ++i) {
        const RGBQUAD& from = picture.first[i];
        const BYTE alpha = from.rgbReserved;
        if (alpha == 0) continue;
        const int x = i % size;
        const int y = i / size;
        wide.first[y * width + x] = {Divided(from.rgbBlue, alpha), Divided(from.rgbGreen, alpha),
                                     Divided(from.rgbRed, alpha), alpha};
        mask[static_cast<std::size_t>(y * maskRow + x / 8)] &= static_cast<BYTE>(~(0x80 >> x % 8));
    }
    const UniqueBitmap transparent(::CreateBitmap(width, size, 1, 1, mask.data()));
    ICONINFO info{TRUE, 0, 0, transparent.get(), wide.bitmap.get()};
    return UniqueIcon(::CreateIconIndirect(&info));
}

}  // namespace win
