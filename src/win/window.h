// The base of every window whose class is ours.
#pragma once

#include <string>

#include "win/windows.h"

namespace win {

// A window and its object live and die together: create() binds the object to the window, and after
// WM_NCDESTROY the object deletes itself, as soon as no handler of it is left on the stack. So objects are
// made with new, and nobody else deletes them.
class Window {
 public:
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    HWND hwnd() const { return hwnd_; }  // null once the window is gone
    std::string text() const;
    void setText(const std::string& text);

 protected:
    struct Place {
        int left = CW_USEDEFAULT;  // pixels
        int top = CW_USEDEFAULT;
        int width = CW_USEDEFAULT;
        int height = CW_USEDEFAULT;
    };

    Window() = default;
    virtual ~Window() = default;

    // Registers the class on first use. `cls.lpszClassName` names it; its procedure is set here.
    void create(WNDCLASSEXA cls, const std::string& text, DWORD style, DWORD exStyle, Place place,
                HWND parent);
    // The same for a child of an MDI client.
    void createMdiChild(WNDCLASSEXA cls, const std::string& text, DWORD style, HWND mdiClient);

    virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) = 0;
    // What the system does with a message: DefWindowProcA unless the window is a frame or an MDI child.
    virtual LRESULT defaultHandling(UINT message, WPARAM wParam, LPARAM lParam);

 private:
    static LRESULT CALLBACK procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
    static Window* bind(HWND hwnd, UINT message, LPARAM lParam);
    static void registerOnce(WNDCLASSEXA& cls);
    LRESULT dispatch(UINT message, WPARAM wParam, LPARAM lParam);

    HWND hwnd_ = nullptr;
    int depth_ = 0;      // handlers of this object on the stack
    bool dead_ = false;  // WM_NCDESTROY has passed
};

// The text of any window of this process, of any length.
std::string WindowText(HWND window);

}  // namespace win
