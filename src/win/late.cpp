#include "win/late.h"

#include "win/error.h"

namespace win {

void* LateFunction(const char* dll, const char* name) {
    return reinterpret_cast<void*>(Check(::GetProcAddress(Check(::LoadLibraryA(dll)), name)));
}

}  // namespace win
