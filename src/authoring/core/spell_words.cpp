#include "authoring/core/spell_words.h"

#include <algorithm>
#include <utility>

namespace authoring {
namespace {

constexpr std::size_t kNowhere = std::string_view::npos;

bool IsAsciiLetter(char c) {
    return kAsciiLetters[static_cast<unsigned char>(c)];
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}
bool IsBlank(char c) {
    return static_cast<unsigned char>(c) <= ' ' || c == '\xA0';
}

bool StartsWithText(std::string_view text, std::string_view lowerPrefix) {
    return text.size() >= lowerPrefix.size() &&
           std::equal(lowerPrefix.begin(), lowerPrefix.end(), text.begin(),
                      [](char wanted, char c) { return wanted == Lower(c); });
}

std::size_t FindText(std::string_view page, std::string_view lowerText, std::size_t from) {
    for (; from + lowerText.size() <= page.size(); ++from) {
        if (StartsWithText(page.substr(from), lowerText)) return from;
    }
    return kNowhere;
}

// Just behind `end`, searched from `from`; what is never ended goes to the end of the page.
std::size_t Behind(std::string_view page, std::string_view end, std::size_t from) {
    const std::size_t at = page.find(end, from);
    return at == kNowhere ? page.size() : at + end.size();
}

// Behind the ">" that ends the tag, or nowhere when another "<" comes first: then it is none. Within quotes
// neither counts. The limit keeps a page of nothing but open quotes from taking quadratic time.
std::size_t TagEnd(std::string_view page, std::size_t start, bool quotes) {
    constexpr std::size_t kLongest = 4096;
    char quote = 0;
    for (std::size_t i = start + 1; i < page.size() && i - start <= kLongest; ++i) {
        const char c = page[i];
        if (quote != 0) {
            if (c == quote) quote = 0;
        } else if (quotes && (c == '"' || c == '\'')) {
            quote = c;
        } else if (c == '>') {
            return i + 1;
        } else if (c == '<') {
            if (!page.substr(i).starts_with("<%")) return kNowhere;
            i = Behind(page, "%>", i) - 1;
        }
    }
    return kNowhere;
}

// What is no text for readers although it stands between two tags.
std::size_t RawContentEnd(std::string_view page, std::size_t tag, std::size_t behindTag) {
    for (const std::string_view name : {"script", "style"}) {
        const std::string_view tagText = page.substr(tag + 1, behindTag - tag - 1);
        if (!StartsWithText(tagText, name) || IsAsciiLetter(tagText[name.size()])) continue;
        const std::size_t end = FindText(page, name == "script" ? "</script" : "</style", behindTag);
        return end == kNowhere ? page.size() : end;
    }
    return behindTag;
}

// The end of the markup that starts with the "<" at `start`, or nowhere when it is only a sign.
std::size_t MarkupEnd(std::string_view page, std::size_t start) {
    const std::string_view rest = page.substr(start);
    if (rest.starts_with("<!--")) return Behind(page, "-->", start + 4);
    if (rest.starts_with("<%")) return Behind(page, "%>", start);
    if (rest.starts_with("<?")) return Behind(page, "?>", start);
    if (rest.size() < 2 || (!IsAsciiLetter(rest[1]) && rest[1] != '/' && rest[1] != '!')) return kNowhere;
    std::size_t end = TagEnd(page, start, true);
    if (end == kNowhere) end = TagEnd(page, start, false);
    return end == kNowhere ? kNowhere : RawContentEnd(page, start, end);
}

// The end of the entity that starts with the "&" at `start`, or nowhere.
std::size_t EntityEnd(std::string_view page, std::size_t start) {
    constexpr std::size_t kLongest = 10;
    for (std::size_t i = start + 1; i < page.size() && i - start <= kLongest; ++i) {
        if (page[i] == ';') return i > start + 1 ? i + 1 : kNowhere;
        if (!IsAsciiLetter(page[i]) && !IsDigit(page[i]) && page[i] != '#') return kNowhere;
    }
    return kNowhere;
}

// Whether the entity, given without its "&" and ";", is a letter of a word: &eacute;, &szlig;, &#233;
bool IsLetterEntity(std::string_view name) {
    if (name.starts_with('#')) {
        unsigned code = 0;
        for (const char c : name.substr(1)) {
            if (!IsDigit(c)) return true;
            code = code * 10 + static_cast<unsigned>(c - '0');
        }
        constexpr unsigned kFirstLetter = 0xC0;
        constexpr unsigned kPunctuation = 0x2000;
        return code >= kFirstLetter && code < kPunctuation;
    }
    for (const std::string_view ending : {"acute", "grave", "circ", "tilde", "uml", "ring", "cedil", "slash",
                                          "lig", "caron", "eth", "ETH", "thorn", "THORN"}) {
        if (name.ends_with(ending)) return true;
    }
    return false;
}

class Finder {
 public:
    Finder(std::string_view page, const LetterTable& letters) : page_(page), letters_(letters) {}

