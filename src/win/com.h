// Owners of what COM hands out.
#pragma once

#include "win/unique.h"

namespace win {

inline void ReleaseInterface(IUnknown* object) {
    object->Release();
}

template <typename Interface>
using ComPtr = Unique<Interface*, ReleaseInterface>;

using UniqueTaskText = Unique<wchar_t*, ::CoTaskMemFree>;

}  // namespace win
