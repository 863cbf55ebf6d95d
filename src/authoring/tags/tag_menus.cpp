#include "authoring/tags/tag_menus.h"

#include <iterator>

#include "authoring/tags/core/modScripts.h"
#include "document/edit_commands.h"
#include "win/input_box.h"
#include "win/message_box.h"
#include "win/unicode.h"

namespace authoring {
namespace {

constexpr int kFontWithSize = 1;

// An empty fragment would delete what is selected.
void InsertUnlessEmpty(MainWindow& main, std::string_view fragment) {
    if (!fragment.empty()) document::InsertAtCaret(main, fragment);
}

void InsertFontSize(MainWindow& main) {
    const std::string reply =
        win::AskText(main.mainHwnd(), "Type in  number below between 1 and 7.", "Font Size");
    if (reply.empty()) {
        document::InsertAtCaret(main, "");
    } else if (IsFontSizeReply(reply)) {
        document::InsertAtCaret(main, FontSizeFragment(reply));
    } else {
        win::ShowMessage(main.mainHwnd(),
                         "You will have to try again.\r\nRemember to enter a number between 1 and 7.",
                         "Size out of range...", MB_ICONINFORMATION);
    }
}

// The name as it stands alone. Some languages inflect it within a date, but the date's pattern is English
// anyway.
std::string MonthName(int month) {
    wchar_t name[80];
    const int size =
        ::GetLocaleInfoW(LOCALE_USER_DEFAULT, static_cast<LCTYPE>(LOCALE_SMONTHNAME1 + month - 1), name,
                         static_cast<int>(std::size(name)));
    return size > 0 ? win::ToUtf8(name) : std::string();
}

}  // namespace

void InsertTag(MainWindow& main, TagMenu menu, int index) {
    InsertUnlessEmpty(main, TagFragment(menu, index));
}

void OnTagsFont(MainWindow& main, int index) {
    if (index == kFontWithSize) {
        InsertFontSize(main);
    } else {
        InsertTag(main, TagMenu::Font, index);
    }
}

void OnTagsDate(MainWindow& main, int) {
    SYSTEMTIME today{};
    ::GetLocalTime(&today);
    document::InsertAtCaret(main, DateFragment(MonthName(today.wMonth), today.wDay, today.wYear));
}

void OnScriptTags(MainWindow& main, int index) {
    InsertUnlessEmpty(main, modScripts::ScriptBlock(index));
}

void OnScriptDrops(MainWindow& main, int index) {
    InsertUnlessEmpty(main, modScripts::MakeDropMenu(modScripts::DropMenuKeyword(index)));
}

}  // namespace authoring
