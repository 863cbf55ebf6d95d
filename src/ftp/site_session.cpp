#include "ftp/site_session.h"

#include "document/system_code_pages.h"
#include "ftp/core/password.h"
#include "ftp/core/server_text.h"
#include "ftp/remote_directory.h"

namespace ftp {
namespace {

// A request may be the last to hold it.
struct Secret {
    explicit Secret(std::string& taken) { text.swap(taken); }
    ~Secret() { Wipe(text); }
    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;

    std::string text;
};

std::string ForServer(const std::string& text) {
    return SentText(text, document::SystemCodePages());
}

}  // namespace

SiteSession::~SiteSession() {
    Wipe(password_);
}

void SiteSession::use(const Site& site) {
    url_ = site.url;
    user_ = ForServer(site.name);
    password_ = ReadPassword(site.storedPassword, document::SystemCodePages());
}

void SiteSession::setPassword(const std::string& typed) {
    password_ = ForServer(typed);
}

bool SiteSession::dial() {
    return ask([](FtpSession& session) { return session.dial(); }).value_or(true);
}

SiteSession::Opened SiteSession::open() {
    const auto opened = ask([host = ForServer(SplitSiteUrl(url_).host), user = user_,
                             password = std::make_shared<Secret>(password_)](FtpSession& session) {
        if (!session.open()) return Opened::noNetworking;
        return session.connect(host, user, password->text) ? Opened::yes : Opened::noServer;
    });
    return opened.value_or(Opened::noServer);
}

bool SiteSession::enterStart() {
    struct Start {
        bool refused;
        std::string directory;
    };
    const auto start = ask([path = ForServer(SplitSiteUrl(url_).path)](FtpSession& session) {
        const bool refused = !path.empty() && !session.changeDirectory(path);
        return Start{refused, session.currentDirectory().value_or("/")};
    });
    if (start) root_ = current_ = start->directory;
    return start && !start->refused;
}

void SiteSession::close() {
    session_->close();
    current_.clear();
}

void SiteSession::giveUp(DWORD timeout) {
    session_->stop();
    worker_.giveUp(timeout);
}

std::optional<std::vector<RemoteFile>> SiteSession::readDirectory() {
    auto directory = ask([known = current_](FtpSession& session) { return ReadDirectory(session, known); });
    if (!directory) return std::nullopt;
    current_ = directory->path;
    return std::move(directory->files);
}

std::string SiteSession::shownDirectory() const {
    return ShownText(current_, document::SystemCodePages());
}

std::optional<std::string> SiteSession::directoryAbove() const {
    return DirectoryAbove(current_, root_);
}

}  // namespace ftp
