#include "authoring/spelling/core/spell_text.h"

#include <cstddef>

namespace authoring {

std::u16string TextFromWordProcessor(std::u16string_view text) {
    constexpr std::size_t kDocumentEnd = 2;
    std::u16string page;
    page.reserve(text.size() + text.size() / 16);
    for (std::size_t i = 0; i < text.size(); ++i) {
        page += text[i];
        if (text[i] == u'\r' && !text.substr(i + 1).starts_with(u'\n')) page += u'\n';
    }
    page.resize(page.size() < kDocumentEnd ? 0 : page.size() - kDocumentEnd);
    return page;
}

}  // namespace authoring
