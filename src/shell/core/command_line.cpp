#include "shell/core/command_line.h"

namespace shell {

std::string TextAfterProgramName(std::string_view commandLine) {
    const bool quoted = commandLine.starts_with('"');
    std::size_t end = quoted ? commandLine.find('"', 1) : commandLine.find_first_of(" \t");
    if (end == std::string_view::npos) return {};
    if (quoted) ++end;
    commandLine.remove_prefix(end);
    const std::size_t first = commandLine.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return std::string(commandLine.substr(first, commandLine.find_last_not_of(" \t") - first + 1));
}

}  // namespace shell
