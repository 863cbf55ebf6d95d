// The main window: an MDI frame with the menu, the toolbar, the documents and the status strip.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "files/recovery.h"
#include "main_window.h"
#include "shell/menu_pictures.h"
#include "shell/status_strip.h"
#include "shell/toolbar.h"
#include "win/window.h"

class frmNotePad : public win::Window, public MainWindow {
 public:
    // Creates the window, not shown yet.
    static frmNotePad& open();
    // Opens the changed pages that a program has left which did not end by itself, behind the active page.
    void restorePages();

    HWND mainHwnd() const override { return hwnd(); }
    HWND mdiClient() const override { return mdiClient_; }
    win::MenuBar& menu() override { return menu_; }
    const win::MenuBar& menu() const override { return menu_; }
    const std::string& temporaryFolder() const override { return temporaryFolder_; }
    frmChild* activeDocument() const override;
    const std::vector<frmChild*>& documents() const override { return documents_; }
    frmChild* find(DocumentId id) const override;
    long nextUntitled() override { return ++untitled_; }
    void showResult(const std::string& text) override;
    void showLine(long line) override;
    void enableNew(bool state) override;
    bool isEnabled(Command command) const override;
    void postCommand(Command command) override;
    void askBeforeClosing(std::function<bool()> mayClose) override { mayClose_ = std::move(mayClose); }
    void saveAs(frmChild& document) override;
    DocumentId documentCreated(frmChild& document) override;
    void documentClosed(frmChild& document) override;
    void documentRenamed(frmChild& document) override;
    void documentChanged(frmChild& document) override;
    void documentSaved(frmChild& document) override;
    void keepCopy(frmChild& document) override;
    void documentActivated(frmChild& document) override;
    std::function<void()> filesDropped(DocumentId document, const std::vector<std::string>& paths) override;

 private:
    frmNotePad();
    ~frmNotePad() override = default;

    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT defaultHandling(UINT message, WPARAM wParam, LPARAM lParam) override;
    bool onPreTranslate(MSG& message) override;
    void createParts();
    void layOut() const;
    void followSystem(UINT message, WPARAM wParam, LPARAM lParam);
    void run(Command command);
    void clickTool(int index);
    void refreshWindowList();
    void restoreDocuments() const;
    void writeDueCopies();
    void writeAllCopies();
    void close();
    bool closeDocuments();

    win::MenuBar menu_;
    shell::MenuPictures menuPictures_;
    win::UniqueAccelerators accelerators_;
    std::string temporaryFolder_;
    files::Recovery recovery_;
    HWND mdiClient_ = nullptr;
    shell::Toolbar* Picture2_ = nullptr;
    shell::StatusStrip* Picture3_ = nullptr;
    std::vector<frmChild*> documents_;
    DocumentId lastId_ = 0;
    long untitled_ = 0;
    std::function<bool()> mayClose_;
    bool closing_ = false;
};
