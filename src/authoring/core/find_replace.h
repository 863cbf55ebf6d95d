// Searching, counting and replacing in the text of a page. Positions are byte offsets from 0, which are
// the edit control's character positions in a single-byte code page. All of it takes time linear in the
// text, whatever is looked for, and an empty `find` occurs nowhere.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "authoring/core/fold_table.h"

// commdlg.h makes a macro of this name.
#undef ReplaceText

namespace authoring {

inline constexpr std::size_t kNotFound = std::string_view::npos;

// Counts are 16-bit; one more than this is an overflow.
inline constexpr int kMaxMatches = 32767;

// The first occurrence that begins at or after `from`, or kNotFound (also when `from` is past the end).
std::size_t FindExact(std::string_view text, std::string_view find, std::size_t from = 0);
std::size_t FindIgnoringCase(std::string_view text, std::string_view find, std::size_t from,
                             const FoldTable& fold);

// How often `find` occurs in `text`, overlapping occurrences included ("aa" is twice in "aaa"). Nothing
// as soon as there are more than kMaxMatches.
std::optional<int> CountMatches(std::string_view text, std::string_view find);
std::optional<int> CountMatchesIgnoringCase(std::string_view text, std::string_view find,
                                            const FoldTable& fold);

// The count that the Find dialog shows: the non-overlapping occurrences from `first`, which is what
// FindIgnoringCase gave, to the end of the text. 0 if `first` is 0, because the dialog counts while the
// position is above 0, or kNotFound. Nothing as soon as there are more than kMaxMatches.
std::optional<int> CountFromFirst(std::string_view text, std::string_view find, std::size_t first,
                                  const FoldTable& fold);

// Where the next Find Next starts after a match at `position` of a text of `length` bytes. Find Next
// skips the length once more than Find does, so it steps over repeats that follow directly.
constexpr std::size_t NextStartAfterFind(std::size_t position, std::size_t length) {
    return position + length;
}
constexpr std::size_t NextStartAfterFindNext(std::size_t position, std::size_t length) {
    return position + 2 * length;
}

// `text` with every non-overlapping occurrence of `find`, from left to right, replaced by `with`.
// `onReplaced` is called after each replacement and may pump messages, so `text`, `find` and `with` must
// be the caller's own copies and not something that a window can take away; what it throws ends the
// work. Throws std::bad_alloc, before the first replacement, if the result is too
// large.
std::string ReplaceText(std::string_view text, std::string_view find, std::string_view with,
                        const std::function<void()>& onReplaced = {});

}  // namespace authoring
