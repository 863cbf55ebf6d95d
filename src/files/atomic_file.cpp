#include "files/atomic_file.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "files/mBinOpen.h"
#include "win/wide_path.h"
#include "win/windows.h"

namespace files {
namespace {

// Scanners, indexers and programs that synchronise folders hold a file for moments after every change.
bool IsHeldForAMoment(DWORD error) {
    return error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
}

// Repeats the action until it succeeds, fails for good, or about a second has passed. GetLastError() is that
// of the last try.
template <typename Action>
bool Persistently(Action action) {
    constexpr int kTries = 11;
    constexpr DWORD kPause = 100;  // milliseconds
    for (int tries = 1; !action(); ++tries) {
        const DWORD error = ::GetLastError();
        if (tries == kTries || !IsHeldForAMoment(error)) return false;
        ::Sleep(kPause);
        ::SetLastError(error);
    }
    return true;
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

// A file system that cannot flush has not failed.
bool Flush(HANDLE file) {
    if (::FlushFileBuffers(file)) return true;
    const DWORD error = ::GetLastError();
    return error == ERROR_INVALID_FUNCTION || error == ERROR_NOT_SUPPORTED ||
           error == ERROR_CALL_NOT_IMPLEMENTED;
}

// The file ends where it was written last, and is on the disk.
bool Finish(HANDLE file) {
    return ::SetEndOfFile(file) && Flush(file);
}

bool WriteAndClose(HANDLE file, std::string_view bytes) {
    const bool done = Write(file, bytes) && Finish(file);
    return ::CloseHandle(file) && done;
}

// "~qu" and eight digits that no other page or process uses at the same time.
std::wstring TemporaryName() {
    LARGE_INTEGER count{};
    ::QueryPerformanceCounter(&count);
    static LONG made = 0;
    DWORD number = ::GetCurrentProcessId() * 2654435761U ^ count.LowPart ^
                   static_cast<DWORD>(::InterlockedIncrement(&made)) << 24U;
    std::wstring name = L"~qu";
    for (int digit = 0; digit < 8; ++digit, number >>= 4U) name += L"0123456789abcdef"[number & 0xFU];
    return name + L".tmp";
}

HANDLE OpenForWriting(const std::wstring& path, DWORD disposition) {
    return ::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL,
                         nullptr);
}

// A copy of a file has its streams and attributes. They are worth some tries, but not a save that fails.
HANDLE OpenEmptiedCopy(const std::wstring& target, const std::wstring& path) {
    const auto copy = [&] { return ::CopyFileW(target.c_str(), path.c_str(), TRUE) != FALSE; };
    // Waiting for a folder that takes no second file is useless.
    const bool copied = copy() || (::GetLastError() != ERROR_ACCESS_DENIED && Persistently(copy));
    if (!copied) return INVALID_HANDLE_VALUE;
    const HANDLE file = OpenForWriting(path, TRUNCATE_EXISTING);
    if (file == INVALID_HANDLE_VALUE) ::DeleteFileW(path.c_str());
    return file;
}

// The old bytes are read first and put back when the new ones do not go in whole.
bool OverwriteInPlace(const std::string& path, std::string_view bytes) {
    const std::optional<std::string> old = mBinOpen::ReadFileAtOnce(path);
    if (!old) return false;
    const std::wstring target = win::WidePath(path);
    HANDLE file = INVALID_HANDLE_VALUE;
    const auto open = [&] {
        file = OpenForWriting(target, OPEN_EXISTING);
        return file != INVALID_HANDLE_VALUE;
    };
    if (!Persistently(open)) return false;
    if (WriteAndClose(file, bytes)) return true;
    if (open()) WriteAndClose(file, *old);
    return false;
}

// The new file would be cut off from the other hard links of the old one, or from the link that leads to it.
bool HasOtherNames(const std::wstring& target, DWORD attributes) {
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) return true;
    const win::UniqueFile file(::CreateFileW(target.c_str(), 0,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                             OPEN_EXISTING, 0, nullptr));
    BY_HANDLE_FILE_INFORMATION information{};
    return file && ::GetFileInformationByHandle(file.get(), &information) && information.nNumberOfLinks > 1;
}

// Who may do what with a file; empty where the file system does not know.
std::vector<BYTE> AccessTo(const std::wstring& path) {
    DWORD size = 0;
    ::GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
    std::vector<BYTE> access(size);
    if (!::GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, access.data(), size, &size)) return {};
    return access;
}

