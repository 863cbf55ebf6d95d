#include "authoring/core/find_replace.h"

#include <vector>

#include <new>

namespace authoring {
namespace {

enum class Overlap { no, yes };

// Walks over the occurrences without ever looking back (Knuth, Morris and Pratt, SIAM Journal on
// Computing 6, 1977): a page full of near matches costs no more than any other.
class Matches {
 public:
    Matches(std::string_view text, std::string_view find, const FoldTable& fold, Overlap overlap,
            std::size_t from = 0)
        : text_(text), fold_(fold), at_(from) {
        find_.reserve(find.size());
        for (const char c : find) find_ += folded(c);
        linkBorders();
        afterMatch_ = overlap == Overlap::yes ? border_.back() : 0;
    }

    // The position of the next occurrence, or kNotFound.
    std::size_t next() {
        if (find_.empty()) return kNotFound;
        while (at_ < text_.size()) {
            matched_ = extend(matched_, folded(text_[at_++]));
            if (matched_ == find_.size()) {
                matched_ = afterMatch_;
                return at_ - find_.size();
            }
        }
        return kNotFound;
    }

 private:
    char folded(char c) const { return static_cast<char>(fold_[static_cast<unsigned char>(c)]); }

    std::size_t extend(std::size_t matched, char c) const {
        while (matched > 0 && find_[matched] != c) matched = border_[matched];
        return find_[matched] == c ? matched + 1 : 0;
    }

    // border_[n] is the length of the longest proper beginning of the first n bytes that is also their
    // end: as much of a match as is left when byte n does not fit.
    void linkBorders() {
        border_.assign(find_.size() + 1, 0);
        for (std::size_t n = 1; n < find_.size(); ++n) border_[n + 1] = extend(border_[n], find_[n]);
    }

    std::string_view text_;
    const FoldTable& fold_;
    std::string find_;
    std::vector<std::size_t> border_;
    std::size_t afterMatch_ = 0;
    std::size_t at_;
    std::size_t matched_ = 0;
};

std::optional<int> Count(Matches matches) {
    int count = 0;
    while (matches.next() != kNotFound) {
        if (++count > kMaxMatches) return std::nullopt;
    }
    return count;
}

std::size_t ReplacedSize(std::string_view text, std::string_view find, std::string_view with) {
    std::size_t count = 0;
    Matches matches(text, find, kExact, Overlap::no);
    while (matches.next() != kNotFound) ++count;
    const std::size_t kept = text.size() - count * find.size();
    if (!with.empty() && count > (std::string().max_size() - kept) / with.size()) {
        throw std::bad_alloc();
    }
    return kept + count * with.size();
}

}  // namespace

std::size_t FindExact(std::string_view text, std::string_view find, std::size_t from) {
    return Matches(text, find, kExact, Overlap::no, from).next();
}

std::size_t FindIgnoringCase(std::string_view text, std::string_view find, std::size_t from,
                             const FoldTable& fold) {
    return Matches(text, find, fold, Overlap::no, from).next();
}

std::optional<int> CountMatches(std::string_view text, std::string_view find) {
    return Count({text, find, kExact, Overlap::yes});
}

std::optional<int> CountMatchesIgnoringCase(std::string_view text, std::string_view find,
                                            const FoldTable& fold) {
    return Count({text, find, fold, Overlap::yes});
}

std::optional<int> CountFromFirst(std::string_view text, std::string_view find, std::size_t first,
                                  const FoldTable& fold) {
    if (first == 0 || first == kNotFound) return 0;
    return Count({text, find, fold, Overlap::no, first});
}

std::string ReplaceText(std::string_view text, std::string_view find, std::string_view with,
                        const std::function<void()>& onReplaced) {
    std::string result;
    result.reserve(ReplacedSize(text, find, with));
    std::size_t copied = 0;
    Matches matches(text, find, kExact, Overlap::no);
    for (std::size_t at = matches.next(); at != kNotFound; at = matches.next()) {
        result += text.substr(copied, at - copied);
        result += with;
        copied = at + find.size();
        if (onReplaced) onReplaced();
    }
    result += text.substr(copied);
    return result;
}

}  // namespace authoring
