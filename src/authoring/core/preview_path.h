// Which file Preview shows, and in which browser.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace authoring {

// The file that is written and shown for the page at `path` (its full path). An unchanged page is shown
// from its own file; an edited one from a copy beside it, so that relative links hold, with "$$" before
// its name. Where the name has no dot in its last five characters ".htm" is appended; if that gives the
// name of a file that exists, by `exists`, "$$" is put before it as well, because the copy is deleted
// after the preview. Whatever differs from `path` is a copy. Empty if `path` is empty: an untitled page
// has no folder to be shown from.
std::string PreviewFile(std::string_view path, bool changed,
                        const std::function<bool(const std::string&)>& exists);

// Whether the executable's path names Internet Explorer; exact comparison.
bool IsInternetExplorer(std::string_view executable);

}  // namespace authoring
