// A user who edits, saves, opens and closes pages in random order, and a simple model of what every page and
// file must hold.
#pragma once

#include <algorithm>
#include <cstdio>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "authoring/tags/core/tag_fragments.h"
#include "document/core/page_outline.h"
#include "e2e/quillon.h"
#include "menu_ids.h"

class MonkeyTest : public QuillonTest {
 protected:
    struct State {
        std::string text;
        std::string path;
        bool changed = false;
        std::string caption = {};
        DWORD until = 0;  // GetTickCount() when it was last seen to be so
    };
    struct Page : State {
        HWND window = nullptr;
        // Its earlier states since it was last safe: on the disk, or in a recovery copy that was checked.
        std::vector<State> past = {};
    };

    void SetUp() override {
        QuillonTest::SetUp();
        random_.seed(seed_);
        quillon_.emplace();
        opened(document::kPageOutline, "");
        run(mnuEditAll);
        run(mnuEditCopy);
        clipboard_ = document::kPageOutline;
    }

    // ---- Random choices.
    std::size_t below(std::size_t count) { return random_() % count; }
    // A place in the page that is not inside a line end.
    std::size_t place() {
        const std::string& text = front().text;
        const std::size_t at = below(text.size() + 1);
        return at > 0 && at < text.size() && text[at] == '\n' ? at - 1 : at;
    }
    std::string word() {
        std::string text(1 + below(8), ' ');
        for (char& c : text) c = static_cast<char>('a' + below(26));
        return text;
    }

    // The longest time that a change may be without a recovery copy, in milliseconds.
    static constexpr DWORD kPatience = 30000;

