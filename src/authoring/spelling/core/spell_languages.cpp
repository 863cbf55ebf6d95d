#include "authoring/spelling/core/spell_languages.h"

#include <algorithm>
#include <string_view>

#include "win/core/ascii.h"

namespace authoring {
namespace {

// "en-US" is a kind of "en".
bool IsKindOf(std::string_view tag, std::string_view language) {
    return win::SameName(tag.substr(0, tag.find('-')), language);
}

}  // namespace

std::vector<std::string> LanguagesToTry(const std::string& page, const std::string& user,
                                        const std::vector<std::string>& supported) {
    std::string language = page.empty() ? user : page;
    std::vector<std::string> tags{language};
    if (language.find('-') == std::string::npos) {
        if (IsKindOf(user, language)) tags.push_back(user);
        std::copy_if(supported.begin(), supported.end(), std::back_inserter(tags),
                     [&](const std::string& tag) { return IsKindOf(tag, language); });
    }
    for (std::size_t dash = language.rfind('-'); dash != std::string::npos; dash = language.rfind('-')) {
        language.resize(dash);
        tags.push_back(language);
    }
    return tags;
}

}  // namespace authoring
