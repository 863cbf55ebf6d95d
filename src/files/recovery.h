// Copies of changed pages in the folder of temporary files, from which they come back when the program has
// not ended by itself.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "files/core/recovery_copy.h"
#include "main_window.h"
#include "win/unique.h"

namespace files {

// Keeps the copies of one running program. Failures do not throw: a full disk costs the copy, not the page.
class Recovery {
 public:
    // `folder` ends in a backslash.
    explicit Recovery(std::string folder);
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;
    ~Recovery();

    // The page has been edited; `now` is GetTickCount(), here and below.
    void noteChange(DocumentId page, DWORD now);
    bool isAnyDue() const;
    // Writes the copies that are due: some seconds after the last change, half a minute after the first one
    // at the latest, and again after a write that failed. Another thread writes the file, so that this takes
    // no longer than reading the page.
    void writeDue(MainWindow& main, DWORD now);
    // Brings the page's copy up to date; returns when it is written.
    void writeNow(const frmChild& page);
    // The page has been saved or closed.
    void remove(DocumentId page);
    // The page is being closed, and its copy stays for the next start.
    void leave(DocumentId page);

    // Takes over the copies left by programs that no longer run. Pass the file of each to adopt() with the
    // page that was made of it.
    struct Found {
        RecoveryCopy copy;
        std::wstring file;
    };
    std::vector<Found> takeOver();
    void adopt(const frmChild& page, const std::wstring& file);

 private:
    struct Due {
        DWORD first = 0;  // GetTickCount() of the first change that no copy holds
        DWORD last = 0;
    };
    class Writing;

    std::wstring copyPath(DocumentId page) const;
    bool lock();
    bool write(const frmChild& page);
    void awaitWriting();
    void deleteOld();

    std::string folder_;
    std::wstring name_;  // of this program's files, up to the page's number; empty until it has written any
    win::UniqueFile lock_;  // held as long as the program runs, and deleted by the system with its end
    std::map<DocumentId, Due> due_;
    std::map<DocumentId, std::wstring> copies_;
    std::vector<std::wstring> toDelete_;  // no longer needed, but held by another program
    std::unique_ptr<Writing> writing_;
};

}  // namespace files
