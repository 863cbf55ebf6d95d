// Prints the navigation menu of a keyword, which drop_menus.py tries in a browser.
#include <cstdio>
#include <string>

#include "authoring/tags/core/modScripts.h"

int main(int count, char** words) {
    const std::string menu = modScripts::MakeDropMenu(count > 1 ? words[1] : "");
    return std::fwrite(menu.data(), 1, menu.size(), stdout) == menu.size() ? 0 : 1;
}