    std::vector<Word> find() {
        while (at_ < page_.size()) {
            if (const std::size_t end = separatorEnd(at_); end != kNowhere) {
                at_ = end;
            } else {
                addWordsOf(at_, chunkEnd());
            }
        }
        return std::move(words_);
    }

 private:
    bool isLetter(std::size_t i) const { return letters_[static_cast<unsigned char>(page_[i])]; }
    bool isApostrophe(std::size_t i) const { return page_[i] == '\'' || page_[i] == '\x92'; }

    // Behind the blank, markup or entity at `i` that keeps words apart; nowhere when there is none.
    std::size_t separatorEnd(std::size_t i) const {
        if (IsBlank(page_[i])) return i + 1;
        if (page_[i] == '<') return MarkupEnd(page_, i);
        if (page_[i] != '&') return kNowhere;
        const std::size_t end = EntityEnd(page_, i);
        return end == kNowhere || IsLetterEntity(page_.substr(i + 1, end - i - 2)) ? kNowhere : end;
    }

    // A chunk is all up to the next separator.
    std::size_t chunkEnd() const {
        std::size_t end = at_ + 1;
        while (end < page_.size() && separatorEnd(end) == kNowhere) ++end;
        return end;
    }

    bool isAddress(std::size_t start, std::size_t end) const {
        const std::string_view chunk = page_.substr(start, end - start);
        if (chunk.find('@') != kNowhere || chunk.find('\\') != kNowhere || chunk.find("://") != kNowhere)
            return true;
        for (std::size_t i = start + 1; i + 1 < end; ++i) {
            if (page_[i] == '.' && isLetter(i - 1) && (isLetter(i + 1) || IsDigit(page_[i + 1]))) return true;
        }
        return false;
    }

    void addWordsOf(std::size_t start, std::size_t end) {
        at_ = end;
        if (isAddress(start, end)) return;
        for (std::size_t i = start; i < end;) i = takeRun(i, end);
    }

    // Takes the run of word characters at `start` and returns where to go on.
    std::size_t takeRun(std::size_t start, std::size_t end) {
        bool spelt = true;
        std::size_t i = start;
        while (i < end) {
            if (isLetter(i) ||
                (isApostrophe(i) && i > start && i + 1 < end && isLetter(i - 1) && isLetter(i + 1))) {
                ++i;
            } else if (IsDigit(page_[i]) || page_[i] == '_') {
                spelt = false;
                ++i;
            } else if (const std::size_t entity = page_[i] == '&' ? EntityEnd(page_, i) : kNowhere;
                       entity != kNowhere) {
                spelt = false;
                i = entity;
            } else {
                break;
            }
        }
        if (spelt && i - start > 1) words_.push_back({start, i - start});
        return std::max(i, start + 1);
    }

    std::string_view page_;
    const LetterTable& letters_;
    std::size_t at_ = 0;
    std::vector<Word> words_;
};

}  // namespace

std::vector<Word> FindWords(std::string_view page, const LetterTable& letters) {
    return Finder(page, letters).find();
}

}  // namespace authoring
