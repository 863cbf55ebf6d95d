// A pattern, then the text after it: a window's title, a command line.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "check.h"
#include "shell/core/command_line.h"
#include "shell/core/wildcard.h"

namespace {

// By a table of all beginnings: row[i] says whether the first i characters match the pattern so far.
bool PlainMatch(std::string_view text, std::string_view pattern) {
    std::vector<bool> row(text.size() + 1);
    row[0] = true;
    for (const char p : pattern) {
        std::vector<bool> next(row.size());
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (p == '*') next[i] = row[i] || (i > 0 && next[i - 1]);
            if (p == '*' || i == 0) continue;
            const char c = text[i - 1];
            next[i] = row[i - 1] && (p == '?' || (p == '#' ? c >= '0' && c <= '9' : c == p));
        }
        row = next;
    }
    return row.back();
}

std::string Trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
    return std::string(text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::string pattern = TakeLine(text);
    if (size < 2000) Check(shell::MatchesWildcard(text, pattern) == PlainMatch(text, pattern));

    const std::string file = shell::TextAfterProgramName(text);
    Check(file == Trimmed(file) && Trimmed(text).ends_with(file));
    for (const std::string program : {"\"C:\\My Programs\\Quillon.exe\" ", "Quillon.exe\t"})
        Check(shell::TextAfterProgramName(program + std::string(text)) == Trimmed(text));
    return 0;
}
