// Putting new bytes in the place of a file so that at every moment either the old or the new file is there.
#pragma once

#include <string>
#include <string_view>

namespace files {

// True when the file at `path` holds exactly these bytes; false leaves what was there. A read-only file is
// refused. The bytes are written to a file beside the target, flushed, and moved over it in one step; only
// where the folder does not take a second file is the target overwritten in place, and restored if that
// fails.
bool ReplaceFileContents(const std::string& path, std::string_view bytes);

}  // namespace files
