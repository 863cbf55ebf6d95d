// Names, logins and directories as a server has them: bytes, in an encoding that it does not tell.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "document/core/code_pages.h"

namespace ftp {

// What the server's bytes look like: UTF-8 where they are valid UTF-8, otherwise the ANSI code page. A byte
// that is no character there has a place in the text too.
std::string ShownText(std::string_view bytes, const document::CodePages& pages);

// The bytes by which a local or a typed name goes to the server, those of the ANSI code page. Nothing when
// they would not read as the same name, or would end the command in which they stand.
std::optional<std::string> SentName(std::string_view name, const document::CodePages& pages);

// The same for what has to be sent in any case, a login or the address of a site: UTF-8 where the code page
// does not do.
std::string SentText(std::string_view text, const document::CodePages& pages);

}  // namespace ftp
