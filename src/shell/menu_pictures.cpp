#include "shell/menu_pictures.h"

#include <array>

#include "menu_ids.h"

namespace shell {
namespace {

struct Picture {
    Command item;
    const char* icon;
};

constexpr auto kPictures = std::to_array<Picture>({
    {mnuFileNew, "new"},
    {mnuFileOpen, "open"},
    {mnuFileClose, "close"},
    {mnuFileSave, "save"},
    {mnuFileSaveAs, "save_as"},
    {mnuFilePrint, "print"},
    {mnuFileExit, "exit"},
    {mnuUploadFile, "ftp"},
});

// Menus take bitmaps only. The icon is drawn on the colour that menus have.
win::UniqueBitmap MenuBitmap(const char* icon) {
    const int width = ::GetSystemMetrics(SM_CXMENUCHECK);
    const int height = ::GetSystemMetrics(SM_CYMENUCHECK);
    const win::UniqueIcon picture(static_cast<HICON>(
        ::LoadImageA(::GetModuleHandleA(nullptr), icon, IMAGE_ICON, width, height, LR_DEFAULTCOLOR)));
    if (!picture) return {};
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    win::UniqueBitmap bitmap(::CreateCompatibleBitmap(screen, width, height));
    const HGDIOBJ old = ::SelectObject(memory, bitmap.get());
    const RECT area{0, 0, width, height};
    ::FillRect(memory, &area, ::GetSysColorBrush(COLOR_MENU));
    ::DrawIconEx(memory, 0, 0, picture.get(), width, height, 0, nullptr, DI_NORMAL);
    ::SelectObject(memory, old);
    ::DeleteDC(memory);
    ::ReleaseDC(nullptr, screen);
    return bitmap;
}

}  // namespace

void MenuPictures::addTo(win::MenuBar& menu) {
    for (const auto& [item, icon] : kPictures) {
        bitmaps_.push_back(MenuBitmap(icon));
        menu.setPicture(item, bitmaps_.back().get());
    }
}

}  // namespace shell
