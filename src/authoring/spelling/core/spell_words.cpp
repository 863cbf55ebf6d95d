#include "authoring/spelling/core/spell_words.h"

#include <algorithm>
#include <utility>

#include "win/core/ascii.h"
#include "win/core/utf.h"

namespace authoring {
namespace {

using win::IsAsciiLetter;
using win::SameName;

constexpr std::size_t kNowhere = std::u16string_view::npos;

bool IsDigit(char16_t c) {
    return c >= '0' && c <= '9';
}
bool IsBlank(char16_t c) {
    return c <= ' ' || c == u'\u00A0';
}

// Just behind `end`, searched from `from`; what is never ended goes to the end of the page.
std::size_t Behind(std::u16string_view page, std::u16string_view end, std::size_t from) {
    const std::size_t at = page.find(end, from);
    return at == kNowhere ? page.size() : at + end.size();
}

// Behind the ">" that ends the tag, or nowhere when another "<" comes first: then it is none. Within quotes
// neither counts. The limit keeps a page of nothing but open quotes from taking quadratic time.
std::size_t TagEnd(std::u16string_view page, std::size_t start, bool quotes) {
    constexpr std::size_t kLongest = 4096;
    char16_t quote = 0;
    for (std::size_t i = start + 1; i < page.size() && i - start <= kLongest; ++i) {
        const char16_t c = page[i];
        if (quote != 0) {
            if (c == quote) quote = 0;
        } else if (quotes && (c == '"' || c == '\'')) {
            quote = c;
        } else if (c == '>') {
            return i + 1;
        } else if (c == '<') {
            if (!page.substr(i).starts_with(u"<%")) return kNowhere;
            i = Behind(page, u"%>", i) - 1;
        }
    }
    return kNowhere;
}

// What is no text for readers although it stands between two tags.
std::size_t RawContentEnd(std::u16string_view page, std::size_t tag, std::size_t behindTag) {
    for (const std::u16string_view name : {u"script", u"style"}) {
        const std::u16string_view tagText = page.substr(tag + 1, behindTag - tag - 1);
        if (!SameName(tagText.substr(0, name.size()), name) || IsAsciiLetter(tagText[name.size()])) continue;
        const std::size_t end = win::FindName(page, name == u"script" ? u"</script" : u"</style", behindTag);
        return end == kNowhere ? page.size() : end;
    }
    return behindTag;
}

// The end of the markup that starts with the "<" at `start`, or nowhere when it is only a sign.
std::size_t MarkupEnd(std::u16string_view page, std::size_t start) {
    const std::u16string_view rest = page.substr(start);
    if (rest.starts_with(u"<!--")) return Behind(page, u"-->", start + 4);
    if (rest.starts_with(u"<%")) return Behind(page, u"%>", start);
    if (rest.starts_with(u"<?")) return Behind(page, u"?>", start);
    if (rest.size() < 2 || (!IsAsciiLetter(rest[1]) && rest[1] != '/' && rest[1] != '!')) return kNowhere;
    std::size_t end = TagEnd(page, start, true);
    if (end == kNowhere) end = TagEnd(page, start, false);
    return end == kNowhere ? kNowhere : RawContentEnd(page, start, end);
}

// The end of the entity that starts with the "&" at `start`, or nowhere.
std::size_t EntityEnd(std::u16string_view page, std::size_t start) {
    constexpr std::size_t kLongest = 10;
    for (std::size_t i = start + 1; i < page.size() && i - start <= kLongest; ++i) {
        if (page[i] == ';') return i > start + 1 ? i + 1 : kNowhere;
        if (!IsAsciiLetter(page[i]) && !IsDigit(page[i]) && page[i] != '#') return kNowhere;
    }
    return kNowhere;
}

// Whether the entity, given without its "&" and ";", is a letter of a word: &eacute;, &szlig;, &#233;
bool IsLetterEntity(std::u16string_view name) {
    if (name.starts_with('#')) {
        unsigned code = 0;
        for (const char16_t c : name.substr(1)) {
            if (!IsDigit(c)) return true;
            code = code * 10 + static_cast<unsigned>(c - '0');
        }
        constexpr unsigned kFirstLetter = 0xC0;
        constexpr unsigned kPunctuation = 0x2000;
        return code >= kFirstLetter && code < kPunctuation;
    }
    for (const std::u16string_view ending :
         {u"acute", u"grave", u"circ", u"tilde", u"uml", u"ring", u"cedil", u"slash", u"lig", u"caron",
          u"eth", u"ETH", u"thorn", u"THORN"}) {
        if (name.ends_with(ending)) return true;
    }
    return false;
}

bool IsLanguageTag(std::u16string_view text) {
    return text.size() > 1 && IsAsciiLetter(text[0]) && std::all_of(text.begin(), text.end(), [](char16_t c) {
               return IsAsciiLetter(c) || IsDigit(c) || c == '-';
           });
}

// The attributes of a start tag, one after the other.
class Attributes {
 public:
    // `tag` begins with "<" and goes to the tag's end or beyond.
    explicit Attributes(std::u16string_view tag) : rest_(tag) {
        take([](char16_t c) { return !EndsName(c); });
    }

