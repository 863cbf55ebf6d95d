// Searching, counting and replacing in text. Positions count units from 0, which in the text of a page are
// the edit control's positions. An empty `find` occurs nowhere.
#pragma once

#include <cstddef>
#include <functional>
#include <new>
#include <optional>
#include <string>
#include <string_view>

// commdlg.h makes a macro of this name.
#undef ReplaceText

namespace authoring {

inline constexpr std::size_t kNotFound = std::u16string_view::npos;

// Counts are 16-bit; one more than this is an overflow.
inline constexpr int kMaxMatches = 32767;

// The first occurrence that begins at or after `from`, or kNotFound.
constexpr std::size_t FindFrom(std::u16string_view text, std::u16string_view find, std::size_t from) {
    return find.empty() ? kNotFound : text.find(find, from);
}

// How often `find` occurs in `text`, overlapping occurrences included ("aa" is twice in "aaa"). Nothing as
// soon as there are more than kMaxMatches.
std::optional<int> CountMatches(std::u16string_view text, std::u16string_view find);

// The count that the Find dialog shows: the occurrences from `first`, which is where the first one is, to the
// end of the text, without those that overlap. 0 if `first` is 0, because the dialog counts while the
// position is above 0, or kNotFound. Nothing as soon as there are more than kMaxMatches.
std::optional<int> CountFromFirst(std::u16string_view text, std::u16string_view find, std::size_t first);

// Where the next Find Next starts after a match at `position` of a text of `length` units. Find Next skips
// the length once more than Find does, so it steps over repeats that follow directly.
constexpr std::size_t NextStartAfterFind(std::size_t position, std::size_t length) {
    return position + length;
}
constexpr std::size_t NextStartAfterFindNext(std::size_t position, std::size_t length) {
    return position + 2 * length;
}

// `text` with every non-overlapping occurrence of `find`, from left to right, replaced by `with`.
// `onReplaced` is called after each replacement; what it throws ends the work. Throws std::bad_alloc or
// std::length_error if the result is too large.
template <typename Char>
std::basic_string<Char> ReplaceText(std::basic_string_view<Char> text, std::basic_string_view<Char> find,
                                    std::basic_string_view<Char> with,
                                    const std::function<void()>& onReplaced = {}) {
    std::basic_string<Char> result;
    std::size_t copied = 0;
    if (find.empty()) return std::basic_string<Char>(text);
    for (std::size_t at = text.find(find); at != kNotFound; at = text.find(find, copied)) {
        result.append(text.substr(copied, at - copied)).append(with);
        copied = at + find.size();
        if (onReplaced) onReplaced();
    }
    return result.append(text.substr(copied));
}

}  // namespace authoring
