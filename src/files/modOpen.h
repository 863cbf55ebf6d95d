// The open and save dialogs, and what they do with the page.
#pragma once

#include <string>

#include "main_window.h"

class frmChild;

namespace modOpen {

// The open dialog (true), or the save-as dialog for the active document (false).
void OpenOrSaveAs(MainWindow& main, bool isOpen);
// The save-as dialog for a document that need not be the active one.
void SaveAs(MainWindow& main, frmChild& document);
// Saves the active document to its own file; one that has no file gets the save-as dialog.
void SaveActive(MainWindow& main);

// Writes the document's lines, each followed by CR LF, and marks it unchanged. False when the file could not
// be written: file and page are then as before. Waiting messages are handled first.
bool SaveDocument(MainWindow& main, DocumentId document, const std::string& path);

// Asks where to store a download; empty when the user cancels.
std::string ChooseSavePath(MainWindow& main, HWND owner, const std::string& proposedName);

void OnFileOpen(MainWindow& main, int);
void OnFileSave(MainWindow& main, int);
void OnFileSaveAs(MainWindow& main, int);

}  // namespace modOpen
