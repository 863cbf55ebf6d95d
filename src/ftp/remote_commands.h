// What the FTP window does with the files and directories that it shows. Each command asks what it needs to
// know, does its work, lists the directory anew and says what came of it.
#pragma once

#include <vector>

#include "ftp/core/remote_names.h"
#include "ftp/transfers.h"

class frmUpload;

namespace ftp {

// `selected` is an entry of the list; null opens nothing.
void EnterDirectory(frmUpload& form, const RemoteFile* selected);

// Files that were dropped on the list; none when something else was.
void UploadDropped(frmUpload& form, std::vector<LocalFile> files);

// Runs a button or a menu item of the window. `selected` is null when no line is; a command that needs one
// does nothing then.
void RunCommand(frmUpload& form, int id, const RemoteFile* selected);

}  // namespace ftp
