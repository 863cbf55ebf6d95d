// The toolbar: a strip of picture buttons.
#pragma once

#include <functional>

#include "win/picture_buttons.h"
#include "win/window.h"

namespace shell {

class Toolbar : public win::Window {
 public:
    // Creates the strip as a child of `parent`. `onClick` gets the index of a button that was clicked.
    static Toolbar& open(HWND parent, std::function<void(int index)> onClick);

    static int height();  // pixels
    // The buttons that need a document are disabled until one opens.
    void setDocumentOpen(bool open) const;
    bool isEnabled(int index) const { return ::IsWindowEnabled(button(index)) != FALSE; }
    bool owns(HWND window) const { return ::GetParent(window) == hwnd(); }

 private:
    explicit Toolbar(std::function<void(int)> onClick) : onClick_(std::move(onClick)) {}
    ~Toolbar() override = default;

    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void makeButtons();
    HWND button(int index) const { return Picture1_.button(static_cast<std::size_t>(index)); }

    std::function<void(int)> onClick_;
    win::PictureButtons Picture1_;
};

}  // namespace shell
