#include "files/replace_file.h"

#include <algorithm>
#include <optional>

#include "files/mBinOpen.h"
#include "win/wide_path.h"
#include "win/windows.h"

namespace files {
namespace {

// A file of this name that a killed process has left behind is simply written over by the next save there.
std::wstring NeighbourPath(const std::wstring& target, int number) {
    const std::size_t folder = target.rfind(L'\\') + 1;
    return target.substr(0, folder) + L"~quillon" + static_cast<wchar_t>(L'0' + number) + L".tmp";
}

// With INVALID_HANDLE_VALUE for one that cannot be had.
HANDLE OpenToWrite(const std::wstring& path, DWORD disposition) {
    return ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                         nullptr);
}

bool Write(HANDLE file, std::string_view bytes) {
    constexpr std::size_t kBlock = 1U << 20U;
    while (!bytes.empty()) {
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kBlock));
        DWORD written = 0;
        if (!::WriteFile(file, bytes.data(), wanted, &written, nullptr) || written == 0) return false;
        bytes.remove_prefix(written);
    }
    return true;
}

bool WriteAndClose(HANDLE file, std::string_view bytes) {
    const bool done = Write(file, bytes) && ::SetEndOfFile(file) && ::FlushFileBuffers(file);
    return ::CloseHandle(file) && done;
}

struct Neighbour {
    HANDLE file = INVALID_HANDLE_VALUE;
    std::wstring path;
};

// Several numbers, because a program that just looks at a leftover may keep it from being written.
Neighbour CreateNeighbour(const std::wstring& target) {
    Neighbour neighbour;
    for (int number = 0; number < 4 && neighbour.file == INVALID_HANDLE_VALUE; ++number) {
        neighbour.path = NeighbourPath(target, number);
        neighbour.file = OpenToWrite(neighbour.path, CREATE_ALWAYS);
        if (neighbour.file == INVALID_HANDLE_VALUE && ::GetLastError() != ERROR_SHARING_VIOLATION) break;
    }
    return neighbour;
}

// The old bytes are read first and put back when the new ones do not go in whole.
bool OverwriteInPlace(const std::string& path, std::string_view bytes) {
    const std::optional<std::string> old = mBinOpen::ReadFileBinary(path);
    if (!old) return false;
    const std::wstring target = win::WidePath(path);
    HANDLE file = OpenToWrite(target, OPEN_EXISTING);
    if (file == INVALID_HANDLE_VALUE) return false;
    if (WriteAndClose(file, bytes)) return true;
    file = OpenToWrite(target, OPEN_EXISTING);
    if (file != INVALID_HANDLE_VALUE) WriteAndClose(file, *old);
    return false;
}

}  // namespace

bool ReplaceFileContents(const std::string& path, std::string_view bytes) {
    const std::wstring target = win::WidePath(path);
    if (target.empty()) return false;
    const DWORD attributes = ::GetFileAttributesW(target.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists && (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0) return false;

    const Neighbour neighbour = CreateNeighbour(target);
    if (neighbour.file == INVALID_HANDLE_VALUE) {
        return exists && ::GetLastError() == ERROR_ACCESS_DENIED && OverwriteInPlace(path, bytes);
    }
    if (WriteAndClose(neighbour.file, bytes) &&
        ::MoveFileExW(neighbour.path.c_str(), target.c_str(),
                      MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return true;
    ::DeleteFileW(neighbour.path.c_str());
    return false;
}

}  // namespace files
