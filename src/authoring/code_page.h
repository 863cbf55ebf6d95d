// The letters of the system's ANSI code page.
#pragma once

#include "authoring/core/fold_table.h"
#include "authoring/core/spell_words.h"

namespace authoring {

FoldTable SystemFoldTable();
LetterTable SystemLetters();

}  // namespace authoring
