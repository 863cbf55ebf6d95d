#include <exception>

#include "shell/frmNotePad.h"
#include "shell/modPrevious.h"
#include "shell/start_up.h"
#include "win/message_box.h"
#include "win/message_loop.h"
#include "win/system_dll.h"

namespace {

int RunProgram() {
    win::SearchSystemDllsOnly();
    // No message of the system's about an empty drive: what cannot be read is reported where it is opened.
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    modPrevious::InstanceMark mark;
    const std::string file = shell::CommandLineFile();
    if (!mark.isFirst() && modPrevious::HandOver(mark, file)) return 0;
    // The folder that the program was started in can be renamed and removed while it runs.
    ::SetCurrentDirectoryW(win::SystemFolder().c_str());
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES | ICC_BAR_CLASSES | ICC_LINK_CLASS};
    ::InitCommonControlsEx(&controls);
    ::OleInitialize(nullptr);
    frmNotePad& window = frmNotePad::open();
    const HWND main = window.hwnd();
    shell::Load(window, file);
    // A box of the start may have been answered by closing the program.
    if (::IsWindow(main)) window.restorePages();
    const int code = win::RunMessageLoop();
    ::OleUninitialize();
    return code;
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
    try {
        return RunProgram();
    } catch (const std::exception& error) {
        win::ShowMessage(nullptr, error.what(), "Quillon", MB_ICONSTOP);
        return 1;
    }
}
