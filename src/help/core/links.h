// The links of the about box.
#pragma once

#include <string>
#include <string_view>

namespace help {

// What a link with this caption opens: a mail to the address that an "@" makes of it, or the page itself.
std::string LinkTarget(std::string_view caption);

}  // namespace help
