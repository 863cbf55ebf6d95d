#include "ftp/remote_commands.h"

#include <exception>
#include <optional>
#include <utility>

#include "document/frmChild.h"
#include "document/system_code_pages.h"
#include "files/modOpen.h"
#include "files/modPubFuncs.h"
#include "forms/frmUpload.h"
#include "ftp/core/server_text.h"
#include "ftp/frmUpload.h"
#include "ftp/remote_directory.h"
#include "win/input_box.h"

namespace ftp {
namespace {

constexpr char kWorking[] = "PROCESSING REQUEST...";
constexpr char kUploading[] = "Uploading.....";
constexpr std::size_t kNamesShown = 5;

std::string CannotBeSent(const std::string& name) {
    return "The server cannot be given the name " + name + ".\r\nChoose another name, of plain letters.";
}

// The name as it goes to the server; tells the user when it cannot be sent.
std::optional<std::string> NameForServer(const frmUpload& form, const std::string& typed, const char* title) {
    std::optional<std::string> name = SentName(typed, document::SystemCodePages());
    if (!name) form.say(CannotBeSent(typed), title, MB_ICONEXCLAMATION);
    return name;
}

void AskAndDeleteDirectory(frmUpload& form, const RemoteFile& directory) {
    const std::string& line = directory.line;
    const std::string question = "Are you sure you want to delete the folder\r\n" + line + " ?";
    if (form.say(question, "DELETION CONFIRMATION", MB_YESNO) != IDYES || !form.isThere()) return;
    const bool deleted = form.change(
        kWorking, [name = directory.name](FtpSession& session) { return session.removeDirectory(name); });
    if (!form.isThere()) return;
    if (deleted) {
        form.say("The Directory:\r\n[ " + line + " ]\r\nwas successfully Deleted.");
    } else {
        form.say(
            "Could not delete file\r\n"
            "A directory must be not contain any files in order to delete...\r\n"
            "Are you sure this folder is empty?",
            "FAILED TO DELETE");
    }
}

void DeleteDirectory(frmUpload& form, const RemoteFile& directory) {
    try {
        AskAndDeleteDirectory(form, directory);
    } catch (const std::exception&) {
        if (form.isThere())
            form.say("There was a problem deleting " + directory.line + ".", "DELETE DIFFICULTY");
    }
}

bool ChangeDirectory(frmUpload& form, const std::string& directory) {
    return form.change(kWorking,
                       [directory](FtpSession& session) { return session.changeDirectory(directory); });
}

void MoveUp(frmUpload& form) {
    const std::optional<std::string> above = form.session().directoryAbove();
    if (!above) return;
    const bool moved = ChangeDirectory(form, *above);
    if (form.isThere() && !moved) form.say("Cannot find it!", "Quillon Note:");
}

void MakeDirectory(frmUpload& form) {
    const std::string typed = win::AskText(form.hwnd(), "Enter a name for the New Directory", "NEW FOLDER");
    if (typed.empty() || !form.isThere()) return;
    const std::optional<std::string> name = NameForServer(form, typed, "DIRECTORY NOT MADE");
    if (!name || !form.isThere()) return;
    const bool made =
        form.change(kWorking, [name = *name](FtpSession& session) { return session.createDirectory(name); });
    if (!form.isThere()) return;
    if (made) {
        form.select(*name);
        form.say("New Directory [ " + typed + " ] successfully created.", "CONFIRMATION");
    } else {
        form.say("Could not create the Directory.", "DIRECTORY NOT MADE", MB_ICONEXCLAMATION);
    }
}

void CheckFileSize(frmUpload& form, const RemoteFile& file) {
    const auto size =
        form.work(kWorking, [name = file.name](FtpSession& session) { return SizeOf(session, name); });
    if (!form.isThere()) return;
    if (size && *size) {
        form.say("Approximately " + std::to_string(**size) + " Bytes",
                 ("SIZE of " + file.line + " is:").c_str());
    } else {
        form.say("Could not retrieve requested information.");
    }
}

void DownloadFile(frmUpload& form, const RemoteFile& file) {
    const std::string path = modOpen::ChooseSavePath(form.main(), form.hwnd(), ProposedLocalName(file.line));
    if (path.empty() || !form.isThere()) return;
    const TransferType type = ChooseTransferType(form.transferMode(), file.name);
    const auto done = form.work("Downloading.....", [name = file.name, path, type](FtpSession& session) {
        return Download(session, name, path, type);
    });
    if (!form.isThere()) return;
    if (done && *done) {
        form.say("Download of " + file.line + " is complete.", "TASK COMPLETE", MB_ICONINFORMATION);
    } else {
        form.say("Unable to download " + file.line + ".", "DOWNLOAD FAILURE", MB_ICONEXCLAMATION);
    }
}

void RenameFile(frmUpload& form, const RemoteFile& file) {
    const std::string typed = win::AskText(form.hwnd(), "Enter new file name below", "FILENAME CHANGE");
    if (typed.empty() || !form.isThere()) return;
    const std::optional<std::string> name = NameForServer(form, typed, "NET GLITCH");
    if (!name || !form.isThere()) return;
    const bool renamed = form.change(
        kWorking, [from = file.name, to = *name](FtpSession& session) { return session.rename(from, to); });
    if (!form.isThere()) return;
    if (renamed) {
        form.select(*name);
        form.say("File has been Renamed", "CONFIRMATION");
    } else {
        form.say("Unable to rename file...", "NET GLITCH", MB_ICONEXCLAMATION);
    }
}

void DeleteRemoteFile(frmUpload& form, const RemoteFile& file) {
    const std::string question = "Are you sure you want to delete " + file.line + " ?";
    if (form.say(question, "DELETION CONFIRMATION", MB_YESNO) != IDYES || !form.isThere()) return;
    const bool deleted =
        form.change(kWorking, [name = file.name](FtpSession& session) { return session.removeFile(name); });
    if (!form.isThere()) return;
    if (deleted) {
        form.say("The File [ " + file.line + " ] was Deleted.", "DELETION CONFIRMATION");
    } else {
        form.say("Could not delete file", "FAILED TO DELETE", MB_ICONEXCLAMATION);
    }
}

std::string Enumerated(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < names.size() && i < kNamesShown; ++i)
        text.append(text.empty() ? "" : ", ").append(names[i]);
    if (names.size() > kNamesShown) text += " and " + std::to_string(names.size() - kNamesShown) + " more";
    return text;
}

void TellUnsent(const frmUpload& form, const Unsent& unsent) {
    std::string text;
    if (!unsent.failed.empty()) text = "There was a problem uploading " + Enumerated(unsent.failed) + ".";
    if (!unsent.unnameable.empty())
        text.append(text.empty() ? "" : "\r\n\r\n").append(CannotBeSent(Enumerated(unsent.unnameable)));
    form.say(text, "UPLOAD DIFFICULTY");
}

void UploadAll(frmUpload& form, std::vector<LocalFile> files) {
    const frmUpload::Busy busy(form, kUploading);
    const std::string done =
        files.size() == 1 ? "Upload of " + files.front().name() + " Complete" : "Uploading Completed.";
    for (LocalFile& file : files) file.type = ChooseTransferType(form.transferMode(), file.name());
    const std::optional<Unsent> unsent = form.send(std::move(files));
    if (!unsent) return;
    if (unsent->none()) {
        form.say(done);
    } else {
        TellUnsent(form, *unsent);
    }
    if (form.isThere()) form.ListRemote();
}

// Pages are text, so this one goes as text whatever the transfer mode says.
void UploadPage(frmUpload& form, const std::string& path) {
    const frmUpload::Busy busy(form, kUploading);
    const std::optional<Unsent> unsent = form.send(OpenFiles({path}));
    if (!unsent) return;
    if (!unsent->unnameable.empty()) {
        form.say(CannotBeSent(unsent->unnameable.front()), "UPLOAD FAILURE");
    } else if (!unsent->none()) {
        form.say("Unable to upload the current file.", "UPLOAD FAILURE");
    } else {
        form.ListRemote();
        if (!form.isThere()) return;
        form.showResult("Upload Complete");
        form.say("Upload Complete");
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
            UploadPage(form, path);
        }
    } catch (const std::exception&) {
        if (form.isThere()) form.say("Error uploading", "ERROR");
    }
}

