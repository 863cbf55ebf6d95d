#include "files/replace_file.h"

#include <algorithm>
#include <optional>

#include "files/mBinOpen.h"
#include "win/wide_path.h"

namespace files {
namespace {

// A file of this name that a killed process has left behind is simply written over by the next save there.
std::wstring NeighbourPath(const std::wstring& target, int number) {
    const std::size_t folder = target.rfind(L'\\') + 1;
    return target.substr(0, folder) + L"~quillon" + static_cast<wchar_t>(L'0' + number) + L".tmp";
}

bool WriteAndClose(FileCalls& calls, HANDLE file, std::string_view bytes) {
    bool done = calls.write(file, bytes) && calls.cut(file) && calls.flush(file);
    done = calls.close(file) && done;
    return done;
}

struct Neighbour {
    HANDLE file = INVALID_HANDLE_VALUE;
    std::wstring path;
};

// Several numbers, because a program that just looks at a leftover may keep it from being written.
Neighbour CreateNeighbour(FileCalls& calls, const std::wstring& target) {
    Neighbour neighbour;
    for (int number = 0; number < 4 && neighbour.file == INVALID_HANDLE_VALUE; ++number) {
        neighbour.path = NeighbourPath(target, number);
        neighbour.file = calls.create(neighbour.path, GENERIC_WRITE, CREATE_ALWAYS);
        if (neighbour.file == INVALID_HANDLE_VALUE && ::GetLastError() != ERROR_SHARING_VIOLATION) break;
    }
    return neighbour;
}

// The old bytes are read first and put back when the new ones do not go in whole.
bool OverwriteInPlace(FileCalls& calls, const std::string& path, std::string_view bytes) {
    const std::optional<std::string> old = mBinOpen::ReadFileBinary(path);
    if (!old) return false;
    const std::wstring target = win::WidePath(path);
    HANDLE file = calls.create(target, GENERIC_WRITE, OPEN_EXISTING);
    if (file == INVALID_HANDLE_VALUE) return false;
    if (WriteAndClose(calls, file, bytes)) return true;
    file = calls.create(target, GENERIC_WRITE, OPEN_EXISTING);
    if (file != INVALID_HANDLE_VALUE) WriteAndClose(calls, file, *old);
    return false;
}

}  // namespace

HANDLE FileCalls::create(const std::wstring& path, DWORD access, DWORD disposition) {
    return ::CreateFileW(path.c_str(), access, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
}

bool FileCalls::write(HANDLE file, std::string_view bytes) {
    constexpr std::size_t kBlock = 1U << 20U;
    while (!bytes.empty()) {
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kBlock));
        DWORD written = 0;
        if (!::WriteFile(file, bytes.data(), wanted, &written, nullptr) || written == 0) return false;
        bytes.remove_prefix(written);
    }
    return true;
}

bool FileCalls::cut(HANDLE file) {
    return ::SetEndOfFile(file) != FALSE;
}

bool FileCalls::flush(HANDLE file) {
    return ::FlushFileBuffers(file) != FALSE;
}

bool FileCalls::close(HANDLE file) {
    return ::CloseHandle(file) != FALSE;
}

bool FileCalls::replace(const std::wstring& from, const std::wstring& to) {
    return ::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) !=
           FALSE;
}

bool FileCalls::remove(const std::wstring& path) {
    return ::DeleteFileW(path.c_str()) != FALSE;
}

bool ReplaceFileContents(FileCalls& calls, const std::string& path, std::string_view bytes) {
    const std::wstring target = win::WidePath(path);
    if (target.empty()) return false;
    const DWORD attributes = ::GetFileAttributesW(target.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (exists && (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) != 0) return false;

    const Neighbour neighbour = CreateNeighbour(calls, target);
    if (neighbour.file == INVALID_HANDLE_VALUE) {
        return exists && ::GetLastError() == ERROR_ACCESS_DENIED && OverwriteInPlace(calls, path, bytes);
    }
    if (WriteAndClose(calls, neighbour.file, bytes) && calls.replace(neighbour.path, target)) return true;
    calls.remove(neighbour.path);
    return false;
}

}  // namespace files
