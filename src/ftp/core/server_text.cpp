#include "ftp/core/server_text.h"

#include "document/core/codec.h"
#include "win/core/utf.h"

namespace ftp {
namespace {

using document::CodePages;
using document::Encoding;

// Nothing where the code page does not give the very text back.
std::optional<std::string> InCodePage(std::string_view text, const CodePages& pages) {
    const Encoding ansi{pages.ansi(), false};
    const std::u16string wanted = win::Utf16FromUtf8(text);
    if (document::WithReferences(ansi, wanted, pages) != wanted) return std::nullopt;
    std::string bytes = document::Encode(ansi, wanted, pages);
    if (document::Decode(ansi, bytes, pages) != wanted) return std::nullopt;
    return bytes;
}

}  // namespace

std::string ShownText(std::string_view bytes, const CodePages& pages) {
    if (document::IsUtf8(bytes)) return std::string(bytes);
    return win::Utf8FromUtf16(document::Decode({pages.ansi(), false}, bytes, pages));
}

std::optional<std::string> SentName(std::string_view name, const CodePages& pages) {
    if (name.find_first_of(std::string_view("\r\n\0", 3)) != std::string_view::npos) return std::nullopt;
    return InCodePage(name, pages);
}

std::string SentText(std::string_view text, const CodePages& pages) {
    return InCodePage(text, pages).value_or(std::string(text));
}

}  // namespace ftp
