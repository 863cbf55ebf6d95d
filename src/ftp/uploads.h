// Sending files to the directory that the FTP window shows.
#pragma once

#include <optional>

#include "win/drop_target.h"

class frmUpload;

namespace ftp {

// Files that were dropped on the list; nothing when something else was.
void UploadDropped(frmUpload& form, const std::optional<win::DroppedFiles>& files);

// The file of the active document, as it is on the disk.
void UploadCurrentDocument(frmUpload& form);

}  // namespace ftp
