// Printing the active page on the default printer, at once and as plain text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "main_window.h"

namespace modPrint {

// Prints `text` with `title` in the header of the first page; tabs reach to multiples of `tabLength` columns.
// An empty text prints nothing. Throws win::Error, also when there is no printer, and then no part of the
// document is left in the printer's queue.
void PrintText(std::u16string_view text, const std::string& title, std::size_t tabLength);

void OnFilePrint(MainWindow& main, int);

}  // namespace modPrint
