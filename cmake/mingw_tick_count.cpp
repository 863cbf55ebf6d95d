// MinGW-w64's thread library, which the C++ run-time library brings along, imports GetTickCount64. Windows
// XP does not have it and would refuse to start the program. The linker takes this import for it. The
// library asks only in timed waits, of which the program has none.
#include <windows.h>

namespace {

ULONGLONG WINAPI tickCount() {
    return ::GetTickCount();
}

}  // namespace

extern "C" {
extern ULONGLONG(WINAPI* const importedTickCount)() __asm__("__imp__GetTickCount64@0");
ULONGLONG(WINAPI* const importedTickCount)() = tickCount;
}
