// A page as the bytes of a file.
#pragma once

#include <optional>
#include <string>

#include "document/frmChild.h"

namespace files {

struct PageFile {
    std::string bytes;
    document::Encoding encoding;
    // What the page is to show once it is saved: where its encoding cannot hold all that is in it, the
    // numeric character references that stand in the file.
    std::optional<std::u16string> shown;
};

// The page's lines as its control counts them without word wrap, each followed by CR LF, in the encoding that
// the page declares by now.
PageFile FileOf(const frmChild& page);

}  // namespace files
