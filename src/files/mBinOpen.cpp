#include "files/mBinOpen.h"

#include <algorithm>

#include "win/message_loop.h"
#include "win/unique.h"
#include "win/wide_path.h"

namespace mBinOpen {
namespace {

constexpr DWORD kBlock = 20000;
// What the edit control can hold.
constexpr LONGLONG kLargestPage = 0x7FFFFFFE;

std::optional<std::string> Read(const std::string& path, void (*afterBlock)()) {
    const win::UniqueFile file(::CreateFileW(win::WidePath(path).c_str(), GENERIC_READ,
                                             FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                             OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
    LARGE_INTEGER size{};
    if (!file || !::GetFileSizeEx(file.get(), &size) || size.QuadPart > kLargestPage) return std::nullopt;
    std::string bytes(static_cast<std::size_t>(size.QuadPart), '\0');
    std::size_t filled = 0;
    while (filled < bytes.size()) {
        const auto wanted = static_cast<DWORD>(std::min<std::size_t>(kBlock, bytes.size() - filled));
        DWORD read = 0;
        if (!::ReadFile(file.get(), bytes.data() + filled, wanted, &read, nullptr)) return std::nullopt;
        if (read == 0) break;  // the file has been cut short meanwhile
        filled += read;
        if (read == kBlock && afterBlock) afterBlock();
    }
    bytes.resize(filled);
    return bytes;
}

}  // namespace

std::optional<std::string> ReadFileBinary(const std::string& path) {
    return Read(path, [] { win::RunPending(); });
}

std::optional<std::string> ReadFileAtOnce(const std::string& path) {
    return Read(path, nullptr);
}

}  // namespace mBinOpen
