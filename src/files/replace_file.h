// Putting new bytes in the place of a file so that at every moment either the old or the new file is there.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace files {

// True when the file at `path` holds exactly these bytes; false leaves what was there. A read-only file is
// refused. The bytes are written to a file beside the target, flushed, and take its place in one step, with
// the streams, attributes, creation time and access rights that the target had. Only where nothing can take
// its place so, or the target has other names too, is it overwritten in place, after `beforeOverwriting`, and
// restored if that fails. What others hold for a moment is tried again for about a second. Handles no
// message.
bool ReplaceFileContents(const std::string& path, std::string_view bytes,
                         const std::function<void()>& beforeOverwriting = {});

}  // namespace files
