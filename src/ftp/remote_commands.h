// What the FTP window does with the files and directories that it shows. Each command asks what it needs to
// know, does its work, lists the directory anew and says what came of it.
#pragma once

#include <string>

class frmUpload;

namespace ftp {

void EnterDirectory(frmUpload& form, const std::string& line);
void MoveUp(frmUpload& form);
void MakeDirectory(frmUpload& form);
// `line` is the selected line of the list, that of a directory with its "/".
void CheckFileSize(frmUpload& form, const std::string& line);
void DownloadFile(frmUpload& form, const std::string& line);
void RenameFile(frmUpload& form, const std::string& line);
void DeleteRemoteFile(frmUpload& form, const std::string& line);
void DeleteDirectory(frmUpload& form, const std::string& line);

}  // namespace ftp
