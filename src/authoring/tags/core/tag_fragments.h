// The HTML that the Tags menu inserts.
#pragma once

#include <string>
#include <string_view>

namespace authoring {

// The menus and single items of Tags that have fixed fragments, in display order. Date has none: see
// DateFragment.
enum class TagMenu {
    Basic,
    BodyInc,
    Mod,
    Font,
    Img,
    Href,
    Rule,
    Align,
    Table,
    FSet,
    Frame,
    Form,
    Input,
    Ls,
    Ol,
    DLs,
    Special
};

// The fragment of the item at `index` (from 0; single items have only 0), with CR LF between lines and
// none at the end. Empty, and then not to be inserted because that would delete the selection, for a
// separator, an index beyond the last item, and item 1 of TagMenu::Font, which FontSizeFragment makes
// from the user's reply.
std::string_view TagFragment(TagMenu menu, int index);

// Whether the reply to the font-size question is taken: one that begins with a digit from 1 to 7. What
// follows the digit is the author's business ("12", "3px"). An empty reply is false.
bool IsFontSizeReply(std::string_view reply);

// The font tag around the reply, which is inserted as it is.
std::string FontSizeFragment(std::string_view reply);

// A date as "MMMM dd, yyyy". `monthName` is the full name in the user's language, `day` 1 to 31.
std::string DateFragment(std::string_view monthName, int day, int year);

}  // namespace authoring
