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

std::map<std::string, std::string> Listing(const std::string& pattern) {
    std::map<std::string, std::string> files;
    WIN32_FIND_DATAW found{};
    const HANDLE find = ::FindFirstFileW(Wide(pattern).c_str(), &found);
    for (BOOL any = find != INVALID_HANDLE_VALUE; any; any = ::FindNextFileW(find, &found))
        files[pattern.substr(0, pattern.rfind('\\') + 1) + Narrow(found.cFileName)] =
            std::to_string(found.nFileSizeLow) + ", " + std::to_string(found.ftLastWriteTime.dwLowDateTime);
    ::FindClose(find);
    return files;
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

std::string FilesTest::writeGif(const std::string& name, const std::string& more) {
    writeFile(scratch(name), std::string("GIF89a\x78\x00\x3C\x00", 10) + more);
    return scratch(name);
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
