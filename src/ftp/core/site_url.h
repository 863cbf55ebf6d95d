// The address of an FTP site as the user types it.
#pragma once

#include <string>
#include <string_view>

namespace ftp {

// The text after the first "://", or the whole text.
std::string_view StripScheme(std::string_view url);

// Whether this can be an address at all: it holds a ".".
bool LooksLikeUrl(std::string_view url);

struct SiteUrl {
    std::string host;
    // The directory to start in, for FtpSetCurrentDirectoryA: empty for the login's own, relative to
    // it as in "host/pub/docs" (RFC 1738, 3.2.2), absolute when two slashes follow the host.
    std::string path;
};

// Takes a stored site apart for connecting. Blanks around host and path, a scheme and slashes at the
// end are dropped.
SiteUrl SplitSiteUrl(std::string_view stored);

}  // namespace ftp
