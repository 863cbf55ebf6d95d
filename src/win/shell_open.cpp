#include "win/shell_open.h"

#include <shellapi.h>

#include "win/unicode.h"

namespace win {
namespace {

// FindExecutable and ShellExecute tell failures as numbers up to 32.
bool IsDone(HINSTANCE result) {
    return reinterpret_cast<INT_PTR>(result) > 32;
}

}  // namespace

void OpenAddress(const std::string& address) {
    ::ShellExecuteW(nullptr, nullptr, ToWide(address).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

std::string ProgramFor(const std::string& file, const std::string& folder) {
    wchar_t program[MAX_PATH] = L"";
    const bool found = IsDone(::FindExecutableW(ToWide(file).c_str(), ToWide(folder).c_str(), program));
    return found ? ToUtf8(program) : std::string();
}

bool OpenFile(HWND owner, const std::string& file, const std::string& arguments, const std::string& folder) {
    return IsDone(::ShellExecuteW(owner, L"open", ToWide(file).c_str(), ToWide(arguments).c_str(),
                                  ToWide(folder).c_str(), SW_SHOWNORMAL));
}

}  // namespace win
