#include "ftp/core/scramble.h"

namespace ftp {
namespace {

constexpr std::string_view kKey = "mno847";

}  // namespace

std::string ScramblePassword(std::string_view text) {
    std::string result(text);
    for (std::size_t i = 0; i < result.size(); ++i) {
        // The first byte meets the second key character: stored passwords depend on it.
        const unsigned key = static_cast<unsigned char>(kKey[(i + 1) % kKey.size()]);
        result[i] = static_cast<char>(static_cast<unsigned char>(result[i]) ^ key);
    }
    return result;
}

void Wipe(std::string& secret) {
    volatile char* bytes = secret.data();
    for (std::size_t i = 0; i < secret.size(); ++i) bytes[i] = 0;
    secret.clear();
}

}  // namespace ftp
