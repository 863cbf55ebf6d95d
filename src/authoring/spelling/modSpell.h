// Spell check of the active document.
#pragma once

#include "main_window.h"

namespace modSpell {

// Has the selection, or with none the whole page, corrected by a spelling service, and leaves the page's text
// from before on the clipboard. Throws when that fails; the page is then as it was.
void SpellCheck(MainWindow& main);

// The same, with messages for what can go wrong.
void OnSpelling(MainWindow& main, int);

}  // namespace modSpell
