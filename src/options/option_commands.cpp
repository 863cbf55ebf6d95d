#include "options/option_commands.h"

#include <array>

#include "document/frmChild.h"
#include "options/frmTxtFonts.h"
#include "settings/CRegSettings.h"
#include "win/message_loop.h"

namespace options {
namespace {

constexpr auto kTypes = std::to_array<const char*>({".htm", ".txt", ".asp", ""});
constexpr int kAsp = 2;

constexpr int kShortestTab = 3;
constexpr int kTabLengths = 6;

std::string Stored(const char* section, const char* key) {
    return CRegSettings().GetRegSetting(section, key);
}

void CheckType(MainWindow& main, Command list, const std::string& stored) {
    for (std::size_t i = 0; i < kTypes.size(); ++i) {
        main.menu().check(static_cast<Command>(list + i), stored == kTypes[i]);
    }
}

void StoreType(MainWindow& main, const char* key, int index) {
    CRegSettings().SaveRegSetting("Files", key, kTypes[static_cast<std::size_t>(index)]);
    ShowStored(main);
}

}  // namespace

void OnDefaultOpen(MainWindow& main, int index) {
    // The registry takes both spellings for one name; what was first written there keeps its own.
    StoreType(main, index == kAsp ? "default_OPen" : "default_Open", index);
}

void OnDefaultSave(MainWindow& main, int index) {
    StoreType(main, "default_Save", index);
}

void OnTabLength(MainWindow& main, int index) {
    const std::string tabText(static_cast<std::size_t>(index + kShortestTab), ' ');
    CRegSettings().SaveRegSetting("Tabs", "Length", tabText);
    if (frmChild* page = main.activeDocument()) page->setTab(tabText);
    ShowStored(main);
}

void OnWordWrap(MainWindow& main, int) {
    const frmChild* page = main.activeDocument();
    if (!page) return;
    const win::WaitCursor wait;
    document::RichEdit& pad = page->txtPad();
    pad.setWordWrap(!pad.wordWrap());
    ::SendMessageW(pad.hwnd(), EM_SCROLLCARET, 0, 0);
    page->showLine();
    ShowWordWrap(main, page);
}

void OnFonts(MainWindow& main, int) {
    frmTxtFonts(main).showModal(main.mainHwnd());
}

void ShowStored(MainWindow& main) {
    CheckType(main, mnuOptDefOpenList, Stored("Files", "default_Open"));
    CheckType(main, mnuOptDefSaveList, Stored("Files", "default_Save"));
    const std::string tabText = CRegSettings().GetRegSetting("Tabs", "Length", frmChild::kDefaultTab);
    for (int i = 0; i < kTabLengths; ++i) {
        main.menu().check(static_cast<Command>(mnuOptTabsList + i),
                          tabText.size() == static_cast<std::size_t>(i + kShortestTab));
    }
}

void ShowWordWrap(MainWindow& main, const frmChild* page) {
    main.menu().check(mnuOptWW, page && page->txtPad().wordWrap());
}

}  // namespace options
