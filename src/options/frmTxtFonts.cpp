#include "options/frmTxtFonts.h"

#include "document/core/font_size.h"
#include "document/frmChild.h"
#include "forms/frmTxtFonts.h"
#include "win/message_box.h"
#include "win/message_loop.h"
#include "win/unicode.h"
#include "win/window.h"

namespace {

using document::FontSizeText;
using document::ParseFontSize;

constexpr int kSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};

LRESULT FindRow(HWND combo, const std::string& text) {
    return ::SendMessageW(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                          reinterpret_cast<LPARAM>(win::ToWide(text).c_str()));
}

// The system names a family once for each of its character sets; "@" marks the upright twin of a font for
// vertical text. The list sorts itself.
int CALLBACK AddFont(const LOGFONTW* font, const TEXTMETRICW*, DWORD, LPARAM list) {
    const auto combo = reinterpret_cast<HWND>(list);
    const std::string face = win::ToUtf8(font->lfFaceName);
    if (!face.starts_with('@') && FindRow(combo, face) == CB_ERR) win::AddListRow(combo, face);
    return 1;
}

void AddScreenFonts(HWND combo) {
    LOGFONTW any{};
    any.lfCharSet = DEFAULT_CHARSET;
    const HDC screen = ::GetDC(nullptr);
    ::EnumFontFamiliesExW(screen, &any, AddFont, reinterpret_cast<LPARAM>(combo), 0);
    ::ReleaseDC(nullptr, screen);
}

// False when the list has no such row.
bool SelectText(HWND combo, const std::string& text) {
    const LRESULT row = FindRow(combo, text);
    if (row == CB_ERR) return false;
    ::SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
    return true;
}

}  // namespace

frmTxtFonts::frmTxtFonts(MainWindow& main) : Dialog("frmTxtFonts"), main_(main) {
    const frmChild* page = main.activeDocument();
    if (!page) return;
    page_ = page->id();
    before_ = page->txtPad().font();
}

void frmTxtFonts::fillFonts() const {
    const HWND combo = item(cboFonts);
    AddScreenFonts(combo);
    const std::string face = settings_.GetRegSetting("font preferences", "font_Face", "Arial");
    // A font that is not there any more is still the one that was chosen.
    if (FindRow(combo, face) == CB_ERR) win::AddListRow(combo, face);
    SelectText(combo, face);
}

void frmTxtFonts::fillSizes() const {
    for (const int points : kSizes) win::AddListRow(item(cboSize), std::to_string(points));
    const float stored = ParseFontSize(settings_.GetRegSetting("font preferences", "font_Size"));
    const std::string size = FontSizeText(stored > 0 ? stored : frmChild::kDefaultPoints);
    // A size of the user's own stands in the box alone.
    if (!SelectText(item(cboSize), size)) setItemText(cboSize, size);
}

bool frmTxtFonts::onInit() {
    fillFonts();
    fillSizes();
    loading_ = false;
    return true;
}

// While a choice is being made in the list, the text of the box is still the old one.
std::string frmTxtFonts::chosen(int combo) const {
    const HWND window = item(combo);
    return win::ListRow(window, ::SendMessageW(window, CB_GETCURSEL, 0, 0));
}

void frmTxtFonts::accept() {
    const std::string face = chosen(cboFonts);
    const float points = ParseFontSize(itemText(cboSize));
    if (points == 0) {
        win::ShowMessage(hwnd(), "Please choose a size between 1 and 400.", "Quillon", MB_ICONINFORMATION);
        focusItem(cboSize);
        return;
    }
    settings_.SaveRegSetting("font preferences", "font_Face", face);
    settings_.SaveRegSetting("font preferences", "font_Size", FontSizeText(points));
    close(IDOK);
}

void frmTxtFonts::cancel() {
    const frmChild* page = main_.find(page_);
    if (page && !(page->txtPad().font() == before_)) page->txtPad().setFont(before_);
    close(IDCANCEL);
}

void frmTxtFonts::showChoice(WORD combo, WORD notification) const {
    const frmChild* page = main_.find(page_);
    if (!page) return;
    if (combo == cboFonts) {
        page->txtPad().setFace(chosen(cboFonts));
        return;
    }
    const float points = ParseFontSize(notification == CBN_SELCHANGE ? chosen(cboSize) : itemText(cboSize));
    // A size that is just being typed may not be one yet.
    if (points > 0) page->txtPad().setPoints(points);
}

bool frmTxtFonts::onCommand(WORD id, WORD notification) {
    if (id == cmdOK) accept();
    if (id == cmdCancel) cancel();
    if (id == cmdOK || id == cmdCancel) return true;
    if (loading_ || (notification != CBN_SELCHANGE && notification != CBN_EDITCHANGE)) return false;
    showChoice(id, notification);
    win::RunPending();
    return true;
}
