#include "shell/menu_pictures.h"

#include <array>

#include "menu_ids.h"
#include "win/picture.h"

#include <shlwapi.h>

namespace shell {
namespace {

struct Row {
    Command item;
    const char* icon;
};

constexpr auto kPictures = std::to_array<Row>({
    {mnuFileNew, "new"},
    {mnuFileOpen, "open"},
    {mnuFileClose, "close"},
    {mnuFileSave, "save"},
    {mnuFileSaveAs, "save_as"},
    {mnuFilePrint, "print"},
    {mnuFileExit, "exit"},
    {mnuUploadFile, "ftp"},
});

// The menus of Windows Vista and later, whose common controls are of version 6.10 and up, blend a bitmap with
// its alpha. Older ones copy it in the size of a check mark.
bool MenusBlend() {
    void* const found =
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandleW(L"comctl32.dll"), "DllGetVersion"));
    const auto ask = reinterpret_cast<DLLGETVERSIONPROC>(found);
    DLLVERSIONINFO version{};
    version.cbSize = sizeof version;
    if (!ask || FAILED(ask(&version))) return false;
    return version.dwMajorVersion > 6 || (version.dwMajorVersion == 6 && version.dwMinorVersion >= 10);
}

// A bitmap of the screen's depth with what `paint` draws into a memory device context.
template <typename Paint>
win::UniqueBitmap Painted(int size, Paint paint) {
    const HDC screen = ::GetDC(nullptr);
    win::UniqueBitmap bitmap(::CreateCompatibleBitmap(screen, size, size));
    const win::UniqueDc memory(::CreateCompatibleDC(screen));
    ::ReleaseDC(nullptr, screen);
    const HGDIOBJ old = ::SelectObject(memory.get(), bitmap.get());
    paint(memory.get());
    ::SelectObject(memory.get(), old);
    return bitmap;
}

win::UniqueBitmap OnMenuColour(HICON picture) {
    const int full = win::PictureSize();
    const int check = ::GetSystemMetrics(SM_CXMENUCHECK);
    const win::UniqueBitmap large = Painted(full, [&](HDC dc) {
        const RECT area{0, 0, full, full};
        ::FillRect(dc, &area, ::GetSysColorBrush(COLOR_MENU));
        ::DrawIconEx(dc, 0, 0, picture, full, full, 0, nullptr, DI_NORMAL);
    });
    return Painted(check, [&](HDC dc) {
        const win::UniqueDc source(::CreateCompatibleDC(dc));
        const HGDIOBJ old = ::SelectObject(source.get(), large.get());
        ::SetStretchBltMode(dc, HALFTONE);
        ::SetBrushOrgEx(dc, 0, 0, nullptr);
        ::StretchBlt(dc, 0, 0, check, check, source.get(), 0, 0, full, full, SRCCOPY);
        ::SelectObject(source.get(), old);
    });
}

}  // namespace

void MenuPictures::addTo(win::MenuBar& menu) {
    const bool blend = MenusBlend();
    std::vector<win::UniqueBitmap> made;
    for (const auto& [item, icon] : kPictures) {
        made.push_back(blend ? win::PictureBitmap(icon) : OnMenuColour(win::Picture(icon).get()));
        menu.setPicture(item, made.back().get());
    }
    bitmaps_ = std::move(made);
}

}  // namespace shell
