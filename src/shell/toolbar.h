// The toolbar: a strip of real buttons, so that each has a name, a tool tip and a place for the keyboard.
#pragma once

#include <array>
#include <functional>

#include "shell/menu_table.h"
#include "win/unique.h"
#include "win/window.h"

namespace shell {

class Toolbar : public win::Window {
 public:
    // Creates the strip as a child of `parent`. `onClick` gets the index of a button that was clicked.
    static Toolbar& open(HWND parent, std::function<void(int index)> onClick);

    static int height();  // pixels
    void enableButton(int index, bool enabled) const { ::EnableWindow(Picture1_[index_(index)], enabled); }
    bool isEnabled(int index) const { return ::IsWindowEnabled(Picture1_[index_(index)]) != FALSE; }
    bool owns(HWND window) const { return ::GetParent(window) == hwnd(); }

 private:
    explicit Toolbar(std::function<void(int)> onClick) : onClick_(std::move(onClick)) {}
    ~Toolbar() override = default;

    static std::size_t index_(int index) { return static_cast<std::size_t>(index); }
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void makeButtons();
    void addTip(HWND tips, HWND button, const char* text) const;
    void draw(const DRAWITEMSTRUCT& item) const;

    std::function<void(int)> onClick_;
    std::array<HWND, kToolbar.size()> Picture1_{};
    std::array<win::UniqueIcon, kToolbar.size()> pictures_;
};

}  // namespace shell
