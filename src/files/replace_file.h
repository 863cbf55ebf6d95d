// Putting new bytes in the place of a file so that at every moment either the old or the new file is there.
#pragma once

#include <string>
#include <string_view>

#include "win/windows.h"

namespace files {

// The system's calls that a save makes, so that a test can let each of them fail.
class FileCalls {
 public:
    virtual ~FileCalls() = default;
    // As CreateFileW: INVALID_HANDLE_VALUE on failure.
    virtual HANDLE create(const std::wstring& path, DWORD access, DWORD disposition);
    virtual bool write(HANDLE file, std::string_view bytes);
    virtual bool cut(HANDLE file);  // to the current position
    virtual bool flush(HANDLE file);
    virtual bool close(HANDLE file);
    virtual bool replace(const std::wstring& from, const std::wstring& to);
    virtual bool remove(const std::wstring& path);
};

// True when the file at `path` holds exactly these bytes; false leaves what was there. A read-only file is
// refused. The bytes are written to a file beside the target, flushed, and moved over it in one step; only
// where the folder does not take a second file is the target overwritten in place, and restored if that
// fails.
bool ReplaceFileContents(FileCalls& calls, const std::string& path, std::string_view bytes);

}  // namespace files
