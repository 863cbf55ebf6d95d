// standin_browser PAGE: leaves a copy of the page as page.txt and then its own command line as command.txt
// in the folder that STANDIN_BROWSER names.
#include <windows.h>

#include <string>

namespace {

void Write(const std::string& path, const std::string& text) {
    const HANDLE file = ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
    ::CloseHandle(file);
}

}  // namespace

int main(int argc, char** argv) {
    char folder[MAX_PATH];
    if (argc < 2 || ::GetEnvironmentVariableA("STANDIN_BROWSER", folder, sizeof folder) == 0) return 1;
    const std::string to = std::string(folder) + '\\';
    ::CopyFileA(argv[1], (to + "page.txt").c_str(), FALSE);
    // Under another name first, so that whoever waits for the file finds it whole.
    Write(to + "command.tmp", ::GetCommandLineA());
    return ::MoveFileA((to + "command.tmp").c_str(), (to + "command.txt").c_str()) ? 0 : 1;
}
