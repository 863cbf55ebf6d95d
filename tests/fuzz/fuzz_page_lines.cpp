// A page with line ends of every kind, against a plain reading of it one byte at a time.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "check.h"
#include "files/core/page_lines.h"

namespace {

// CR CR LF is one line end, so a CR counts only when no CR LF follows and no CR LF has taken it in.
std::string PlainLines(std::string_view text, std::size_t& count) {
    std::string bytes;
    count = 1;
    for (; !text.empty(); text.remove_prefix(1)) {
        if (text.starts_with("\r\r\n")) text.remove_prefix(1);
        if (text.starts_with("\r\n")) text.remove_prefix(1);
        const bool ends = text.front() == '\r' || text.front() == '\n';
        bytes += ends ? "\r\n" : std::string(1, text.front());
        count += ends;
    }
    return bytes + "\r\n";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    std::size_t count = 0;
    const std::string plain = PlainLines(text, count);
    const files::TerminatedLines lines = files::TerminateLines(text);
    Check(lines.bytes == plain && lines.count == count);
    // A page in the system's own line ends gives its bytes back, and so does any page from then on.
    const std::string page = plain.substr(0, plain.size() - 2);
    Check(files::TerminateLines(page).bytes == plain && files::TerminateLines(page).count == count);
    return 0;
}
