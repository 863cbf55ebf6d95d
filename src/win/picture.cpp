#include "win/picture.h"

#include <algorithm>
#include <span>

#include "win/error.h"
#include "win/unicode.h"
#include "win/units.h"

namespace win {
namespace {

constexpr int kSmall = 16;  // the only size whose icons are bitmaps; Windows XP cannot read the others' PNG
constexpr int kGap = 4;     // pixels of a 96-dpi screen

UniqueIcon Load(const char* name, int width, int height) {
    return UniqueIcon(static_cast<HICON>(::LoadImageW(::GetModuleHandleW(nullptr), ToWide(name).c_str(),
                                                      IMAGE_ICON, width, height, LR_DEFAULTCOLOR)));
}

// Pixels of 32 bits; none where memory is short.
struct Pixels {
    Pixels(int columns, int rows) : width(columns), height(rows) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap.reset(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        if (bitmap) all = {static_cast<RGBQUAD*>(bits), static_cast<std::size_t>(width * height)};
    }

    UniqueBitmap bitmap;
    std::span<RGBQUAD> all;
    int width;
    int height;
};

// The pictures side by side on black or on white.
Pixels DrawnOn(DWORD ground, const std::vector<UniqueIcon>& icons) {
    const int size = PictureSize();
    Pixels pixels(size * static_cast<int>(icons.size()), size);
    const UniqueDc memory(::CreateCompatibleDC(nullptr));
    const HGDIOBJ old = ::SelectObject(memory.get(), pixels.bitmap.get());
    ::PatBlt(memory.get(), 0, 0, pixels.width, pixels.height, ground);
    int left = 0;
    for (const UniqueIcon& icon : icons) {
        ::DrawIconEx(memory.get(), left, 0, icon.get(), size, size, 0, nullptr, DI_NORMAL);
        left += size;
    }
    ::GdiFlush();
    ::SelectObject(memory.get(), old);
    return pixels;
}

// The pictures side by side, with premultiplied alpha.
Pixels Blended(const std::vector<const char*>& names) {
    std::vector<UniqueIcon> icons;
    for (const char* name : names) icons.push_back(Picture(name));
    // Drawn on black, an icon shows its colours multiplied by their alpha; drawn on white, it is lighter by
    // what its alpha lacks. This works for any icon, whatever colour depth the screen has given it.
    Pixels black = DrawnOn(BLACKNESS, icons);
    Pixels white = DrawnOn(WHITENESS, icons);
    if (white.all.empty()) return white;
    for (std::size_t i = 0; i < black.all.size(); ++i) {
        RGBQUAD& pixel = black.all[i];
        pixel.rgbReserved = static_cast<BYTE>(255 - (white.all[i].rgbGreen - pixel.rgbGreen));
    }
    return black;
}

// Image lists take colours that are not multiplied by their alpha.
void Divide(RGBQUAD& pixel) {
    const int alpha = std::max<int>(pixel.rgbReserved, 1);
    for (BYTE* colour : {&pixel.rgbRed, &pixel.rgbGreen, &pixel.rgbBlue})
        *colour = static_cast<BYTE>(std::min(255, *colour * 255 / alpha));
}

// Grey and half transparent.
void Disable(RGBQUAD& pixel) {
    const int grey = (30 * pixel.rgbRed + 59 * pixel.rgbGreen + 11 * pixel.rgbBlue) / 100;
    pixel.rgbRed = pixel.rgbGreen = pixel.rgbBlue = static_cast<BYTE>(grey);
    pixel.rgbReserved = static_cast<BYTE>(pixel.rgbReserved / 2);
}

// All at once: adding an icon to an image list takes several times as long as loading and drawing it.
UniqueImageList ListOf(const Pixels& pixels) {
    const int size = PictureSize();
    UniqueImageList list(Check(::ImageList_Create(size, size, ILC_COLOR32, pixels.width / size, 0)));
    if (::ImageList_Add(list.get(), pixels.bitmap.get(), nullptr) < 0)
        ::ImageList_SetImageCount(list.get(), static_cast<UINT>(pixels.width / size));
    return list;
}

}  // namespace

int PictureSize() {
    static int known = 0;
    if (known == 0) {
        const int room = Scaled(kSmall);
        const int size = room >= 32 ? 32 : room >= 24 ? 24 : kSmall;
        known = Load("new", size, size) ? size : kSmall;
    }
    return known;
}

UniqueIcon Picture(const char* name) {
    return Load(name, PictureSize(), PictureSize());
}

UniqueBitmap PictureBitmap(const char* name) {
    return std::move(Blended({name}).bitmap);
}

UniqueIcon SmallIcon(const char* name) {
    return Load(name, ::GetSystemMetrics(SM_CXSMICON), ::GetSystemMetrics(SM_CYSMICON));
}

PictureLists::PictureLists(const std::vector<const char*>& names) {
    const Pixels pixels = Blended(names);
    std::ranges::for_each(pixels.all, Divide);
    normal = ListOf(pixels);
    std::ranges::for_each(pixels.all, Disable);
    disabled = ListOf(pixels);
}

UniqueImageList ShowPicture(HWND button, const char* name) {
    // A button's states in their order: normal, hot, pressed, disabled, default, under a pen.
    const Pixels states = Blended(std::vector<const char*>(6, name));
    std::ranges::for_each(states.all, Divide);
    const int size = PictureSize();
    for (std::size_t i = 0; i < states.all.size(); ++i) {
        if (static_cast<int>(i) % states.width / size == 3) Disable(states.all[i]);
    }
    UniqueImageList list = ListOf(states);
    BUTTON_IMAGELIST images{list.get(), {Scaled(kGap), 0, Scaled(kGap), 0}, BUTTON_IMAGELIST_ALIGN_LEFT};
    ::SendMessageW(button, BCM_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(&images));
    return list;
}

}  // namespace win