    // Goes to the next one; false at the tag's end.
    bool next() {
        take([](char16_t c) { return IsBlank(c) || c == '/'; });
        if (rest_.empty() || rest_[0] == '>') return false;
        name_ = take([](char16_t c) { return c != '=' && !EndsName(c); });
        take(IsBlank);
        value_ = {};
        if (rest_.empty() || rest_[0] != '=') return true;
        rest_.remove_prefix(1);
        take(IsBlank);
        const char16_t quote = rest_.empty() ? u'\0' : rest_[0];
        if (quote != '"' && quote != '\'') {
            value_ = take([](char16_t c) { return !IsBlank(c) && c != '>'; });
            return true;
        }
        rest_.remove_prefix(1);
        value_ = take([quote](char16_t c) { return c != quote; });
        rest_.remove_prefix(rest_.empty() ? 0 : 1);
        return true;
    }

    std::u16string_view name() const { return name_; }
    std::u16string_view value() const { return value_; }

 private:
    static bool EndsName(char16_t c) { return IsBlank(c) || c == '/' || c == '>'; }

    template <typename Predicate>
    std::u16string_view take(Predicate belongs) {
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), belongs);
        const std::u16string_view taken = rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
        rest_.remove_prefix(taken.size());
        return taken;
    }

    std::u16string_view rest_, name_, value_;
};

class Finder {
 public:
    Finder(std::u16string_view page, IsLetterFunction letters) : page_(page), letters_(letters) {}

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
    // Behind the letter at `i`, which may be of two units; `i` itself when there is none.
    std::size_t letterEnd(std::size_t i) const {
        if (i >= page_.size()) return i;
        const win::Character character = win::FirstOfUtf16(page_.substr(i));
        return letters_(character.value) ? i + character.length : i;
    }
    bool isLetter(std::size_t i) const { return letterEnd(i) > i; }
    bool isLetterBefore(std::size_t i) const {
        return i > 0 && (isLetter(i - 1) || (i > 1 && letterEnd(i - 2) == i));
    }
    bool isApostrophe(std::size_t i) const { return page_[i] == '\'' || page_[i] == u'\u2019'; }

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
        const std::u16string_view chunk = page_.substr(start, end - start);
        if (chunk.find('@') != kNowhere || chunk.find('\\') != kNowhere || chunk.find(u"://") != kNowhere)
            return true;
        for (std::size_t i = start + 1; i + 1 < end; ++i) {
            if (page_[i] == '.' && isLetterBefore(i) && (isLetter(i + 1) || IsDigit(page_[i + 1])))
                return true;
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
        int letters = 0;
        std::size_t i = start;
        while (i < end) {
            if (isLetter(i)) {
                i = letterEnd(i);
                ++letters;
            } else if (isApostrophe(i) && i > start && i + 1 < end && isLetterBefore(i) && isLetter(i + 1)) {
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
        if (spelt && letters > 1) words_.push_back({start, i - start});
        return std::max(i, start + 1);
    }

    std::u16string_view page_;
    IsLetterFunction letters_;
    std::size_t at_ = 0;
    std::vector<Word> words_;
};

}  // namespace

std::vector<Word> FindWords(std::u16string_view page, IsLetterFunction letters) {
    return Finder(page, letters).find();
}

std::u16string PageLanguage(std::u16string_view page) {
    std::size_t end = 0;
    for (std::size_t at = page.find('<'); at != kNowhere; at = page.find('<', end)) {
        end = MarkupEnd(page, at);
        if (end == kNowhere) {
            end = at + 1;
        } else if (IsAsciiLetter(page[at + 1])) {
            for (Attributes attributes(page.substr(at, end - at)); attributes.next();) {
                const bool isLanguage =
                    SameName(attributes.name(), u"lang") || SameName(attributes.name(), u"xml:lang");
                if (isLanguage && IsLanguageTag(attributes.value()))
                    return std::u16string(attributes.value());
            }
        }
    }
    return {};
}

}  // namespace authoring
