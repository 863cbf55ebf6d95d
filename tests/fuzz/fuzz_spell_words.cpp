// Any page, with one letter beyond ASCII.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "authoring/core/spelling_pass.h"

namespace {

class Nothing : public authoring::SpellDictionary {
 public:
    bool knows(const std::string&) override { return false; }
    std::vector<std::string> suggestions(const std::string&) override { return {}; }
    void add(const std::string&) override {}
};

void Check(bool holds) {
    if (!holds) std::abort();
}

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
    return 0;
}
