// A user who does anything at any time, and a plain model of what every page and file must hold.
#include <cstdio>
#include <map>
#include <optional>
#include <random>

#include "authoring/core/tag_fragments.h"
#include "document/core/page_outline.h"
#include "e2e/quillon.h"
#include "menu_ids.h"

namespace {

using authoring::TagMenu;

struct Page {
    HWND window = nullptr;
    std::string text;
    std::string path;
    bool changed = false;
    std::size_t tab = 4;
};

class MonkeyTest : public QuillonTest {
 protected:
    void SetUp() override {
        QuillonTest::SetUp();
        quillon_.emplace();
    }

    void TearDown() override {
        quillon_.reset();
        for (int i = 0; i < 20; ++i) RemoveTemplate("monkey" + std::to_string(i) + ".htm");
    }

    // ---- What chance decides.
    std::size_t below(std::size_t count) { return count == 0 ? 0 : random_() % count; }
    // A place in the page that is not inside a line end.
    std::size_t place(const std::string& text) {
        const std::size_t at = below(text.size() + 1);
        return at > 0 && at < text.size() && text[at] == '\n' ? at - 1 : at;
    }
    std::string word() {
        std::string text;
        for (std::size_t length = 1 + below(8); text.size() < length;)
            text += static_cast<char>('a' + below(26));
        return text;
    }

    // ---- The program.
    Page& front() {
        const HWND window = quillon_->page();
        for (Page& page : pages_) {
            if (page.window == window) return page;
        }
        ADD_FAILURE() << "a page that nobody opened";
        return pages_.front();
    }
    LRESULT send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
        DWORD_PTR result = 0;
        if (!::SendMessageTimeoutA(window, message, wParam, lParam, SMTO_NORMAL, 20000, &result))
            ADD_FAILURE() << "no answer to message " << message;
        return static_cast<LRESULT>(result);
    }
    void run(int command) const { send(quillon_->window(), WM_COMMAND, static_cast<WPARAM>(command)); }
    void post(int command) const {
        ::PostMessageA(quillon_->window(), WM_COMMAND, static_cast<WPARAM>(command), 0);
    }
    void click(HWND dialog, const char* button) const {
        send(seen::Child(dialog, button, "Button"), BM_CLICK);
    }
    void fill(HWND dialog, const std::string& first, const std::string& second, const char* button) {
        const HWND edit = seen::ChildOfClass(dialog, "Edit");
        send(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(first.c_str()));
        send(::GetNextDlgTabItem(dialog, edit, FALSE), WM_SETTEXT, 0,
             reinterpret_cast<LPARAM>(second.c_str()));
        click(dialog, button);
    }
    // Waits until the window has gone, after a message to it where one is needed.
    static void gone(HWND window, UINT message = WM_NULL) {
        ::PostMessageA(window, message, 0, 0);
        EXPECT_TRUE(seen::Until([window] { return !::IsWindow(window); }));
    }
    // Takes the page that has come to the front into the model.
    void opened(const std::string& text, const std::string& path) {
        EXPECT_TRUE(seen::Until([this] { return quillon_->pages().size() == pages_.size() + 1; }));
        pages_.push_back({quillon_->page(), text, path, false, tab_});
    }

