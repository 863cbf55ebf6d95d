// Which file Preview shows.
#pragma once

#include <string>
#include <string_view>

namespace authoring {

// Whether the browser would know the page at `path` by its name: it has a dot in its last five characters.
bool HasExtension(std::string_view path);

// The copy that is shown for the page at `path` (its full path) and lies beside it, so that relative links
// hold. An edited page's has "$$" before its name; where the name lacks an extension, ".htm" is appended,
// which alone makes an unedited page's copy. `taken` is how many such names belong to other files already:
// each puts one more "$" there.
std::string PreviewCopy(std::string_view path, bool edited, int taken);

}  // namespace authoring