// Gives the new file the creation time, the attributes and the access rights of the target; false when the
// rights cannot be set. ReplaceFile would carry all this over, but a program that is killed in the middle of
// it leaves no file of that name at all.
bool TakeOverDetails(HANDLE made, const std::wstring& path, const std::wstring& target) {
    WIN32_FILE_ATTRIBUTE_DATA old{};
    if (::GetFileAttributesExW(target.c_str(), GetFileExInfoStandard, &old)) {
        ::SetFileTime(made, &old.ftCreationTime, nullptr, nullptr);
        ::SetFileAttributesW(path.c_str(), old.dwFileAttributes);
    }
    std::vector<BYTE> access = AccessTo(target);
    return access.empty() || access == AccessTo(path) ||
           ::SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, access.data());
}

bool IsWritable(DWORD attributes) {
    return attributes == INVALID_FILE_ATTRIBUTES ||
           (attributes & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0;
}

}  // namespace

AtomicFile::AtomicFile(const std::string& target) : target_(win::WidePath(target)) {
    const DWORD attributes = ::GetFileAttributesW(target_.c_str());
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    if (!IsWritable(attributes)) {
        ::SetLastError(ERROR_ACCESS_DENIED);
        return;
    }
    // Made new, never opened over a file that is there.
    for (int tries = 0; tries < 100 && !file_; ++tries) {
        path_ = target_.substr(0, target_.rfind(L'\\') + 1) + TemporaryName();
        HANDLE made = exists ? OpenEmptiedCopy(target_, path_) : INVALID_HANDLE_VALUE;
        if (made == INVALID_HANDLE_VALUE) made = OpenForWriting(path_, CREATE_NEW);
        if (made == INVALID_HANDLE_VALUE && ::GetLastError() != ERROR_FILE_EXISTS) break;
        file_ = win::UniqueFile(made);
    }
    if (file_ && exists) isAlike_ = TakeOverDetails(file_.get(), path_, target_);
}

AtomicFile::~AtomicFile() {
    if (file_) discard();
}

void AtomicFile::discard() {
    file_.reset();
    ::DeleteFileW(path_.c_str());
}

bool AtomicFile::commit() {
    const auto takePlace = [this] {
        return ::MoveFileExW(path_.c_str(), target_.c_str(),
                             MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
    };
    const bool isFinished = Finish(file_.get());
    const bool isWritten = ::CloseHandle(file_.release()) && isFinished;
    if (isWritten && isAlike_ && Persistently(takePlace)) return true;
    refused_ = isWritten && (!isAlike_ || ::GetLastError() == ERROR_ACCESS_DENIED);
    discard();
    return false;
}

bool ReplaceFileContents(const std::string& path, std::string_view bytes,
                         const std::function<void()>& beforeOverwriting) {
    const std::wstring target = win::WidePath(path);
    const DWORD attributes = ::GetFileAttributesW(target.c_str());
    if (target.empty() || !IsWritable(attributes)) return false;
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    const auto overwrite = [&] {
        if (beforeOverwriting) beforeOverwriting();
        return OverwriteInPlace(path, bytes);
    };
    if (exists && HasOtherNames(target, attributes)) return overwrite();

    AtomicFile fresh(path);
    if (!fresh.handle()) return exists && ::GetLastError() == ERROR_ACCESS_DENIED && overwrite();
    if (!Write(fresh.handle(), bytes)) return false;
    return fresh.commit() || (exists && fresh.isRefused() && overwrite());
}

}  // namespace files
