#include "files/recovery.h"

#include <algorithm>
#include <utility>

#include "document/frmChild.h"
#include "files/atomic_file.h"
#include "files/mBinOpen.h"
#include "win/unicode.h"
#include "win/wide_path.h"

namespace files {
namespace {

constexpr DWORD kAfterLast = 3000;  // milliseconds
constexpr DWORD kAfterFirst = 25000;

constexpr wchar_t kPrefix[] = L"~quillon-";
constexpr wchar_t kLockEnding[] = L".lock";
constexpr wchar_t kCopyEnding[] = L".page";

RecoveryCopy CopyOf(const frmChild& page) {
    return {page.Tag(), page.Caption(), page.encoding(),
            static_cast<std::size_t>(page.txtPad().selection().start), page.txtPad().text()};
}

std::optional<RecoveryCopy> ReadCopy(const std::wstring& path) {
    try {
        const auto bytes = mBinOpen::ReadFileAtOnce(win::ToUtf8(path));
        return bytes ? Unpack(*bytes) : std::nullopt;
    } catch (const std::exception&) {
        // There is not enough memory for it.
        return std::nullopt;
    }
}

// Null when another program holds it. The system deletes the file with the handle.
win::UniqueFile OpenLock(const std::wstring& path, DWORD disposition) {
    return win::UniqueFile(::CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, disposition,
                                         FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
}

std::vector<std::wstring> FilesLike(const std::wstring& pattern) {
    std::vector<std::wstring> names;
    WIN32_FIND_DATAW found{};
    const HANDLE search = ::FindFirstFileW(pattern.c_str(), &found);
    if (search == INVALID_HANDLE_VALUE) return names;
    do {
        names.emplace_back(found.cFileName);
    } while (::FindNextFileW(search, &found));
    ::FindClose(search);
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

// The writing of one copy, on a thread of the system's pool. It owns all that it works with.
class Recovery::Writing {
 public:
    // Null when no thread can be had.
    static std::unique_ptr<Writing> start(const frmChild& page, std::wstring path) {
        auto writing = std::make_unique<Writing>();
        writing->page_ = page.id();
        writing->copy_ = CopyOf(page);
        writing->path_ = std::move(path);
        writing->done_.reset(::CreateEventW(nullptr, TRUE, FALSE, nullptr));
        writing->started_ =
            writing->done_ && ::QueueUserWorkItem(run, writing.get(), WT_EXECUTELONGFUNCTION) != FALSE;
        return writing->started_ ? std::move(writing) : nullptr;
    }
    DocumentId page() const { return page_; }
    bool isDone() const { return ::WaitForSingleObject(done_.get(), 0) == WAIT_OBJECT_0; }
    bool hasFailed() const {
        ::WaitForSingleObject(done_.get(), INFINITE);
        return failed_;
    }
    ~Writing() {
        if (started_) ::WaitForSingleObject(done_.get(), INFINITE);
    }

 private:
    static DWORD WINAPI run(void* self) {
        auto& writing = *static_cast<Writing*>(self);
        try {
            writing.failed_ = !ReplaceFileContents(win::ToUtf8(writing.path_), Pack(writing.copy_));
        } catch (const std::exception&) {
            // The old copy stays.
        }
        ::SetEvent(writing.done_.get());
        return 0;
    }

    DocumentId page_ = 0;
    RecoveryCopy copy_;
    std::wstring path_;
    win::UniqueHandle done_;
    bool failed_ = true;
    bool started_ = false;
};

Recovery::Recovery(std::string folder) : folder_(std::move(folder)) {}

Recovery::~Recovery() {
    deleteOld();
}

std::wstring Recovery::copyPath(DocumentId page) const {
    return name_ + L'-' + win::ToWide(std::to_string(page)) + kCopyEnding;
}

// The lock says that this program's copies are in use. Process numbers come again: what an earlier program of
// the same number has left must not be overwritten.
bool Recovery::lock() {
    if (lock_) return true;
    DWORD number = ::GetCurrentProcessId();
    for (int tries = 0; tries < 100; ++tries, number += ::GetTickCount() | 1U) {
        name_ = win::ToWide(folder_) + kPrefix + win::ToWide(std::to_string(number));
        lock_ = OpenLock(name_ + kLockEnding, CREATE_NEW);
        if (lock_ && FilesLike(name_ + L"-*" + kCopyEnding).empty()) return true;
        if (!lock_ && ::GetLastError() != ERROR_FILE_EXISTS && ::GetLastError() != ERROR_SHARING_VIOLATION)
            break;
        lock_.reset();
    }
    name_.clear();
    return false;
}

void Recovery::awaitWriting() {
    writing_.reset();
}

bool Recovery::write(const frmChild& page) {
    awaitWriting();
    try {
        if (!lock()) return false;
        std::wstring& file = copies_[page.id()];
        if (file.empty()) file = copyPath(page.id());
        std::erase(toDelete_, file);
        writing_ = Writing::start(page, file);
    } catch (const std::exception&) {
        // Without memory for a new copy the old one stays.
    }
    return writing_ != nullptr;
}

void Recovery::noteChange(DocumentId page, DWORD now) {
    due_.try_emplace(page, Due{now, now}).first->second.last = now;
}

bool Recovery::isAnyDue() const {
    return !due_.empty() || writing_;
}

void Recovery::writeDue(MainWindow& main, DWORD now) {
    if (writing_ && !writing_->isDone()) return;
    // A write that has failed may succeed later.
    if (writing_ && writing_->hasFailed()) noteChange(writing_->page(), now);
    awaitWriting();
    const auto due = std::find_if(due_.begin(), due_.end(), [now](const auto& entry) {
        return now - entry.second.last >= kAfterLast || now - entry.second.first >= kAfterFirst;
    });
    if (due == due_.end()) return;
    const DocumentId id = due->first;
    const frmChild* page = main.find(id);
    due_.erase(due);
    if (page && page->isChanged() && !write(*page)) noteChange(id, now);
}

void Recovery::writeNow(const frmChild& page) {
    if (page.isChanged() && write(page) && !writing_->hasFailed()) due_.erase(page.id());
    awaitWriting();
}

void Recovery::remove(DocumentId page) {
    due_.erase(page);
    const auto copy = copies_.find(page);
    if (copy == copies_.end()) return;
    awaitWriting();
    toDelete_.push_back(std::move(copy->second));
    copies_.erase(copy);
    deleteOld();
}

void Recovery::deleteOld() {
    std::erase_if(toDelete_, [](const std::wstring& file) {
        return ::DeleteFileW(file.c_str()) || ::GetLastError() == ERROR_FILE_NOT_FOUND;
    });
}

void Recovery::leave(DocumentId page) {
    awaitWriting();
    due_.erase(page);
    copies_.erase(page);
}

std::vector<Recovery::Found> Recovery::takeOver() {
    std::vector<Found> found;
    const std::wstring folder = win::ToWide(folder_);
    const std::wstring ending = kCopyEnding;
    for (const std::wstring& name : FilesLike(folder + kPrefix + L"*" + ending)) {
        const std::wstring owner = name.substr(0, name.find(L'-', std::size(kPrefix) - 1));
        if (folder + owner == name_) continue;
        // While this is held no other program takes over that program's copies.
        const win::UniqueFile ownerLock = OpenLock(folder + owner + kLockEnding, OPEN_ALWAYS);
        if (!ownerLock) continue;
        auto copy = ReadCopy(folder + name);
        if (!copy || !lock()) continue;
        const std::wstring mine = name_ + L"-back" + win::ToWide(std::to_string(found.size())) + ending;
        if (::MoveFileExW((folder + name).c_str(), mine.c_str(), 0))
            found.push_back({std::move(*copy), mine});
    }
    return found;
}

void Recovery::adopt(const frmChild& page, const std::wstring& file) {
    copies_[page.id()] = file;
}

}  // namespace files
