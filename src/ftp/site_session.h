// The session with a stored site, from its login to its end.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "ftp/core/site_list.h"
#include "ftp/ftp_session.h"
#include "win/worker.h"

namespace ftp {

// Requests run on another thread, and messages are handled until there is an answer: anything can happen
// meanwhile.
class SiteSession {
 public:
    explicit SiteSession(SessionMaker makeSession) : session_(makeSession()) {}
    ~SiteSession();
    SiteSession(const SiteSession&) = delete;
    SiteSession& operator=(const SiteSession&) = delete;

    // Runs the request on the session and returns its answer; nothing when the session has been given up. The
    // request may outlive this object and all windows, so it must own what it uses.
    template <typename Request>
    auto ask(Request request) {
        using Answer = std::invoke_result_t<Request&, FtpSession&>;
        const auto answer = std::make_shared<std::optional<Answer>>();
        const auto job = [session = session_, answer, request = std::move(request)]() mutable {
            answer->emplace(request(*session));
        };
        if (worker_.run(job)) return std::move(*answer);
        session_->close();
        return std::optional<Answer>();
    }

    void use(const Site& site);
    const std::string& url() const { return url_; }
    bool hasPassword() const { return !password_.empty(); }
    void setPassword(const std::string& typed);

    // True also when the session has been given up: there is nothing to report then.
    bool dial();
    enum class Opened { yes, noNetworking, noServer };
    // Forgets the password.
    Opened open();
    // Enters the directory of the site's address; false when the server refuses.
    bool enterStart();
    bool isConnected() const { return session_->isConnected() && !worker_.isGivenUp(); }
    bool isLost() const { return session_->isLost(); }
    // Not while a request is under way.
    void close();
    // Ends the request that is under way, waiting at most this long, in milliseconds. None can follow.
    void giveUp(DWORD timeout);

    // Reads the current directory; nothing when the session has been given up.
    std::optional<std::vector<RemoteFile>> readDirectory();
    const std::string& directory() const { return current_; }
    std::string shownDirectory() const;
    std::optional<std::string> directoryAbove() const;  // nothing where the session started

 private:
    std::shared_ptr<FtpSession> session_;
    win::Worker worker_;
    std::string url_;
    std::string user_;      // in the server's bytes, as is what follows
    std::string password_;  // only until the server has it
    std::string root_;      // the directory that the session started in
    std::string current_;
};

}  // namespace ftp
