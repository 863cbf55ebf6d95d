#include "authoring/spelling/core/spelling_pass.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace authoring {

SpellingPass::SpellingPass(std::u16string page, IsLetterFunction letters, SpellDictionary& dictionary)
    : page_(std::move(page)), dictionary_(dictionary), words_(FindWords(page_, letters)) {}

bool SpellingPass::next() {
    while (index_ < words_.size()) {
        const Word& word = words_[index_++];
        word_ = page_.substr(word.start, word.length);
        if (!isKnown()) return true;
    }
    return false;
}

bool SpellingPass::isKnown() {
    if (std::binary_search(known_.begin(), known_.end(), word_)) return true;
    try {
        if (!dictionary_.knows(word_)) return false;
    } catch (const std::exception&) {
        failed_ = true;
        return false;
    }
    accept();
    return true;
}

void SpellingPass::accept() {
    known_.insert(std::lower_bound(known_.begin(), known_.end(), word_), word_);
}

std::vector<std::u16string> SpellingPass::suggestions() {
    try {
        return dictionary_.suggestions(word_);
    } catch (const std::exception&) {
        failed_ = true;
        return {};
    }
}

std::u16string SpellingPass::context() const {
    constexpr std::size_t kAround = 30;
    const Word& word = words_[index_ - 1];
    std::size_t start = word.start - std::min(word.start, kAround);
    std::size_t end = std::min(page_.size(), word.start + word.length + kAround);
    while (start > 0 && start < word.start && page_[start - 1] != ' ') ++start;
    while (end < page_.size() && end > word.start + word.length && page_[end] != ' ') --end;
    std::u16string line = page_.substr(start, end - start);
    std::replace_if(
        line.begin(), line.end(), [](char16_t c) { return c < ' '; }, u' ');
    return line;
}

void SpellingPass::change(std::u16string_view replacement) {
    const Word& word = words_[index_ - 1];
    done_.append(page_, copied_, word.start - copied_).append(replacement);
    copied_ = word.start + word.length;
    changed_ = changed_ || replacement != word_;
}

void SpellingPass::ignoreAll() {
    accept();
}

void SpellingPass::add() {
    try {
        dictionary_.add(word_);
    } catch (const std::exception&) {
        failed_ = true;
    }
    accept();
}

std::u16string SpellingPass::result() const {
    return done_ + page_.substr(copied_);
}

}  // namespace authoring
