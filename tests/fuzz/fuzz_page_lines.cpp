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
std::u16string PlainLines(std::u16string_view text, std::size_t& count) {
    std::u16string bytes;
    count = 1;
    for (; !text.empty(); text.remove_prefix(1)) {
        if (text.starts_with(u"\r\r\n")) text.remove_prefix(1);
        if (text.starts_with(u"\r\n")) text.remove_prefix(1);
        const bool ends = text.front() == '\r' || text.front() == '\n';
        bytes += ends ? u"\r\n" : std::u16string(1, text.front());
        count += ends;
    }
    return bytes + u"\r\n";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::u16string text = Units({reinterpret_cast<const char*>(data), size});
    std::size_t count = 0;
    const std::u16string plain = PlainLines(text, count);
    const files::TerminatedLines lines = files::TerminateLines(text);
    Check(lines.text == plain && lines.count == count);
    // A page in the system's own line ends gives its bytes back, and so does any page from then on.
    const std::u16string page = plain.substr(0, plain.size() - 2);
    Check(files::TerminateLines(page).text == plain && files::TerminateLines(page).count == count);
    return 0;
}
