// Which language to check spelling in.
#pragma once

#include <string>
#include <vector>

namespace authoring {

// The language tags to ask for a checker, the best first: the page's, or where it has none the user's, then
// that without its region. A page that says "en" alone is content with any English, best with the user's.
// Never another language: a page full of marked words helps nobody. `supported` are those that the system
// names itself.
std::vector<std::string> LanguagesToTry(const std::string& page, const std::string& user,
                                        const std::vector<std::string>& supported);

}  // namespace authoring
