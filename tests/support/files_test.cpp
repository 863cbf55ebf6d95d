#include "support/files_test.h"

#include <cstdlib>

#include <shellapi.h>

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

void DeleteTree(const std::string& folder) {
    const std::string from = folder + '\0';
    SHFILEOPSTRUCTA operation{};
    operation.wFunc = FO_DELETE;
    operation.pFrom = from.c_str();
    operation.fFlags = FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
    ::SHFileOperationA(&operation);
}

void DeleteKeyTree(const std::string& path) {
    HKEY key = nullptr;
    if (::RegOpenKeyExA(HKEY_CURRENT_USER, path.c_str(), 0, KEY_ALL_ACCESS, &key) != ERROR_SUCCESS) return;
    char child[256];
    while (::RegEnumKeyA(key, 0, child, sizeof child) == ERROR_SUCCESS) DeleteKeyTree(path + "\\" + child);
    ::RegCloseKey(key);
    ::RegDeleteKeyA(HKEY_CURRENT_USER, path.c_str());
}

void FilesTest::SetUp() {
    const std::string folder = Environment("QUILLON_SCRATCH") + "\\files";
    DeleteTree(folder);
    ::CreateDirectoryA(folder.c_str(), nullptr);
}

std::string FilesTest::scratch(const std::string& name) {
    return Environment("QUILLON_SCRATCH") + "\\files\\" + name;
}

void FilesTest::writeFile(const std::string& path, const std::string& bytes) {
    const HANDLE file = ::CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
    DWORD written = 0;
    ::WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    ::CloseHandle(file);
    ASSERT_EQ(written, bytes.size()) << path;
}

std::string FilesTest::readFile(const std::string& path) {
    constexpr DWORD kShared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file =
        ::CreateFileA(path.c_str(), GENERIC_READ, kShared, nullptr, OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return "(no file)";
    std::string bytes(::GetFileSize(file, nullptr), '\0');
    DWORD read = 0;
    ::ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr);
    ::CloseHandle(file);
    bytes.resize(read);
    return bytes;
}
