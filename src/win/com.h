// Owners of COM's objects and memory, and a check of its results.
#pragma once

#include "win/error.h"
#include "win/unique.h"

namespace win {

inline void ReleaseInterface(IUnknown* object) {
    object->Release();
}

template <typename Interface>
using ComPtr = Unique<Interface*, ReleaseInterface>;

using UniqueTaskText = Unique<wchar_t*, ::CoTaskMemFree>;

inline void CheckResult(HRESULT result) {
    if (FAILED(result)) throw Error(static_cast<DWORD>(result));
}

}  // namespace win
