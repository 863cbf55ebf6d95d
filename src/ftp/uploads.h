// Sending files to the directory that the FTP window shows.
#pragma once

#include <string>
#include <vector>

class frmUpload;

namespace ftp {

// Files that were dropped on the list, by their paths; none when something else was.
void UploadDropped(frmUpload& form, const std::vector<std::string>& files);

// The file of the active document, as it is on the disk.
void UploadCurrentDocument(frmUpload& form);

}  // namespace ftp
