#include "files/modPubFuncs.h"

#include <algorithm>

#include "document/frmChild.h"
#include "win/letters.h"
#include "win/unicode.h"
#include "win/wide_path.h"

namespace modPubFuncs {
namespace {

// The one spelling for all paths of a file: absolute, with long names, in upper case.
std::u16string Canonical(const std::string& path) {
    const std::wstring full = win::WidePath(path);
    std::wstring name(::GetLongPathNameW(full.c_str(), nullptr, 0), L'\0');
    name.resize(::GetLongPathNameW(full.c_str(), name.data(), static_cast<DWORD>(name.size())));
    return win::UpperCase(win::AsUtf16(name.empty() ? full : name));
}

}  // namespace

bool FileExists(const std::string& path) {
    const DWORD attributes = ::GetFileAttributesW(win::WidePath(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool SamePath(const std::string& a, const std::string& b) {
    return a == b || (!a.empty() && !b.empty() && Canonical(a) == Canonical(b));
}

bool IsBelow(const std::string& path, const std::string& folder) {
    return Canonical(path).starts_with(Canonical(folder));
}

bool IsFileOpen(MainWindow& main, const std::string& path) {
    const auto& documents = main.documents();
    return std::any_of(documents.begin(), documents.end(),
                       [&path](const frmChild* document) { return SamePath(document->Tag(), path); });
}

}  // namespace modPubFuncs
