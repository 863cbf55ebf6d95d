// Replacing a file so that at every moment either the old one or the new one is there, whole. Nothing here
// handles messages, so all of it may run on any thread.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "win/unique.h"

namespace files {

// A new file beside a target, to be written and to take the target's place in one step. One that does not is
// deleted. It has the streams, attributes, creation time and access rights of the target, if there is one.
class AtomicFile {
 public:
    explicit AtomicFile(const std::string& target);
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;
    ~AtomicFile();

    // Open for writing, at its start. Null where no file could be made, and GetLastError() then says why; a
    // target that is a folder or read-only gives ERROR_ACCESS_DENIED.
    HANDLE handle() const { return file_.get(); }

    // What has been written up to here is flushed and takes the target's place. What other programs hold for
    // a moment is tried again for about a second. False leaves the target as it was.
    bool commit();
    // After commit(): all was written, but may not take the target's place.
    bool isRefused() const { return refused_; }

 private:
    void discard();

    std::wstring target_;
    std::wstring path_;
    win::UniqueFile file_;
    bool isAlike_ = true;  // it has what the target has
    bool refused_ = false;
};

// True when the file at `path` holds exactly these bytes; false leaves what was there. A read-only file is
// refused. Only where no new file can take its place, or the file has other names too, it is overwritten in
// place, after `beforeOverwriting`, and restored if that fails.
bool ReplaceFileContents(const std::string& path, std::string_view bytes,
                         const std::function<void()>& beforeOverwriting = {});

}  // namespace files
