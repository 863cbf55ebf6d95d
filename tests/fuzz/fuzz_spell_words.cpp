// Any page, with one letter beyond ASCII.
#include <algorithm>

#include "authoring/spelling/core/spell_text.h"
#include "authoring/spelling/core/spelling_pass.h"
#include "check.h"

namespace {

class Nothing : public authoring::SpellDictionary {
 public:
    bool knows(const std::u16string&) override { return false; }
    std::vector<std::u16string> suggestions(const std::u16string&) override { return {}; }
    void add(const std::u16string&) override {}
};

bool IsLetter(char32_t c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == U'\u00E9' || c == U'\U0001F600';
}

}  // namespace

void Try(std::string_view input) {
    const std::u16string page = Units(input);
    std::size_t end = 0;
    for (const authoring::Word& word : authoring::FindWords(page, IsLetter)) {
        Check(word.start >= end && word.length > 1 && word.length <= page.size() - word.start);
        end = word.start + word.length;
        // No pair is cut in two, and there are only letters and apostrophes.
        Check(page[word.start] != u'\xDE00' &&
              (end == page.size() || page[end] != u'\xDE00' || page[end - 1] != u'\xD83D'));
        Check(std::all_of(page.begin() + static_cast<std::ptrdiff_t>(word.start),
                          page.begin() + static_cast<std::ptrdiff_t>(end), [](char16_t c) {
                              return IsLetter(c) || c == u'\'' || c == u'\xD83D' || c == u'\xDE00';
                          }));
    }
    const std::u16string language = authoring::PageLanguage(page);
    Check(language.empty() || page.find(language) != std::u16string::npos);
    Nothing dictionary;
    authoring::SpellingPass pass(page, IsLetter, dictionary);
    for (int i = 0; pass.next(); ++i) {
        Check(pass.context().find(pass.word()) != std::u16string::npos);
        if (i % 2 == 0) pass.change(pass.word());
    }
    Check(pass.result() == page && !pass.isChanged());
    // A word processor gives the page back with CR for each line end, and one more at its end.
    std::u16string given = page + u'\r';
    std::erase(given, u'\n');
    std::u16string taken = authoring::TextFromWordProcessor(given);
    Check(std::count(taken.begin(), taken.end(), u'\r') == std::count(page.begin(), page.end(), u'\r'));
    std::erase(taken, u'\n');
    Check(page.find(u'\n') != std::u16string::npos || taken == page);
}
