#include <cstdio>
#include <cstring>

#include "bench.h"
#include "shell/frmNotePad.h"

namespace {

// Without arguments every part runs; otherwise those that are named.
bool Wanted(const char* part, int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], part) == 0) return true;
    }
    return argc == 1;
}

}  // namespace

int main(int argc, char** argv) {
    ::OleInitialize(nullptr);
    std::printf("%-62s %10s %10s  %6s  %5s\n", "milliseconds, middle of several runs", "ours", "other",
                "ratio", "aim");
    if (Wanted("start", argc, argv)) bench::Start();
    frmNotePad& window = frmNotePad::open();
    ::ShowWindow(window.hwnd(), SW_SHOW);
    if (Wanted("pages", argc, argv)) bench::OpenAndSave(window);
    if (Wanted("typing", argc, argv)) bench::Typing(window);
    if (Wanted("find", argc, argv)) bench::FindAndReplace(window);
    if (Wanted("chart", argc, argv)) bench::Chart(window);
    if (Wanted("ftp", argc, argv)) bench::Ftp(window);
    ::OleUninitialize();
    return 0;
}
