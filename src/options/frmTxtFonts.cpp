#include "options/frmTxtFonts.h"

#include "document/core/font_size.h"
#include "document/frmChild.h"
#include "forms/frmTxtFonts.h"
#include "win/message_box.h"
#include "win/message_loop.h"

namespace {

using document::FontSizeText;
using document::ParseFontSize;

constexpr int kSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72};

void AddText(HWND combo, const char* text) {
    ::SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
}

LRESULT FindRow(HWND combo, const char* text) {
    return ::SendMessageA(combo, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text));
}

// The system names a family once for each of its character sets; "@" marks the upright twin of a font for
// vertical text. The list sorts itself.
int CALLBACK AddFont(const LOGFONTA* font, const TEXTMETRICA*, DWORD, LPARAM list) {
    const auto combo = reinterpret_cast<HWND>(list);
    const char* face = font->lfFaceName;
    if (face[0] != '@' && FindRow(combo, face) == CB_ERR) AddText(combo, face);
    return 1;
}

void AddScreenFonts(HWND combo) {
    LOGFONTA any{};
    any.lfCharSet = DEFAULT_CHARSET;
    const HDC screen = ::GetDC(nullptr);
    ::EnumFontFamiliesExA(screen, &any, AddFont, reinterpret_cast<LPARAM>(combo), 0);
    ::ReleaseDC(nullptr, screen);
}

// False when the list has no such row.
bool SelectText(HWND combo, const char* text) {
    const LRESULT row = FindRow(combo, text);
    if (row == CB_ERR) return false;
    ::SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(row), 0);
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
    if (FindRow(combo, face.c_str()) == CB_ERR) AddText(combo, face.c_str());
    SelectText(combo, face.c_str());
}

void frmTxtFonts::fillSizes() const {
    for (const int points : kSizes) AddText(item(cboSize), std::to_string(points).c_str());
    const float stored = ParseFontSize(settings_.GetRegSetting("font preferences", "font_Size"));
    const std::string size = FontSizeText(stored > 0 ? stored : frmChild::kDefaultPoints);
    // A size of the user's own stands in the box alone.
    if (!SelectText(item(cboSize), size.c_str())) setItemText(cboSize, size);
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
    const LRESULT index = ::SendMessageA(window, CB_GETCURSEL, 0, 0);
    if (index == CB_ERR) return {};
    const auto row = static_cast<WPARAM>(index);
    std::string text(static_cast<std::size_t>(::SendMessageA(window, CB_GETLBTEXTLEN, row, 0)) + 1, '\0');
    text.resize(static_cast<std::size_t>(
        ::SendMessageA(window, CB_GETLBTEXT, row, reinterpret_cast<LPARAM>(text.data()))));
    return text;
}

void frmTxtFonts::preview(const document::Font& font) const {
    if (const frmChild* page = main_.find(page_)) page->txtPad().setFont(font);
}

void frmTxtFonts::accept() {
    const std::string face = chosen(cboFonts);
    const float points = ParseFontSize(itemText(cboSize));
    if (points == 0) {
        win::ShowMessage(hwnd(), "Please choose a size between 1 and 400.", "Quillon", MB_ICONINFORMATION);
        focusItem(cboSize);
        return;
    }
    preview({face, points});
    settings_.SaveRegSetting("font preferences", "font_Face", face);
    settings_.SaveRegSetting("font preferences", "font_Size", FontSizeText(points));
    close(IDOK);
}

void frmTxtFonts::cancel() {
    const frmChild* page = main_.find(page_);
    if (page && !(page->txtPad().font() == before_)) page->txtPad().setFont(before_);
    close(IDCANCEL);
}

bool frmTxtFonts::onCommand(WORD id, WORD notification) {
    if (id == cmdOK) accept();
    if (id == cmdCancel) cancel();
    if (id == cmdOK || id == cmdCancel) return true;
    if (loading_ || (notification != CBN_SELCHANGE && notification != CBN_EDITCHANGE)) return false;
    const bool sizeChosen = id == cboSize && notification == CBN_SELCHANGE;
    const document::Font font{chosen(cboFonts),
                              ParseFontSize(sizeChosen ? chosen(cboSize) : itemText(cboSize))};
    // A size that is just being typed may not be one yet.
    if (font.points == 0) return true;
    preview(font);
    win::RunPending();
    return true;
}
