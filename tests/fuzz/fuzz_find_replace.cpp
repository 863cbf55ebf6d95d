// The linear searches against ones that are too plain to be wrong. An input is a line to look for, a
// line to put in its place, and the text.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "authoring/core/find_replace.h"
#include "check.h"

using authoring::FoldTable;
using authoring::kNotFound;

namespace {

std::string Folded(std::string_view text, const FoldTable& fold) {
    std::string result;
    for (const char c : text) result += static_cast<char>(fold[static_cast<unsigned char>(c)]);
    return result;
}

int PlainCount(std::string_view text, std::string_view find, std::size_t from, std::size_t step) {
    int count = 0;
    for (std::size_t at = text.find(find, from); at != kNotFound; at = text.find(find, at + step)) ++count;
    return count;
}

std::string PlainReplace(std::string text, std::string_view find, std::string_view with) {
    std::size_t at = 0;
    while ((at = text.find(find, at)) != kNotFound) {
        text.replace(at, find.size(), with);
        at += with.size();
    }
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::string find = TakeLine(text);
    const std::string with = TakeLine(text);
    if (find.empty()) {
        Check(authoring::FindExact(text, find) == kNotFound && authoring::CountMatches(text, find) == 0);
        Check(authoring::ReplaceText(text, find, with) == text);
        return 0;
    }

    const FoldTable& fold = authoring::kAsciiFold;
    const std::string foldedText = Folded(text, fold);
    const std::string foldedFind = Folded(find, fold);
    Check(authoring::CountMatches(text, find) == PlainCount(text, find, 0, 1));
    Check(authoring::CountMatchesIgnoringCase(text, find, fold) == PlainCount(foldedText, foldedFind, 0, 1));
    for (std::size_t from = 0; from <= text.size(); from += 1 + text.size() / 8) {
        Check(authoring::FindExact(text, find, from) == text.find(find, from));
        const std::size_t first = authoring::FindIgnoringCase(text, find, from, fold);
        Check(first == foldedText.find(foldedFind, from));
        const bool counted = first != 0 && first != kNotFound;
        Check(authoring::CountFromFirst(text, find, first, fold) ==
              (counted ? PlainCount(foldedText, foldedFind, first, find.size()) : 0));
    }

    int calls = 0;
    Check(authoring::ReplaceText(text, find, with, [&] { ++calls; }) ==
          PlainReplace(std::string(text), find, with));
    Check(calls == PlainCount(text, find, 0, find.size()));
    return 0;
}