// The menu of a line. The entry is a copy: listing anew changes what the list holds.
void RunMenu(frmUpload& form, int id, const RemoteFile entry) {
    switch (id) {
        case mnuRClist:
            return CheckFileSize(form, entry);
        case mnuRClist + 2:
            return DownloadFile(form, entry);
        case mnuRClist + 3:
            return RenameFile(form, entry);
        case mnuRClist + 5:
            return DeleteRemoteFile(form, entry);
        case mnuDirDelete:
            return DeleteDirectory(form, entry);
        default:
            return;
    }
}

}  // namespace

void EnterDirectory(frmUpload& form, const RemoteFile* selected) {
    if (!selected || !OpensOnDoubleClick(selected->line)) return;
    const bool entered = ChangeDirectory(form, std::string(selected->name));
    if (form.isThere() && !entered) form.say("Cannot access Directory!", "Quillon Note:");
}

void UploadDropped(frmUpload& form, std::vector<LocalFile> files) {
    try {
        if (files.empty()) {
            form.say("Unknown Object", "Quillon Note:");
        } else {
            UploadAll(form, std::move(files));
        }
    } catch (const std::exception&) {
        if (form.isThere()) form.say("Could not upload files.");
    }
}

void RunCommand(frmUpload& form, int id, const RemoteFile* selected) {
    switch (id) {
        case cmdUp:
            return UploadCurrentDocument(form);
        case cmdRefresh:
            return form.ListRemote();
        case cmdUpDir:
            return MoveUp(form);
        case cmdMakeDir:
            return MakeDirectory(form);
        default:
            if (selected) RunMenu(form, id, *selected);
    }
}

}  // namespace ftp
