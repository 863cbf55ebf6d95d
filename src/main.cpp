#include <exception>

#include "shell/frmNotePad.h"
#include "shell/modPrevious.h"
#include "shell/start_up.h"
#include "win/message_box.h"
#include "win/message_loop.h"

namespace {

int RunProgram() {
    const modPrevious::InstanceMark mark;
    const std::string file = shell::CommandLineFile();
    if (!mark.isFirst()) {
        modPrevious::HandOver(file);
        return 0;
    }
    INITCOMMONCONTROLSEX controls{sizeof controls, ICC_STANDARD_CLASSES | ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&controls);
    ::OleInitialize(nullptr);
    shell::Load(frmNotePad::open(), file);
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
