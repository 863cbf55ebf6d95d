#include "ftp/core/site_url.h"

namespace ftp {
namespace {

constexpr std::string_view kSchemeEnd = "://";

std::string_view TrimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

}  // namespace

std::string_view StripScheme(std::string_view url) {
    const std::size_t end = url.find(kSchemeEnd);
    return end == std::string_view::npos ? url : url.substr(end + kSchemeEnd.size());
}

bool LooksLikeUrl(std::string_view url) {
    return url.find('.') != std::string_view::npos;
}

SiteUrl SplitSiteUrl(std::string_view stored) {
    const std::string_view url = StripScheme(stored);
    const std::size_t slash = url.find('/');
    SiteUrl site{std::string(TrimBlanks(url.substr(0, slash))), {}};
    if (slash == std::string_view::npos) return site;
    std::string_view path = TrimBlanks(url.substr(slash + 1));
    while (!path.empty() && path.back() == '/') path.remove_suffix(1);
    site.path = path;
    return site;
}

}  // namespace ftp
