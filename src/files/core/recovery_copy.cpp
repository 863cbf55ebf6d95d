#include "files/core/recovery_copy.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace files {
namespace {

constexpr std::string_view kMark = "Quillon page 1\r\n";
constexpr std::size_t kNumber = 4;  // bytes

std::uint32_t Crc32(std::string_view bytes) {
    static constexpr auto kTable = [] {
        std::array<std::uint32_t, 256> table{};
        for (std::uint32_t i = 0; i < table.size(); ++i) {
            std::uint32_t value = i;
            for (int bit = 0; bit < 8; ++bit)
                value = (value & 1U) != 0 ? 0xEDB88320U ^ value >> 1U : value >> 1U;
            table[i] = value;
        }
        return table;
    }();
    std::uint32_t crc = ~0U;
    for (const char c : bytes) crc = kTable[(crc ^ static_cast<unsigned char>(c)) & 0xFFU] ^ crc >> 8U;
    return ~crc;
}

void AppendNumber(std::string& bytes, std::size_t number) {
    for (unsigned shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift & 0xFFU);
}

void AppendText(std::string& bytes, std::string_view text) {
    AppendNumber(bytes, text.size());
    bytes += text;
}

class Reader {
 public:
    explicit Reader(std::string_view bytes) : rest_(bytes) {}

    std::size_t number() {
        const std::string_view bytes = take(kNumber);
        std::size_t value = 0;
        for (std::size_t i = bytes.size(); i-- > 0;)
            value = value << 8U | static_cast<unsigned char>(bytes[i]);
        return value;
    }
    std::string_view text() { return take(number()); }
    // False once something was missing.
    bool isWhole() const { return whole_; }
    bool isAtEnd() const { return rest_.empty(); }

 private:
    std::string_view take(std::size_t count) {
        whole_ = whole_ && count <= rest_.size();
        const std::string_view taken = rest_.substr(0, whole_ ? count : 0);
        rest_.remove_prefix(taken.size());
        return taken;
    }

    std::string_view rest_;
    bool whole_ = true;
};

}  // namespace

std::string Pack(const RecoveryCopy& copy) {
    std::string bytes(kMark);
    bytes.reserve(copy.text.size() * sizeof(char16_t) + copy.path.size() + copy.caption.size() + 64);
    AppendText(bytes, copy.path);
    AppendText(bytes, copy.caption);
    AppendNumber(bytes, copy.encoding.codePage);
    AppendNumber(bytes, copy.encoding.mark ? 1 : 0);
    AppendNumber(bytes, copy.caret);
    AppendNumber(bytes, copy.text.size() * sizeof(char16_t));
    for (const char16_t unit : copy.text) {
        bytes += static_cast<char>(unit & 0xFFU);
        bytes += static_cast<char>(unit >> 8U);
    }
    AppendNumber(bytes, Crc32(bytes));
    return bytes;
}

std::optional<RecoveryCopy> Unpack(std::string_view bytes) {
    if (!bytes.starts_with(kMark) || bytes.size() < kMark.size() + kNumber) return std::nullopt;
    const std::string_view sum = bytes.substr(bytes.size() - kNumber);
    bytes.remove_suffix(kNumber);
    if (Reader(sum).number() != Crc32(bytes)) return std::nullopt;
    Reader reader(bytes.substr(kMark.size()));
    RecoveryCopy copy;
    copy.path = reader.text();
    copy.caption = reader.text();
    copy.encoding.codePage = static_cast<unsigned>(reader.number());
    copy.encoding.mark = reader.number() != 0;
    copy.caret = reader.number();
    const std::string_view text = reader.text();
    if (!reader.isWhole() || !reader.isAtEnd() || text.size() % sizeof(char16_t) != 0) return std::nullopt;
    copy.text.reserve(text.size() / sizeof(char16_t));
    for (std::size_t i = 0; i < text.size(); i += sizeof(char16_t)) {
        const unsigned low = static_cast<unsigned char>(text[i]);
        const unsigned high = static_cast<unsigned char>(text[i + 1]);
        copy.text += static_cast<char16_t>(high << 8U | low);
    }
    copy.caret = std::min(copy.caret, copy.text.size());
    return copy;
}

}  // namespace files
