#include "shell/menu_pictures.h"

#include <array>

#include "menu_ids.h"
#include "win/picture.h"

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

// Menus of Windows Vista and later blend a bitmap with its alpha. Older ones, and Wine's, copy it in the
// size of a check mark.
bool MenusBlend() {
    return LOBYTE(LOWORD(::GetVersion())) >= 6 &&
           !::GetProcAddress(::GetModuleHandleA("ntdll.dll"), "wine_get_version");
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

win::UniqueBitmap OnMenuColour(const win::Picture& picture) {
    const int full = picture.size();
    const int check = ::GetSystemMetrics(SM_CXMENUCHECK);
    const win::UniqueBitmap large = Painted(full, [&](HDC dc) {
        const RECT area{0, 0, full, full};
        ::FillRect(dc, &area, ::GetSysColorBrush(COLOR_MENU));
        picture.draw(dc, 0, 0);
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

win::UniqueBitmap MenuBitmap(const char* icon) {
    win::Picture picture(icon, win::PictureSize());
    return MenusBlend() ? picture.release() : OnMenuColour(picture);
}

}  // namespace

void MenuPictures::addTo(win::MenuBar& menu) {
    std::vector<win::UniqueBitmap> made;
    for (const auto& [item, icon] : kPictures) {
        made.push_back(MenuBitmap(icon));
        menu.setPicture(item, made.back().get());
    }
    bitmaps_ = std::move(made);
}

}  // namespace shell
