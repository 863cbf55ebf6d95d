// standin_browser PAGE: copies the page to page.txt, then writes its own command line to command.txt, both in
// the folder that STANDIN_BROWSER names.
#include <cstdlib>
#include <fstream>
#include <string>

#include <windows.h>

int main(int argc, char** argv) {
    const char* folder = std::getenv("STANDIN_BROWSER");
    if (argc < 2 || !folder) return 1;
    const std::string to = std::string(folder) + '\\';
    ::CopyFileA(argv[1], (to + "page.txt").c_str(), FALSE);
    // Under another name first, so that whoever waits for the file finds it complete.
    std::ofstream(to + "command.tmp", std::ios::binary) << ::GetCommandLineA();
    return ::MoveFileA((to + "command.tmp").c_str(), (to + "command.txt").c_str()) ? 0 : 1;
}
