#include "ftp/remote_commands.h"

#include <exception>

#include "files/modOpen.h"
#include "forms/frmUpload.h"
#include "ftp/core/local_name.h"
#include "ftp/core/remote_path.h"
#include "ftp/download.h"
#include "ftp/frmUpload.h"
#include "ftp/uploads.h"
#include "win/input_box.h"

namespace ftp {
namespace {

constexpr char kWorking[] = "PROCESSING REQUEST...";

void AskAndDeleteDirectory(frmUpload& form, const std::string& line) {
    const std::string question = "Are you sure you want to delete the folder\r\n" + line + " ?";
    if (form.say(question, "DELETION CONFIRMATION", MB_YESNO) != IDYES || !form.isThere()) return;
    const std::string name(NameOfLine(line));
    const bool deleted = form.change(kWorking, RemoteCommand::removeDirectory, name);
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

void MoveUp(frmUpload& form) {
    const std::optional<std::string> above = form.directoryAbove();
    if (!above) return;
    const bool moved = form.change(kWorking, RemoteCommand::changeDirectory, *above);
    if (form.isThere() && !moved) form.say("Cannot find it!", "Quillon Note:");
}

void MakeDirectory(frmUpload& form) {
    const std::string name = win::AskText(form.hwnd(), "Enter a name for the New Directory", "NEW FOLDER");
    if (name.empty() || !form.isThere()) return;
    const bool made = form.change(kWorking, RemoteCommand::createDirectory, name);
    if (!form.isThere()) return;
    if (made) {
        form.select(name + "/");
        form.say("New Directory [ " + name + " ] successfully created.", "CONFIRMATION");
    } else {
        form.say("Could not create the Directory.", "DIRECTORY NOT MADE", MB_ICONEXCLAMATION);
    }
}

void CheckFileSize(frmUpload& form, const std::string& line) {
    std::optional<RemoteEntry> entry;
    form.work(kWorking, [&](FtpSession& session) {
        entry = session.findFirst(line);
        session.endFind();
    });
    if (!form.isThere()) return;
    if (entry) {
        form.say("Approximately " + std::to_string(entry->size) + " Bytes",
                 ("SIZE of " + line + " is:").c_str());
    } else {
        form.say("Could not retrieve requested information.");
    }
}

void DownloadFile(frmUpload& form, const std::string& line) {
    const std::string path = modOpen::ChooseSavePath(form.main(), form.hwnd(), ProposedLocalName(line));
    if (path.empty() || !form.isThere()) return;
    bool done = false;
    form.work("Downloading.....",
              [&](FtpSession& session) { done = Download(session, line, path, form.transferType(line)); });
    if (!form.isThere()) return;
    if (done) {
        form.say("Download of " + line + " is complete.", "TASK COMPLETE", MB_ICONINFORMATION);
    } else {
        form.say("Unable to download " + line + ".", "DOWNLOAD FAILURE", MB_ICONEXCLAMATION);
    }
}

void RenameFile(frmUpload& form, const std::string& line) {
    const std::string name = win::AskText(form.hwnd(), "Enter new file name below", "FILENAME CHANGE");
    if (name.empty() || !form.isThere()) return;
    const bool renamed = form.change(kWorking, RemoteCommand::rename, line, name);
    if (!form.isThere()) return;
    if (renamed) {
        form.select(name);
        form.say("File has been Renamed", "CONFIRMATION");
    } else {
        form.say("Unable to rename file...", "NET GLITCH", MB_ICONEXCLAMATION);
    }
}

void DeleteRemoteFile(frmUpload& form, const std::string& line) {
    const std::string question = "Are you sure you want to delete " + line + " ?";
    if (form.say(question, "DELETION CONFIRMATION", MB_YESNO) != IDYES || !form.isThere()) return;
    const bool deleted = form.change(kWorking, RemoteCommand::removeFile, line);
    if (!form.isThere()) return;
    if (deleted) {
        form.say("The File [ " + line + " ] was Deleted.", "DELETION CONFIRMATION");
    } else {
        form.say("Could not delete file", "FAILED TO DELETE", MB_ICONEXCLAMATION);
    }
}

void DeleteDirectory(frmUpload& form, const std::string& line) {
    try {
        AskAndDeleteDirectory(form, line);
    } catch (const std::exception&) {
        if (form.isThere()) form.say("There was a problem deleting " + line + ".", "DELETE DIFFICULTY");
    }
}

// The menu of a line.
bool RunMenu(frmUpload& form, int id, const std::string& line) {
    switch (id) {
        case mnuRClist:
            CheckFileSize(form, line);
            return true;
        case mnuRClist + 2:
            DownloadFile(form, line);
            return true;
        case mnuRClist + 3:
            RenameFile(form, line);
            return true;
        case mnuRClist + 5:
            DeleteRemoteFile(form, line);
            return true;
        case mnuDirDelete:
            DeleteDirectory(form, line);
            return true;
        default:
            return false;
    }
}

}  // namespace

void EnterDirectory(frmUpload& form, const std::string& line) {
    if (line.empty() || !OpensOnDoubleClick(line)) return;
    const std::string name(NameOfLine(line));
    const bool entered = form.change(kWorking, RemoteCommand::changeDirectory, name);
    if (form.isThere() && !entered) form.say("Cannot access Directory!", "Quillon Note:");
}

bool RunCommand(frmUpload& form, int id, const std::string& line) {
    switch (id) {
        case cmdUp:
            UploadCurrentDocument(form);
            return true;
        case cmdRefresh:
            form.ListRemote();
            return true;
        case cmdUpDir:
            MoveUp(form);
            return true;
        case cmdMakeDir:
            MakeDirectory(form);
            return true;
        default:
            return !line.empty() && RunMenu(form, id, line);
    }
}

}  // namespace ftp
