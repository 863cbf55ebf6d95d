#include "ftp/core/password.h"

#include "document/core/codec.h"
#include "win/core/utf.h"

namespace ftp {
namespace {

constexpr std::string_view kKey = "mno847";

}  // namespace

std::string ScramblePassword(std::string_view bytes) {
    std::string result(bytes);
    for (std::size_t i = 0; i < result.size(); ++i) {
        // The first byte meets the second key character: stored passwords depend on it.
        const unsigned key = static_cast<unsigned char>(kKey[(i + 1) % kKey.size()]);
        result[i] = static_cast<char>(static_cast<unsigned char>(result[i]) ^ key);
    }
    return result;
}

std::string StoredPassword(std::string_view bytes, const document::CodePages& pages) {
    return win::Utf8FromUtf16(document::Decode({pages.ansi(), false}, ScramblePassword(bytes), pages));
}

std::string ReadPassword(std::string_view stored, const document::CodePages& pages) {
    return ScramblePassword(document::Encode({pages.ansi(), false}, win::Utf16FromUtf8(stored), pages));
}

void Wipe(std::string& secret) {
    volatile char* bytes = secret.data();
    for (std::size_t i = 0; i < secret.size(); ++i) bytes[i] = 0;
    secret.clear();
}

}  // namespace ftp
