// Starting the program, beside starting Wine's own notepad and wordpad.
#include <cstdlib>
#include <functional>

#include "bench.h"
#include "win/error.h"
#include "win/unique.h"
#include "win/window.h"

namespace bench {
namespace {

struct Search {
    DWORD process;
    const char* cls;
    LONG length;  // how much text its control must show
    bool found = false;
};

BOOL CALLBACK SeeControl(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    char name[64];
    ::GetClassNameA(window, name, sizeof name);
    if (::lstrcmpiA(name, search.cls) == 0 && ::IsWindowVisible(window)) {
        search.found = ::SendMessageA(window, WM_GETTEXTLENGTH, 0, 0) >= search.length;
    }
    return !search.found;
}

BOOL CALLBACK SeeWindow(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process == search.process && ::IsWindowVisible(window))
        ::EnumChildWindows(window, SeeControl, parameter);
    return !search.found;
}

// Starts the program, waits until it shows the page, and ends it.
void StartUntilPage(const std::string& program, const std::string& file, const char* cls,
                    std::size_t length) {
    std::string command = "\"" + program + "\" " + file;
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    win::Check(::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                                &startup, &process));
    const win::UniqueHandle thread(process.hThread);
    const win::UniqueHandle running(process.hProcess);
    Search search{process.dwProcessId, cls, static_cast<LONG>(length)};
    while (!search.found) {
        ::EnumWindows(SeeWindow, reinterpret_cast<LPARAM>(&search));
        ::Sleep(1);
    }
    ::TerminateProcess(process.hProcess, 0);
    ::WaitForSingleObject(process.hProcess, INFINITE);
}

}  // namespace

void Start() {
    const char* exe = std::getenv("QUILLON_EXE");
    if (!exe) throw win::Failure("QUILLON_EXE names no program.");
    const std::string small = Scratch("small.htm");
    const std::string large = Scratch("large.htm");
    WriteFile(small, Page(2000));
    WriteFile(large, Page(1000000));
    const auto quillon = [exe](const std::string& file, std::size_t length) {
        return [=] { StartUntilPage(exe, file, "RICHEDIT", length); };
    };
    quillon(small, 2000)();
    Compare("warm start with a page, beside Wine's notepad", 1.0, 9, quillon(small, 2000),
            [&] { StartUntilPage("notepad.exe", small, "Edit", 2000); });
    Compare("start with a page of 1 MB, beside Wine's wordpad", 1.0, 3, quillon(large, 1000000), [&] {
        StartUntilPage("C:\\Program Files\\Windows NT\\Accessories\\wordpad.exe", large, "RichEdit20W",
                       900000);
    });
    WIN32_FILE_ATTRIBUTE_DATA file{};
    ::GetFileAttributesExA(exe, GetFileExInfoStandard, &file);
    Print("size of the program, beside 640 KB (in KB)", file.nFileSizeLow / 1024.0, 640.0, 1.0);
}

}  // namespace bench
