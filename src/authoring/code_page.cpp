#include "authoring/code_page.h"

#include "win/windows.h"

namespace authoring {
namespace {

bool IsSingleByte() {
    CPINFO info{};
    return ::GetCPInfo(CP_ACP, &info) && info.MaxCharSize == 1;
}

}  // namespace

FoldTable SystemFoldTable() {
    if (!IsSingleByte()) return kAsciiFold;
    FoldTable table = kExact;
    ::CharLowerBuffA(reinterpret_cast<char*>(table.data()), static_cast<DWORD>(table.size()));
    return table;
}

LetterTable SystemLetters() {
    LetterTable letters = kAsciiLetters;
    if (!IsSingleByte()) return letters;
    for (std::size_t i = 0x80; i < letters.size(); ++i)
        letters[i] = ::IsCharAlphaA(static_cast<char>(i)) != FALSE;
    return letters;
}

}  // namespace authoring
