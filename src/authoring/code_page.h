// The letters of the system's ANSI code page.
#pragma once

#include "authoring/core/fold_table.h"
#include "authoring/core/spell_words.h"

namespace authoring {

// The system's own idea of letters, so that an umlaut matches its capital like any other letter. The second
// bytes of a double-byte code page can look like letters, so there only ASCII counts.
FoldTable SystemFoldTable();
LetterTable SystemLetters();

}  // namespace authoring
