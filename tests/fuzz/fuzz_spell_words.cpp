// Any page, with one letter beyond ASCII.
#include <algorithm>
#include <cstdint>

#include "authoring/core/spell_text.h"
#include "authoring/core/spelling_pass.h"
#include "check.h"

namespace {

class Nothing : public authoring::SpellDictionary {
 public:
    bool knows(const std::string&) override { return false; }
    std::vector<std::string> suggestions(const std::string&) override { return {}; }
    void add(const std::string&) override {}
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string page(reinterpret_cast<const char*>(data), size);
    authoring::LetterTable letters = authoring::kAsciiLetters;
    letters[0xE9] = true;
    std::size_t end = 0;
    for (const authoring::Word& word : authoring::FindWords(page, letters)) {
        Check(word.start >= end && word.length > 1 && word.length <= page.size() - word.start);
        end = word.start + word.length;
        Check(std::all_of(page.begin() + static_cast<std::ptrdiff_t>(word.start),
                          page.begin() + static_cast<std::ptrdiff_t>(end), [&](char c) {
                              return letters[static_cast<unsigned char>(c)] || c == '\'' || c == '\x92';
                          }));
    }
    Nothing dictionary;
    authoring::SpellingPass pass(page, letters, dictionary);
    for (int i = 0; pass.next(); ++i) {
        Check(pass.context().find(pass.word()) != std::string::npos);
        if (i % 2 == 0) pass.change(pass.word());
    }
    Check(pass.result() == page && !pass.isChanged());
    // A word processor gives the page back with CR for each line end, and one more at its end.
    std::string given = page + '\r';
    std::erase(given, '\n');
    std::string taken = authoring::TextFromWordProcessor(given);
    Check(std::count(taken.begin(), taken.end(), '\r') == std::count(page.begin(), page.end(), '\r'));
    std::erase(taken, '\n');
    Check(page.find('\n') != std::string::npos || taken == page);
    return 0;
}
