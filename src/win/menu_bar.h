// A menu bar made from a table.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "win/unique.h"

namespace win {

enum class Needs : std::uint8_t { nothing, document };
enum class MenuKind : std::uint8_t { item, popup, separator, hidden, hiddenSeparator };

struct MenuRow {
    std::uint16_t id;
    std::uint8_t level;  // 0 on the bar; a popup's items are the following rows of a higher level
    const char* caption;
    const char* shortcut;            // "F2", "Ctrl+P" or empty
    Needs needs = Needs::nothing;    // a popup's need holds for all below it
    MenuKind kind = MenuKind::item;  // a hidden one is not there until show()
};

// The accelerator table of a menu's shortcuts. A text other than "F1" to "F24", or "Ctrl+" and a letter,
// gives none.
std::vector<ACCEL> Accelerators(std::span<const MenuRow> rows);

class MenuBar {
 public:
    // The rows must outlive the bar.
    explicit MenuBar(std::span<const MenuRow> rows);

    HMENU handle() const { return bar_.get(); }
    // The window that shows the bar owns it from then on.
    void attach(HWND window);

    // Puts the item at its place of the table under this caption, in which "&" is an ordinary character.
    void show(std::uint16_t id, const std::string& caption);
    void hide(std::uint16_t id);
    bool isShown(std::uint16_t id) const { return entry(id).shown; }
    const std::string& caption(std::uint16_t id) const { return entry(id).caption; }
    void check(std::uint16_t id, bool checked);
    bool isChecked(std::uint16_t id) const { return entry(id).checked; }
    // An item is enabled unless it was disabled here, or needs a document and none is open.
    void enable(std::uint16_t id, bool enabled);
    bool isEnabled(std::uint16_t id) const;
    void setDocumentOpen(bool open);
    // Shown whether the item is checked or not. The bitmap stays the caller's.
    void setPicture(std::uint16_t id, HBITMAP picture);
    // Fills a popup that has no rows with items numbered from `firstId`, one of them checked (-1: none).
    void setList(std::uint16_t popupId, std::uint16_t firstId, const std::vector<std::string>& captions,
                 int checked);
    HMENU popup(std::uint16_t id) const { return entry(id).popup; }

 private:
    struct Entry {
        const MenuRow* row = nullptr;
        HMENU parent = nullptr;
        HMENU popup = nullptr;
        std::string caption;
        bool needsDocument = false;
        bool shown = false;
        bool enabled = true;
        bool checked = false;
        HBITMAP picture = nullptr;
    };

    const Entry& entry(std::uint16_t id) const;
    Entry& entry(std::uint16_t id);
    bool isEnabled(const Entry& entry) const;
    int position(const Entry& entry) const;  // within its popup
    void insert(const Entry& entry);
    void applyState(const Entry& entry);
    void redraw() const;

    UniqueMenu bar_;
    HWND window_ = nullptr;
    std::vector<Entry> entries_;
    bool documentOpen_ = false;
};

}  // namespace win
