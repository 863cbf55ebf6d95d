// What a recovery copy holds: a changed page as it stood when the copy was written.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "document/core/code_pages.h"

namespace files {

struct RecoveryCopy {
    std::string path;  // of the page's file; empty where it has none
    std::string caption;
    document::Encoding encoding;
    std::size_t caret = 0;  // in units from the page's start
    std::u16string text;

    friend bool operator==(const RecoveryCopy&, const RecoveryCopy&) = default;
};

// The copy as the bytes of a file: a mark, numbers of four bytes with the lowest first, texts behind their
// lengths, and a CRC-32 (ITU-T V.42, as in ZIP) of all before it.
std::string Pack(const RecoveryCopy& copy);

// Nothing for bytes that are no whole copy.
std::optional<RecoveryCopy> Unpack(std::string_view bytes);

}  // namespace files
