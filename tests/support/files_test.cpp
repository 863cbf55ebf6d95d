#include "support/files_test.h"

#include "support/wide.h"

#include <cstdlib>

#include <ole2.h>
#include <shellapi.h>
#include <shlwapi.h>

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

void DeleteTree(const std::string& folder) {
    const std::wstring from = Wide(folder) + L'\0';
    SHFILEOPSTRUCTW operation{};
    operation.wFunc = FO_DELETE;
    operation.pFrom = from.c_str();
    operation.fFlags = FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
    ::SHFileOperationW(&operation);
}

FilesTest::FilesTest() {
    ::OleInitialize(nullptr);
}

FilesTest::~FilesTest() {
    ::OleUninitialize();
}

void FilesTest::SetUp() {
    const std::string folder = Environment("QUILLON_SCRATCH") + "\\files";
    DeleteTree(folder);
    ::CreateDirectoryW(Wide(folder).c_str(), nullptr);
}

std::string FilesTest::scratch(const std::string& name) {
    return Environment("QUILLON_SCRATCH") + "\\files\\" + name;
}

void FilesTest::writeFile(const std::string& path, const std::string& bytes) {
    const HANDLE file =
        ::CreateFileW(Wide(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    ASSERT_TRUE(::CloseHandle(file) && written == bytes.size()) << path;
}

std::string FilesTest::readFile(const std::string& path) {
    constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file =
        ::CreateFileW(Wide(path).c_str(), GENERIC_READ, kShared, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return "(no file)";
    std::string bytes(::GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ::ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    ::CloseHandle(file);
    bytes.resize(read);
    return bytes;
}

std::string FilesTest::found(const std::string& pattern) {
    WIN32_FIND_DATAW found{};
    ::FindClose(::FindFirstFileW(Wide(scratch(pattern)).c_str(), &found));
    return Narrow(found.cFileName);
}
