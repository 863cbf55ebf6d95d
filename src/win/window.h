// The base of every window whose class is ours.
#pragma once

#include <string>
#include <string_view>

#include "win/windows.h"

namespace win {

// A window and its object live and die together: create() binds the object to the window, and after
// WM_NCDESTROY the object deletes itself, as soon as no handler of it is left on the stack. So objects are
// made with new, and nobody else deletes them.
class Window {
 public:
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    HWND hwnd() const { return hwnd_; }  // null once the window is destroyed
    std::string text() const;
    void setText(const std::string& text);

    // The object of a window of ours; null for any other.
    static Window* of(HWND window);
    // Offers the window a key or mouse message, its own or that of a child, before it is translated. True
    // when the window has handled it, as an accelerator for example.
    bool preTranslate(MSG& message);

 protected:
    struct Place {
        int left = CW_USEDEFAULT;  // pixels
        int top = CW_USEDEFAULT;
        int width = CW_USEDEFAULT;
        int height = CW_USEDEFAULT;
    };

    Window() = default;
    virtual ~Window() = default;

    // Registers the class on first use. `cls.lpszClassName` names it; its procedure is set here. An exception
    // while the window is being created makes the creation fail: the object is then deleted, and a
    // win::Failure thrown.
    void create(WNDCLASSEXW cls, const std::string& text, DWORD style, DWORD exStyle, Place place,
                HWND parent);
    // The same for a child of an MDI client.
    void createMdiChild(WNDCLASSEXW cls, const std::string& text, DWORD style, HWND mdiClient);

    virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;
    virtual bool onPreTranslate(MSG&) { return false; }
    // What the system does with a message: DefWindowProcW unless the window is a frame or an MDI child.
    virtual LRESULT defaultHandling(UINT message, WPARAM wParam, LPARAM lParam);

 private:
    struct Creation;

    static void finish(const Creation& creation, HWND made);
    static LRESULT CALLBACK procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    static Window* bind(HWND hwnd, UINT message, LPARAM lParam);
    static void registerOnce(WNDCLASSEXW& cls);
    LRESULT dispatch(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT fail(UINT message, const char* what);
    void leave();

    HWND hwnd_ = nullptr;
    Creation* creation_ = nullptr;  // while the window is being made
    int depth_ = 0;                 // handlers of this object on the stack
    bool dead_ = false;             // WM_NCDESTROY has passed
};

// The point of a mouse message or WM_CONTEXTMENU; its coordinates may be negative.
inline POINT PointOf(LPARAM coordinates) {
    return {static_cast<short>(LOWORD(coordinates)), static_cast<short>(HIWORD(coordinates))};
}

// The text of any window of this process, of any length.
std::string WindowText(HWND window);
void ShowText(HWND window, std::string_view text);

// A row of a list box or the list of a combo box; empty when there is no such row.
std::string ListRow(HWND list, LRESULT row);
void AddListRow(HWND list, std::string_view text);

}  // namespace win
