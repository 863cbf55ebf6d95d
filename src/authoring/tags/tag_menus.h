// The commands of the Tags and Scripts menus.
#pragma once

#include "authoring/tags/core/tag_fragments.h"
#include "main_window.h"

namespace authoring {

// Puts the fragment of the item at `index` into the active page; an item without one changes nothing.
void InsertTag(MainWindow& main, TagMenu menu, int index);

template <TagMenu menu>
void OnTags(MainWindow& main, int index) {
    InsertTag(main, menu, index);
}

// Asks for the size first if the tag has one.
void OnTagsFont(MainWindow& main, int index);
void OnTagsDate(MainWindow& main, int);
void OnScriptTags(MainWindow& main, int index);
void OnScriptDrops(MainWindow& main, int index);

}  // namespace authoring
