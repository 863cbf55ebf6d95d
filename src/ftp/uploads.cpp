#include "ftp/uploads.h"

#include <exception>

#include "document/frmChild.h"
#include "files/modPubFuncs.h"
#include "ftp/core/remote_path.h"
#include "ftp/frmUpload.h"
#include "win/message_loop.h"

namespace ftp {
namespace {

constexpr char kUploading[] = "Uploading.....";

std::string NameOf(const std::string& path) {
    return std::string(modPubFuncs::FileNameFromPath(path));
}

bool UploadFile(frmUpload& form, FtpSession& session, const std::string& path) {
    const std::string name = NameOf(path);
    if (session.tell(RemoteCommand::put, path, JoinRemote(form.currentDirectory(), name),
                     form.transferType(name)))
        return true;
    if (form.isThere()) form.say("There was a problem uploading " + name + ".", "UPLOAD DIFFICULTY");
    return false;
}

// False when the window has gone or a file has failed.
bool UploadEach(frmUpload& form, FtpSession& session, const std::vector<std::string>& files) {
    bool allDone = true;
    for (const std::string& path : files) {
        allDone = UploadFile(form, session, path) && allDone;
        win::RunPending();
        if (!form.isThere()) return false;
    }
    return allDone;
}

void UploadAll(frmUpload& form, const std::vector<std::string>& files) {
    form.work(kUploading, [&](FtpSession& session) {
        if (UploadEach(form, session, files)) {
            form.say(files.size() == 1 ? "Upload of " + NameOf(files.front()) + " Complete"
                                       : "Uploading Completed.");
        }
        if (form.isThere()) form.ListRemote();
    });
}

// Pages are text, so this one goes as text whatever the transfer mode says.
void UploadDocument(frmUpload& form, const std::string& path) {
    const std::string remote = JoinRemote(form.currentDirectory(), NameOf(path));
    const bool done = form.change(kUploading, RemoteCommand::put, path, remote);
    if (!form.isThere()) return;
    if (done) {
        form.showResult("Upload Complete");
        form.say("Upload Complete");
    } else {
        form.say("Unable to upload the current file.", "UPLOAD FAILURE");
    }
}

}  // namespace

void UploadDropped(frmUpload& form, const std::vector<std::string>& files) {
    try {
        if (files.empty()) {
            form.say("Unknown Object", "Quillon Note:");
        } else {
            UploadAll(form, files);
        }
    } catch (const std::exception&) {
        if (form.isThere()) form.say("Could not upload files.");
    }
}

void UploadCurrentDocument(frmUpload& form) {
    try {
        const frmChild* page = form.main().activeDocument();
        const std::string path = page ? page->Tag() : std::string();
        if (!page) {
            form.say("No file is currently open.", "NO FILE OPEN");
        } else if (!modPubFuncs::FileExists(path)) {
            form.say("The Current page SHOULD BE SAVED before uploading.", "PRECAUTION");
        } else {
            UploadDocument(form, path);
        }
    } catch (const std::exception&) {
        if (form.isThere()) form.say("Error uploading", "ERROR");
    }
}

}  // namespace ftp
