// One way through a page, from one misspelt word to the next.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "authoring/core/spell_words.h"

namespace authoring {

// Who knows how words are spelt.
class SpellDictionary {
 public:
    virtual ~SpellDictionary() = default;
    virtual bool knows(const std::string& word) = 0;
    virtual std::vector<std::string> suggestions(const std::string& word) = 0;  // the best first
    virtual void add(const std::string& word) = 0;                              // for good
};

class SpellingPass {
 public:
    // The dictionary must outlive the pass.
    SpellingPass(std::string page, const LetterTable& letters, SpellDictionary& dictionary);

    // Goes to the next word that the dictionary does not know; false when there is none left. A word is
    // looked up once.
    bool next();

    const std::string& word() const { return word_; }
    std::vector<std::string> suggestions() { return dictionary_.suggestions(word_); }
    // The text around the word on one line, some 60 bytes, cut at blanks.
    std::string context() const;

    // What happens to the word just found; next() without any of them leaves it as it is.
    void change(std::string_view replacement);
    void ignoreAll();
    void add();

    bool isChanged() const { return changed_; }
    // The page with the changes so far.
    std::string result() const;

 private:
    bool isKnown();
    void accept();

    std::string page_;
    SpellDictionary& dictionary_;
    std::vector<Word> words_;
    std::size_t index_ = 0;  // of the word after the one just found
    std::string word_;
    std::vector<std::string> known_;  // sorted
    std::string done_;                // the changed page up to copied_
    std::size_t copied_ = 0;          // in the page
    bool changed_ = false;
};

}  // namespace authoring
