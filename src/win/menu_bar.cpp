#include "win/menu_bar.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "win/error.h"
#include "win/unicode.h"

namespace win {
namespace {

// A lone "&" would underline the next letter and vanish.
std::string Escaped(std::string_view caption) {
    std::string text;
    for (const char c : caption) {
        text += c;
        if (c == '&') text += c;
    }
    return text;
}

std::string MenuText(const std::string& caption, std::string_view shortcut) {
    std::string text = Escaped(caption);
    if (!shortcut.empty()) text.append("\t").append(shortcut);
    return text;
}

bool IsSeparator(const MenuRow& row) {
    return row.kind == MenuKind::separator || row.kind == MenuKind::hiddenSeparator;
}

WORD FunctionKey(std::string_view shortcut) {
    int number = 0;
    const char* end = shortcut.data() + shortcut.size();
    const auto [stop, error] = std::from_chars(shortcut.data() + 1, end, number);
    if (error != std::errc() || stop != end || number < 1 || number > 24) return 0;
    return static_cast<WORD>(VK_F1 + number - 1);
}

}  // namespace

std::vector<ACCEL> Accelerators(std::span<const MenuRow> rows) {
    std::vector<ACCEL> keys;
    for (const MenuRow& row : rows) {
        const std::string_view shortcut = row.shortcut;
        if (shortcut.starts_with("Ctrl+") && shortcut.size() == 6) {
            keys.push_back({FVIRTKEY | FCONTROL, static_cast<WORD>(shortcut[5]), row.id});
        } else if (shortcut.size() > 1 && shortcut[0] == 'F') {
            if (const WORD key = FunctionKey(shortcut)) keys.push_back({FVIRTKEY, key, row.id});
        }
    }
    return keys;
}

MenuBar::MenuBar(std::span<const MenuRow> rows) : bar_(Check(::CreateMenu())) {
    entries_.reserve(rows.size());
    std::vector<HMENU> open{bar_.get()};
    std::vector<bool> needsDocument{false};
    for (const MenuRow& row : rows) {
        open.resize(row.level + 1U);
        needsDocument.resize(row.level + 1U);
        Entry entry;
        entry.row = &row;
        entry.parent = open.back();
        entry.caption = row.caption;
        entry.needsDocument = needsDocument.back() || row.needs == Needs::document;
        entry.shown = row.kind != MenuKind::hidden && row.kind != MenuKind::hiddenSeparator;
        if (row.kind == MenuKind::popup) {
            entry.popup = Check(::CreatePopupMenu());
            open.push_back(entry.popup);
            needsDocument.push_back(entry.needsDocument);
        }
        entries_.push_back(entry);
        if (entry.shown) insert(entries_.back());
    }
}

void MenuBar::attach(HWND window) {
    window_ = window;
    bar_.release();
}

const MenuBar::Entry& MenuBar::entry(std::uint16_t id) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [id](const Entry& entry) { return entry.row->id == id; });
    if (found == entries_.end()) throw Failure("No such menu item.");
    return *found;
}

MenuBar::Entry& MenuBar::entry(std::uint16_t id) {
    return const_cast<Entry&>(static_cast<const MenuBar*>(this)->entry(id));
}

int MenuBar::position(const Entry& entry) const {
    // On the bar a maximised document puts its system menu first, so a popup is looked for by its handle.
    if (entry.popup) {
        const int count = ::GetMenuItemCount(entry.parent);
        for (int i = 0; i < count; ++i) {
            if (::GetSubMenu(entry.parent, i) == entry.popup) return i;
        }
    }
    return static_cast<int>(std::count_if(entries_.data(), &entry, [&entry](const Entry& other) {
        return other.parent == entry.parent && other.shown;
    }));
}

void MenuBar::insert(const Entry& entry) {
    std::wstring text = ToWide(MenuText(entry.caption, entry.row->shortcut));
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_ID | MIIM_FTYPE | MIIM_STRING | MIIM_STATE | MIIM_CHECKMARKS;
    info.fState = (isEnabled(entry) ? MFS_ENABLED : MFS_GRAYED) | (entry.checked ? MFS_CHECKED : 0U);
    info.hbmpChecked = entry.picture;
    info.hbmpUnchecked = entry.picture;
    info.wID = entry.row->id;
    info.dwTypeData = text.data();
    if (IsSeparator(*entry.row)) {
        info.fMask = MIIM_ID | MIIM_FTYPE;
        info.fType = MFT_SEPARATOR;
    }
    if (entry.popup) {
        info.fMask |= MIIM_SUBMENU;
        info.hSubMenu = entry.popup;
    }
    ::InsertMenuItemW(entry.parent, static_cast<UINT>(position(entry)), TRUE, &info);
}

bool MenuBar::isEnabled(const Entry& entry) const {
    return entry.enabled && (documentOpen_ || !entry.needsDocument);
}

void MenuBar::applyState(const Entry& entry) {
    if (!entry.shown || IsSeparator(*entry.row)) return;
    const auto at = static_cast<UINT>(position(entry));
    ::EnableMenuItem(entry.parent, at,
                     static_cast<UINT>(MF_BYPOSITION) | (isEnabled(entry) ? MF_ENABLED : MF_GRAYED));
    if (entry.popup) return;
    ::CheckMenuItem(entry.parent, at,
                    static_cast<UINT>(MF_BYPOSITION) | (entry.checked ? MF_CHECKED : MF_UNCHECKED));
    if (entry.picture) ::SetMenuItemBitmaps(entry.parent, at, MF_BYPOSITION, entry.picture, entry.picture);
}

void MenuBar::redraw() const {
    if (window_) ::DrawMenuBar(window_);
}

void MenuBar::show(std::uint16_t id, const std::string& caption) {
    hide(id);
    Entry& item = entry(id);
    item.caption = caption;
    item.shown = true;
    insert(item);
}

void MenuBar::hide(std::uint16_t id) {
    Entry& item = entry(id);
    if (item.shown) ::RemoveMenu(item.parent, static_cast<UINT>(position(item)), MF_BYPOSITION);
    item.shown = false;
    item.caption.clear();
}

void MenuBar::check(std::uint16_t id, bool checked) {
    Entry& item = entry(id);
    item.checked = checked;
    applyState(item);
}

void MenuBar::enable(std::uint16_t id, bool enabled) {
    Entry& item = entry(id);
    item.enabled = enabled;
    applyState(item);
}

bool MenuBar::isEnabled(std::uint16_t id) const {
    return isEnabled(entry(id));
}

void MenuBar::setDocumentOpen(bool open) {
    if (open == documentOpen_) return;
    documentOpen_ = open;
    for (const Entry& entry : entries_) {
        if (entry.needsDocument) applyState(entry);
    }
    redraw();
}

void MenuBar::setPicture(std::uint16_t id, HBITMAP picture) {
    Entry& item = entry(id);
    item.picture = picture;
    applyState(item);
}

void MenuBar::setList(std::uint16_t popupId, std::uint16_t firstId, const std::vector<std::string>& captions,
                      int checked) {
    const HMENU list = entry(popupId).popup;
    while (::RemoveMenu(list, 0, MF_BYPOSITION)) continue;
    for (std::size_t i = 0; i < captions.size(); ++i) {
        const UINT state = static_cast<int>(i) == checked ? MF_CHECKED : MF_UNCHECKED;
        ::AppendMenuW(list, static_cast<UINT>(MF_STRING) | state, firstId + i,
                      ToWide(Escaped(captions[i])).c_str());
    }
}

}  // namespace win
