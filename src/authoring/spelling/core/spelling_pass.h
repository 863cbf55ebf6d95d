// One way through a page, from one misspelt word to the next.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "authoring/spelling/core/spell_words.h"

namespace authoring {

// Knows how words are spelt. Every method may throw.
class SpellDictionary {
 public:
    virtual ~SpellDictionary() = default;
    virtual bool knows(const std::u16string& word) = 0;
    virtual std::vector<std::u16string> suggestions(const std::u16string& word) = 0;  // the best first
    virtual void add(const std::u16string& word) = 0;                                 // for good
};

class SpellingPass {
 public:
    // The dictionary must outlive the pass.
    SpellingPass(std::u16string page, IsLetterFunction letters, SpellDictionary& dictionary);

    // Goes to the next word that the dictionary does not know, or cannot tell; false when there is none left.
    // A word that is known is looked up once.
    bool next();

    const std::u16string& word() const { return word_; }
    std::vector<std::u16string> suggestions();
    // The text around the word on one line, some 60 units, cut at blanks.
    std::u16string context() const;

    // What happens to the word just found; next() without any of them leaves it as it is.
    void change(std::u16string_view replacement);
    void ignoreAll();
    void add();  // where that fails it is as ignoreAll()

    // Whether the dictionary has failed at anything so far.
    bool hasFailed() const { return failed_; }
    bool isChanged() const { return changed_; }
    // The page with the changes so far.
    std::u16string result() const;

 private:
    bool isKnown();
    void accept();

    std::u16string page_;
    SpellDictionary& dictionary_;
    std::vector<Word> words_;
    std::size_t index_ = 0;  // of the word after the one just found
    std::u16string word_;
    std::vector<std::u16string> known_;  // sorted
    std::u16string done_;                // the changed page up to copied_
    std::size_t copied_ = 0;             // in the page
    bool changed_ = false;
    bool failed_ = false;
};

}  // namespace authoring
