#include "shell/core/command_line.h"

#include "win/core/ascii.h"

namespace shell {

std::string TextAfterProgramName(std::string_view commandLine) {
    const bool quoted = commandLine.starts_with('"');
    std::size_t end = quoted ? commandLine.find('"', 1) : commandLine.find_first_of(" \t");
    if (end == std::string_view::npos) return {};
    if (quoted) ++end;
    return std::string(win::Trimmed(commandLine.substr(end), " \t"));
}

}  // namespace shell
