// The script blocks and navigation menus that the Scripts menu inserts.
#pragma once

#include <string>
#include <string_view>

namespace modScripts {

// The address that stands in the generated menus until the author puts in real ones.
inline constexpr std::string_view kSampleUrl = "http://www.example.com/";

// The block of item `index` of "Script Tags", with CR LF between lines and none at the end. Empty, and
// then not to be inserted because that would delete the selection, for the items that have no block
// (3 to 5) and for any other index.
std::string_view ScriptBlock(int index);

// The keyword of item `index` of "Drop Menus" for MakeDropMenu; empty beyond 0 to 3.
std::string_view DropMenuKeyword(int index);

// HTML and JavaScript of one kind of navigation menu: "drop" goes where the list says at once, "goBtn" on a
// button, "Wnd" in a new window if wished, "dCbo" has a second list that follows the first. Exact comparison;
// any other keyword gives an empty text. CR LF stands between lines, none at the end.
std::string MakeDropMenu(std::string_view keyword);

}  // namespace modScripts
