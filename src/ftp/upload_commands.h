// The Upload menu.
#pragma once

#include "main_window.h"

namespace ftp {

void OnUploadFile(MainWindow& main, int);
void OnUploadSites(MainWindow& main, int index);
void OnUploadSite(MainWindow& main, int);

}  // namespace ftp
