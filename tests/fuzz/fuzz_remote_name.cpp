// One byte of attributes, then what a server might send: names and directories, one a line.
#include <cstddef>
#include <cstdint>
#include <string>

#include "check.h"
#include "ftp/core/local_name.h"
#include "ftp/core/remote_listing.h"
#include "ftp/core/remote_path.h"
#include "ftp/core/scramble.h"
#include "ftp/core/site_url.h"

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

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 1) return 0;
    std::string_view input(reinterpret_cast<const char*>(data) + 1, size - 1);
    ftp::RemoteListing listing;
    std::string previous;
    while (!input.empty()) {
        const std::string name = TakeLine(input);
        CheckLocalName(name);
        CheckMoveUp(name, previous);
        CheckMoveUp(ftp::JoinRemote("/" + previous, name), "/" + previous);
        Check(ftp::ScramblePassword(ftp::ScramblePassword(name)) == name);
        Check(ftp::SplitSiteUrl(name).host.find('/') == std::string::npos);
        Check(listing.add(name, data[0]));
        previous = name;
    }
    for (const std::string& line : listing.lines()) {
        Check(!line.empty() && line.size() <= ftp::kMaxRemoteName + 1);
        Check(line != "./" && line != "../" && ftp::NameOfLine(line) != ".." && ftp::NameOfLine(line) != ".");
    }
    return 0;
}
