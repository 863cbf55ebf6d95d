// The Find dialog.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "authoring/find/page_dialog.h"

class frmFind : public authoring::PageDialog {
 public:
    // Shows the one Find dialog: the open one, or a new one for the active page.
    static void show(MainWindow& main);

 private:
    explicit frmFind(MainWindow& owner);

    bool onInit() override;
    bool onCommand(WORD id, WORD notification) override;
    INT_PTR onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    HWND originalKid() const override { return mFindOriginalKid; }

    std::u16string wanted() const;  // in lower case
    void changeText() const;
    void clickFind();
    void clickFindNext();
    void FindAndCount();
    // The page, at the top and after the messages now waiting; null when they have closed it.
    frmChild* readyPage() const;
    void offerTop();
    void tellNotFound() const;
    // No value means that there are more than can be counted.
    void showCount(std::optional<int> count) const;
    // Selects the match at a position counted from 1 and puts the focus into the page.
    void SelectFound(const frmChild& page, std::size_t position, std::size_t length) const;
    void enableButtons(bool find, bool findNext) const;

    HWND mFindOriginalKid;
    std::size_t nextStart_ = 0;
};

namespace authoring {

void OnFind(MainWindow& main, int);

}  // namespace authoring
