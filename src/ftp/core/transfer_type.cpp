#include "ftp/core/transfer_type.h"

#include <algorithm>
#include <iterator>

namespace ftp {
namespace {

constexpr std::string_view kBinaryEndings[] = {".jpg", ".gif", ".class", ".exe", ".zip", ".png"};

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool EndsWith(std::string_view name, std::string_view lowerEnding) {
    if (name.size() < lowerEnding.size()) return false;
    const std::string_view end = name.substr(name.size() - lowerEnding.size());
    return std::equal(end.begin(), end.end(), lowerEnding.begin(),
                      [](char a, char b) { return Lower(a) == b; });
}

}  // namespace

TransferType ChooseTransferType(TransferMode mode, std::string_view fileName) {
    if (mode == TransferMode::binary) return TransferType::binary;
    const bool isBinary =
        std::any_of(std::begin(kBinaryEndings), std::end(kBinaryEndings),
                    [fileName](std::string_view ending) { return EndsWith(fileName, ending); });
    return isBinary ? TransferType::binary : TransferType::ascii;
}

}  // namespace ftp
