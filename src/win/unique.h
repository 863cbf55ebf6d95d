// Owners of system handles.
#pragma once

#include <utility>

#include "win/windows.h"

namespace win {

// Move-only owner of a handle that `close` releases. Both null and INVALID_HANDLE_VALUE count as empty.
template <typename Handle, auto close>
class Unique {
 public:
    Unique() = default;
    explicit Unique(Handle handle) : handle_(isValid(handle) ? handle : Handle{}) {}
    Unique(Unique&& other) noexcept : handle_(other.release()) {}
    Unique& operator=(Unique&& other) noexcept {
        reset(other.release());
        return *this;
    }
    ~Unique() { reset(); }

    Handle get() const { return handle_; }
    explicit operator bool() const { return handle_ != Handle{}; }
    Handle release() { return std::exchange(handle_, Handle{}); }
    void reset(Handle handle = {}) {
        if (const Handle old = std::exchange(handle_, handle)) close(old);
    }

 private:
    static bool isValid(Handle handle) { return reinterpret_cast<LONG_PTR>(handle) != -1; }

    Handle handle_{};
};

using UniqueFile = Unique<HANDLE, ::CloseHandle>;
using UniqueHandle = Unique<HANDLE, ::CloseHandle>;
using UniqueKey = Unique<HKEY, ::RegCloseKey>;
using UniqueMenu = Unique<HMENU, ::DestroyMenu>;
using UniqueIcon = Unique<HICON, ::DestroyIcon>;
using UniqueBitmap = Unique<HBITMAP, ::DeleteObject>;
using UniqueBrush = Unique<HBRUSH, ::DeleteObject>;
using UniqueFont = Unique<HFONT, ::DeleteObject>;
using UniqueAccelerators = Unique<HACCEL, ::DestroyAcceleratorTable>;
using UniqueDc = Unique<HDC, ::DeleteDC>;

}  // namespace win