    // ---- Changes of the page in front.
    struct Range {
        std::size_t start, end;
    };
    Range select() {
        const std::string& text = front().text;
        std::size_t start = place(text);
        std::size_t end = below(3) == 0 ? place(text) : start;
        if (end < start) std::swap(start, end);
        if (end - start > 400) end = start;
        send(quillon_->pad(), EM_SETSEL, start, static_cast<LPARAM>(end));
        return {start, end};
    }
    void replaced(Range range, std::string_view with) {
        Page& page = front();
        page.text.replace(range.start, range.end - range.start, with);
        page.changed = true;
    }
    void type() {
        const Range range = select();
        const std::string text = word();
        for (const char c : text) ::PostMessageA(quillon_->pad(), WM_CHAR, static_cast<unsigned char>(c), 0);
        const std::size_t key = below(4);
        constexpr WPARAM kKeys[] = {0, VK_RETURN, VK_TAB, VK_BACK};
        if (key > 0) ::PostMessageA(quillon_->pad(), WM_KEYDOWN, kKeys[key], 0);
        const std::string typed[] = {text, text + "\r\n", text + std::string(front().tab, ' '),
                                     text.substr(0, text.size() - 1)};
        replaced(range, typed[key]);
    }
    void insertTag() {
        static constexpr std::pair<int, TagMenu> kMenus[] = {
            {mnuTagsBasicList, TagMenu::Basic}, {mnuTagsModList, TagMenu::Mod},
            {mnutagsTableList, TagMenu::Table}, {mnuTagsFSetList, TagMenu::FSet},
            {mnuTagsLsList, TagMenu::Ls},       {mnuTagsSpecialChar, TagMenu::Special}};
        const auto [first, menu] = kMenus[below(std::size(kMenus))];
        const int index = static_cast<int>(below(4));
        const std::string_view tag = authoring::TagFragment(menu, index);
        if (tag.empty()) return;
        const std::string before = front().text;
        replaced(select(), tag);
        run(first + index);
        if (below(3) != 0) return;
        EXPECT_EQ(quillon_->pageText(), front().text);
        run(mnuEditUndo);
        front().text = before;
    }
    void color() {
        const Range range = select();
        run(tbrColor);
        const HWND chart = quillon_->waitForDialog("Click for Color Tag...");
        const std::string text = below(2) == 0 ? "\"#CC00FF\"" : "\"#003399\"";
        const HWND box = seen::Child(chart, text);
        ::PostMessageA(box, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        ::PostMessageA(box, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
        gone(chart);
        replaced(range, text);
        clipboard_ = text;
    }
    void clipboard() {
        const Range range = select();
        const std::string selected = front().text.substr(range.start, range.end - range.start);
        const std::size_t action = below(3);
        run(action == 0 ? mnuEditCut : action == 1 ? mnuEditCopy : mnuEditPaste);
        if (action < 2 && !selected.empty()) clipboard_ = selected;
        if (action == 0 && !selected.empty()) replaced(range, "");
        if (action == 2) replaced(range, clipboard_);
    }
    void replace() {
        Page& page = front();
        const std::size_t at = place(page.text);
        const std::string find =
            page.text.substr(at, std::min<std::size_t>(1 + below(3), page.text.find('\r', at) - at));
        if (find.empty() || find[0] == '\r') return;
        const std::string with = word();
        run(tbrReplace);
        const HWND dialog = quillon_->waitForDialog("Replace");
        const bool all = below(2) == 0;
        std::string text;
        for (std::size_t i = 0; i < page.text.size();) {
            const bool match =
                page.text.compare(i, find.size(), find) == 0 && (all || i <= page.text.find(find));
            text += match ? with : page.text.substr(i, 1);
            i += match ? find.size() : 1;
        }
        fill(dialog, find, with, all ? "Replace All" : "Replace");
        if (all) clipboard_ = text;
        if (!all) click(dialog, "Cancel");
        page.text = text;
        page.changed = true;
        gone(dialog);
    }
    void reset() {
        Page& page = front();
        post(tbrReset);
        if (page.path.empty() || !page.changed) return void(quillon_->answer("Quillon", IDOK));
        if (!page.text.empty()) clipboard_ = page.text;
        page.text = files_[page.path];
        page.changed = false;
    }

    // ---- Pages and files.
    void newPage() {
        run(mnuFileNew);
        opened(document::kPageOutline, "");
    }
    void saved(Page& page, const std::string& path) {
        page.path = path;
        page.changed = false;
        files_[path] = page.text + "\r\n";
        recent_ = path;
        EXPECT_TRUE(quillon_->shows("Saved :  " + path));
    }
    void save() {
        if (front().path.empty()) return saveAs();
        run(mnuFileSave);
        saved(front(), front().path);
    }
    void saveAs() {
        const std::string path = scratch("page" + std::to_string(below(9)) + ".htm");
        post(mnuFileSaveAs);
        quillon_->chooseFile("Save File As...", path, files_.count(path) != 0);
        saved(front(), path);
    }
    void expectOpened(const std::string& path) {
        const bool open =
            std::any_of(pages_.begin(), pages_.end(), [&](const Page& page) { return page.path == path; });
        if (open) {
            quillon_->answer("Quillon", IDOK);
        } else {
            opened(files_[path], recent_ = path);
        }
    }
    void openFile() {
        if (files_.empty()) return;
        const std::string path = std::next(files_.begin(), static_cast<long>(below(files_.size())))->first;
        post(mnuFileOpen);
        quillon_->chooseFile("Open File...", path);
        expectOpened(path);
    }
    void openRecent() {
        if (recent_.empty()) return;
        post(mnuFileMRU + 1);
        expectOpened(recent_);
    }
    void addTemplate() {
        const std::string name = "monkey" + std::to_string(below(20)) + ".htm";
        for (const auto& [known, page] : templates_) {
            if (known == name) return;
        }
        post(mnuOptsTempAdd);
        fill(quillon_->waitForDialog("Add a Template"), name, "ID " + name, "Enter");
        gone(seen::Dialog(quillon_->process(), "Add a Template"));
        templates_.insert(templates_.begin(), {name, front().text + "\r\n"});
        if (templates_.size() > 9) templates_.pop_back();
    }
    void openTemplate() {
        if (templates_.empty()) return;
        const std::size_t slot = below(templates_.size());
        run(mnuOptsTempList + static_cast<int>(slot));
        opened(templates_[slot].second, "");
        EXPECT_EQ(quillon_->pageCaption(), "ID " + templates_[slot].first);
    }
    void deleteTemplate() {
        if (templates_.empty()) return;
        const std::size_t slot = below(templates_.size());
        post(mnuOptsTempOrg);
        const HWND dialog = quillon_->waitForDialog("Organize Templates");
        click(dialog, "Delete");
        send(seen::ChildOfClass(dialog, "ComboBox"), CB_SETCURSEL, slot);
        ::PostMessageA(seen::Child(dialog, "Enter", "Button"), BM_CLICK, 0, 0);
        quillon_->answer("Confirm file deletion", IDYES);
        gone(dialog);
        templates_.erase(templates_.begin() + static_cast<long>(slot));
    }
    void closePage() {
        const Page page = front();
        const bool keeps = page.changed && below(10) == 0;
        post(mnuFileClose);
        if (page.changed) quillon_->answer("Quillon", keeps ? IDYES : IDNO);
        if (keeps) {
            quillon_->chooseFile("Save File As...", scratch("kept.htm"),
                                 files_.count(scratch("kept.htm")) != 0);
            recent_ = scratch("kept.htm");
            files_[recent_] = page.text + "\r\n";
        }
        gone(page.window);
        std::erase_if(pages_, [&](const Page& other) { return other.window == page.window; });
    }
    void switchPage() {
        const std::size_t index = below(pages_.size());
        run(windowList + static_cast<int>(index));
        EXPECT_EQ(quillon_->page(), pages_[index].window);
    }
    void arrange() {
        const std::size_t choice = below(5);
        if (choice < 2) run(mnuWind + static_cast<int>(choice) * 2);
        if (choice == 2) run(mnuOptWW);
        if (choice > 2) {
            tab_ = front().tab = 3 + below(6);
            run(mnuOptTabsList + static_cast<int>(tab_) - 3);
        }
    }
    void look() {
        using Item = std::pair<int, const char*>;
        static constexpr Item kDialogs[] = {{mnuHelpCont, "Quillon Help"},
                                            {mnuHelpAbout, "About Quillon"},
                                            {mnuOptFont, "Fonts"},
                                            {mnuUploadSite, "ADD An Upload Site"},
                                            {mnuFileOpen, "Open File..."},
                                            {mnuOptsTempAdd, "Add a Template"},
                                            {tbrFind, "Find"},
                                            {tbrColor, "Click for Color Tag..."}};
        const auto [command, title] = kDialogs[below(std::size(kDialogs))];
        post(command);
        gone(quillon_->waitForDialog(title), WM_CLOSE);
    }

    // ---- What must hold at any time.
    void check() {
        EXPECT_TRUE(quillon_->isRunning());
        const bool alone = seen::Until([this] {
            return seen::TopLevel(quillon_->process()).size() == 1 && ::IsWindowEnabled(quillon_->window());
        });
        EXPECT_TRUE(alone) << "something is still open";
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
    // With all pages closed. The first rests are there to get warm.
    void rest() {
        checkAll();
        while (!pages_.empty() && !HasFailure()) closePage();
        const seen::Holdings held = seen::HeldBy(quillon_->process());
        std::printf("%6d actions: %d windows, %d GDI objects, %lu KB\n", actions_, held.windows, held.gdi,
                    static_cast<unsigned long>(held.kilobytes));
        if (++rests_ == 3) warm_ = held;
        if (rests_ > 3) {
            EXPECT_LE(held.windows, warm_.windows);
            EXPECT_LE(held.gdi, warm_.gdi + 24);
            EXPECT_LE(held.kilobytes, warm_.kilobytes + 4096);
        }
        newPage();
    }
    void act() {
        using M = MonkeyTest;
        static constexpr void (M::*kActions[])() = {
            &M::type,           &M::type,      &M::type,       &M::type,        &M::insertTag,
            &M::insertTag,      &M::insertTag, &M::clipboard,  &M::clipboard,   &M::color,
            &M::replace,        &M::reset,     &M::save,       &M::save,        &M::saveAs,
            &M::newPage,        &M::openFile,  &M::openRecent, &M::addTemplate, &M::openTemplate,
            &M::deleteTemplate, &M::closePage, &M::switchPage, &M::arrange,     &M::look};
        if (pages_.empty()) return newPage();
        if (pages_.size() > 6) return closePage();
        const std::size_t action = below(std::size(kActions));
        SCOPED_TRACE("action " + std::to_string(++actions_) + " is of kind " + std::to_string(action));
        (this->*kActions[action])();
        check();
    }

    std::mt19937 random_;
    std::optional<Quillon> quillon_;
    std::vector<Page> pages_;
    std::map<std::string, std::string> files_;
    std::vector<std::pair<std::string, std::string>> templates_;  // newest first
    std::string recent_;
    std::string clipboard_;
    std::size_t tab_ = 4;
    int actions_ = 0;
    int rests_ = 0;
    seen::Holdings warm_;
};

TEST_F(MonkeyTest, NoUserLosesAnything) {
    const auto seed = static_cast<unsigned>(EnvironmentNumber("QUILLON_MONKEY_SEED", 1));
    const auto seconds = static_cast<DWORD>(EnvironmentNumber("QUILLON_MONKEY_SECONDS", 20));
    std::printf("seed %u\n", seed);
    random_.seed(seed);
    pages_.push_back({quillon_->page(), document::kPageOutline, ""});
    run(mnuEditAll);
    run(mnuEditCopy);
    clipboard_ = document::kPageOutline;
    const DWORD start = ::GetTickCount();
    while (::GetTickCount() - start < seconds * 1000 && !HasFailure()) {
        act();
        if (actions_ / 30 > rests_ && !HasFailure()) rest();
    }
    checkAll();
    std::printf("%d actions with seed %u\n", actions_, seed);
}

}  // namespace
