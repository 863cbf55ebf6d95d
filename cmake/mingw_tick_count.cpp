// MinGW-w64's thread library, which the C++ run-time library needs, imports GetTickCount64. Windows XP does
// not have that function and would refuse to start the program, so the linker is given this one instead. The
// library calls it only in timed waits, which the program never uses.
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
