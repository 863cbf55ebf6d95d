// One byte of attributes, then what a server might send: names and directories, one a line.
#include "../core/iconv_code_pages.h"
#include "check.h"
#include "document/core/codec.h"
#include "ftp/core/password.h"
#include "ftp/core/remote_names.h"
#include "ftp/core/server_text.h"
#include "ftp/core/site_list.h"

namespace {

void CheckLocalName(const std::string& remote) {
    const std::string name = ftp::ProposedLocalName(remote);
    Check(!name.empty() && name.size() <= ftp::kMaxLocalName);
    Check(name.find_first_of("<>\"/\\|?*:\x7F") == std::string::npos);
    for (const char c : name) Check(static_cast<unsigned char>(c) >= 0x20);
    Check(name.front() != ' ' && name.back() != '.' && name.back() != ' ');
    Check(ftp::ProposedLocalName(name) == name);
}

void CheckMoveUp(const std::string& current, std::string root) {
    while (root.size() > 1 && root.back() == '/') root.pop_back();
    std::string directory = current;
    for (std::size_t steps = 0;; ++steps) {
        Check(steps <= current.size() + 2);
        const auto above = ftp::DirectoryAbove(directory, root);
        if (!above) return;
        Check(above->size() >= root.size() || root.compare(0, above->size() + 1, *above + "/") != 0);
        directory = *above;
    }
}

}  // namespace

void Try(std::string_view input) {
    if (input.empty()) return;
    const unsigned attributes = TakeByte(input);
    const IconvCodePages pages(attributes % 2 == 0 ? 1252 : 932);
    ftp::RemoteListing listing(pages);
    std::string previous;
    while (!input.empty()) {
        const std::string name = TakeLine(input);
        CheckLocalName(name);
        CheckMoveUp(name, previous);
        CheckMoveUp(ftp::JoinRemote("/" + previous, name), "/" + previous);
        Check(ftp::ReadPassword(ftp::StoredPassword(name, pages), pages) == name);
        const auto sent = ftp::SentName(name, pages);
        Check(!sent || document::IsUtf8(*sent) || ftp::ShownText(*sent, pages) == name);
        CheckLocalName(ftp::ShownText(name, pages));
        Check(ftp::SplitSiteUrl(name).host.find('/') == std::string::npos);
        Check(listing.add(name, attributes));
        previous = name;
    }
    for (const ftp::RemoteFile& file : std::move(listing).files()) {
        Check(!file.line.empty() && !file.name.empty() && file.name.size() <= ftp::kMaxRemoteName);
        Check(file.name != "." && file.name != "..");
    }
}
