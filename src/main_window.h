// What the features need of the main window.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "menu_ids.h"
#include "win/menu_bar.h"

class frmChild;

// Names a document for as long as the program runs, also once its window is closed.
using DocumentId = std::uint32_t;

class MainWindow {
 public:
    virtual HWND mainHwnd() const = 0;  // null once the window is destroyed
    virtual HWND mdiClient() const = 0;
    virtual win::MenuBar& menu() = 0;
    virtual const win::MenuBar& menu() const = 0;
    virtual const std::string& temporaryFolder() const = 0;  // ends in a backslash

    virtual frmChild* activeDocument() const = 0;  // null when no document is open
    virtual const std::vector<frmChild*>& documents() const = 0;
    virtual frmChild* find(DocumentId id) const = 0;  // null once its window is closed

    // The running number of the next new document, from 1; it never comes back.
    virtual long nextUntitled() = 0;

    // lblResults, the one-line result of the last action.
    virtual void showResult(const std::string& text) = 0;
    // lblLineNo, "Current Line No: " and the line, counted from 1.
    virtual void showLine(long line) = 0;
    // Enables or disables all that needs an open document.
    virtual void enableNew(bool state) = 0;
    virtual bool isEnabled(Command command) const = 0;

    // Runs a command as if its menu item had been chosen, once the current message is handled.
    virtual void postCommand(Command command) = 0;
    // Is called before the program closes, and keeps it open by false. An empty function takes it back.
    virtual void askBeforeClosing(std::function<bool()> mayClose) = 0;
    // The save-as dialog for this document, active or not.
    virtual void saveAs(frmChild& document) = 0;

    // Called by a document about itself.
    virtual DocumentId documentCreated(frmChild& document) = 0;
    virtual void documentClosed(frmChild& document) = 0;
    virtual void documentRenamed(frmChild& document) = 0;
    virtual void documentChanged(frmChild& document) = 0;
    virtual void documentSaved(frmChild& document) = 0;
    // Brings its recovery copy up to date.
    virtual void keepCopy(frmChild& document) = 0;
    virtual void documentActivated(frmChild& document) = 0;
    // Files were dropped onto its page, in this order; none when it was something else. Reads them at once,
    // because their owner may delete them afterwards. The function that is returned does the rest.
    virtual std::function<void()> filesDropped(DocumentId document,
                                               const std::vector<std::string>& paths) = 0;

 protected:
    ~MainWindow() = default;
};