    // ---- The program.
    Page& front() {
        const auto found =
            std::find_if(pages_.begin(), pages_.end(),
                         [window = quillon_->page()](auto& page) { return page.window == window; });
        EXPECT_TRUE(found != pages_.end()) << "a page that nobody opened";
        return found == pages_.end() ? pages_.front() : *found;
    }
    static LRESULT send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        DWORD_PTR result = 0;
        if (!::SendMessageTimeoutA(window, message, wParam, lParam, SMTO_NORMAL, 20000, &result))
            ADD_FAILURE() << "no answer to message " << message;
        return static_cast<LRESULT>(result);
    }
    // Runs a command and waits until it is done. A command that opens a dialog needs choose() instead.
    void run(int command) { send(quillon_->window(), WM_COMMAND, static_cast<WPARAM>(command)); }
    // Waits until the window is closed, after sending it a message where one is needed.
    static void gone(HWND window, UINT message = WM_NULL) {
        ::PostMessageA(window, message, 0, 0);
        EXPECT_TRUE(seen::Until([window] { return !::IsWindow(window); }));
    }
    // Adds the page that has come to the front to the model.
    void opened(const std::string& text, const std::string& path) {
        EXPECT_TRUE(seen::Until([this] { return quillon_->pages().size() == pages_.size() + 1; }));
        pages_.push_back({{text, path, false, quillon_->pageCaption()}, quillon_->page()});
    }
    // Remembers the present state: when the program is killed, the next change may not have been made.
    static void remember(Page& page) {
        std::erase_if(page.past,
                      [now = ::GetTickCount()](auto& state) { return now - state.until > kPatience; });
        page.past.push_back(page);
        page.past.back().until = ::GetTickCount();
    }

    // ---- Changes of the page in front.
    // Selects what the next action will replace: mostly nothing.
    void select() {
        start_ = end_ = place();
        if (below(3) == 0) end_ = place();
        if (end_ < start_ || end_ - start_ > 400) end_ = start_;
        send(quillon_->pad(), EM_SETSEL, start_, static_cast<LPARAM>(end_));
    }
    void replaced(std::string_view with) {
        front().text.replace(start_, end_ - start_, with);
        front().changed = true;
    }
    void type() {
        select();
        const std::string typed = word();
        for (const char& c : typed) {
            replaced({&c, 1});
            remember(front());
            end_ = ++start_;
        }
        const HWND pad = quillon_->pad();
        for (const char c : typed) ::PostMessageA(pad, WM_CHAR, static_cast<unsigned char>(c), 0);
        // Without its last letter the page would read as it does before that letter is typed.
        seen::Until([this] { return quillon_->pageText() == front().text; });
        const std::pair<WPARAM, std::string> keys[] = {
            {0, ""}, {VK_RETURN, "\r\n"}, {VK_TAB, "    "}, {VK_BACK, ""}};
        const auto& [key, inserted] = keys[below(4)];
        if (key == VK_BACK) --start_;
        replaced(inserted);
        if (key != 0) ::PostMessageA(pad, WM_KEYDOWN, key, 0);
    }
    void insertTag() {
        const int index = static_cast<int>(below(4));
        const std::string_view tag = authoring::TagFragment(authoring::TagMenu::Basic, index);
        const std::string before = front().text;
        select();
        replaced(tag);
        run(mnuTagsBasicList + index);
        if (below(3) != 0) return;
        EXPECT_EQ(quillon_->pageText(), front().text);
        remember(front());
        run(mnuEditUndo);
        front().text = before;
    }
    void paste() {
        select();
        run(mnuEditPaste);
        replaced(clipboard_);
    }
    void cutOrCopy() {
        select();
        const bool cuts = below(2) == 0;
        run(cuts ? mnuEditCut : mnuEditCopy);
        if (start_ == end_) return;
        clipboard_ = front().text.substr(start_, end_ - start_);
        if (cuts) replaced("");
    }
    void replace() {
        std::string& text = front().text;
        const std::string find = text.substr(place(), 1 + below(3));
        if (find.empty() || find.find_first_of("\r\n") != std::string::npos) return;
        const std::string with = word();
        const bool all = below(2) == 0;
        for (std::size_t at = text.find(find); at != std::string::npos;) {
            text.replace(at, find.size(), with);
            at = all ? text.find(find, at + with.size()) : std::string::npos;
        }
        front().changed = true;
        run(tbrReplace);
        const HWND dialog = quillon_->waitForDialog("Replace");
        seen::FillIn(dialog, find, with, all ? "Replace All" : "Replace");
        if (all) clipboard_ = text;
        if (!all) ::PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0);
        gone(dialog);
    }
    void reset() {
        Page& page = front();
        quillon_->choose(tbrReset);
        if (page.path.empty() || !page.changed) return void(quillon_->answer("Quillon", IDOK));
        if (!page.text.empty()) clipboard_ = page.text;
        page.text = files_[page.path];
        page.changed = false;
        page.past.clear();
    }

    // ---- Pages and files.
    void newPage() {
        run(mnuFileNew);
        opened(document::kPageOutline, "");
    }
    void saved(const std::string& path) {
        Page& page = front();
        page.path = path;
        page.changed = false;
        page.past.clear();
        files_[path] = page.text + "\r\n";
        EXPECT_TRUE(quillon_->shows("Saved :  " + path));
        page.caption = quillon_->pageCaption();
    }
    void save() {
        if (front().path.empty()) return saveAs();
        run(mnuFileSave);
        saved(front().path);
    }
    bool isOpen(const std::string& path) const {
        return std::any_of(pages_.begin(), pages_.end(), [&](const Page& page) { return page.path == path; });
    }
    void saveAs() {
        const std::string path = scratch("page" + std::to_string(below(9)) + ".htm");
        quillon_->choose(mnuFileSaveAs);
        quillon_->chooseFile("Save File As...", path, files_.count(path) != 0);
        if (isOpen(path) && front().path != path) return void(quillon_->answer("Quillon", IDOK));
        saved(path);
    }
    void openFile() {
        if (files_.empty()) return;
        const std::string path = std::next(files_.begin(), static_cast<long>(below(files_.size())))->first;
        quillon_->choose(mnuFileOpen);
        quillon_->chooseFile("Open File...", path);
        if (isOpen(path)) return void(quillon_->answer("Quillon", IDOK));
        opened(files_[path], path);
    }
    void closePage() {
        const Page page = front();
        quillon_->choose(mnuFileClose);
        if (page.changed) quillon_->answer("Quillon", IDNO);
        gone(page.window);
        std::erase_if(pages_, [&](const Page& other) { return other.window == page.window; });
    }
    void switchPage() {
        const std::size_t index = below(pages_.size());
        run(windowList + static_cast<int>(index));
        EXPECT_EQ(quillon_->page(), pages_[index].window);
    }

    // ---- What must hold at any time.
    void check() {
        EXPECT_TRUE(quillon_->isRunning());
        EXPECT_TRUE(seen::Until([this] {
            return seen::TopLevel(quillon_->process()).size() == 1 && ::IsWindowEnabled(quillon_->window());
        })) << "a dialog is still open";
        if (pages_.empty()) return;
        seen::Until([this] { return quillon_->pageText() == front().text; });
        EXPECT_EQ(quillon_->pageText(), front().text);
        EXPECT_EQ(send(quillon_->pad(), EM_GETMODIFY) != 0, front().changed);
    }
    void checkAll() {
        ASSERT_EQ(quillon_->pages().size(), pages_.size());
        for (const Page& page : pages_)
            EXPECT_EQ(seen::TextOf(seen::ChildOfClass(page.window, "RICHEDIT")), page.text);
        for (const auto& [path, bytes] : files_) EXPECT_EQ(readFile(path), bytes) << path;
    }
    // Compares the resources held with all pages closed. The first three rests set the limits.
    void rest() {
        checkAll();
        while (!pages_.empty() && !HasFailure()) closePage();
        const seen::Holdings held = seen::HeldBy(quillon_->process());
        std::printf("%6d actions: %d windows, %d GDI objects, %lu KB\n", actions_, held.windows, held.gdi,
                    static_cast<unsigned long>(held.kilobytes));
        if (++rests_ <= 3) warm_ = held;
        EXPECT_LE(held.windows, warm_.windows);
        EXPECT_LE(held.gdi, warm_.gdi + 40);
        // The heap keeps some of what the largest page so far has taken.
        EXPECT_LE(held.kilobytes, warm_.kilobytes + 8192);
        newPage();
    }
    void act() {
        using M = MonkeyTest;
        static constexpr void (M::*kActions[])() = {
            &M::type,   &M::type,      &M::type,     &M::type,      &M::insertTag, &M::insertTag,
            &M::paste,  &M::cutOrCopy, &M::replace,  &M::reset,     &M::save,      &M::save,
            &M::saveAs, &M::newPage,   &M::openFile, &M::closePage, &M::switchPage};
        if (pages_.empty()) return newPage();
        if (pages_.size() > 6) return closePage();
        remember(front());
        const std::size_t action = below(std::size(kActions));
        SCOPED_TRACE("action " + std::to_string(++actions_) + " is of kind " + std::to_string(action));
        (this->*kActions[action])();
        check();
    }

    const unsigned seed_ = static_cast<unsigned>(EnvironmentNumber("QUILLON_MONKEY_SEED", 1));
    std::mt19937 random_;
    std::optional<Quillon> quillon_;
    std::vector<Page> pages_;
    std::map<std::string, std::string> files_;
    std::string clipboard_;
    std::size_t start_ = 0, end_ = 0;  // of the selection
    int actions_ = 0, rests_ = 0;
    seen::Holdings warm_;
};
