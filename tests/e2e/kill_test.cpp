// The same user, whose program is killed, or whose session ends, at any moment.
#include "e2e/monkey.h"
#include "files/core/recovery_copy.h"

namespace {

class KilledTest : public MonkeyTest {
 protected:
    static auto copies(const char* pattern) { return Listing(Environment("TEMP") + pattern); }
    // Polls without pausing, so as to be there in the middle of it.
    static void spinUntil(const std::function<bool()>& condition) {
        const DWORD start = ::GetTickCount();
        while (!condition()) ASSERT_LT(::GetTickCount() - start, kPatience);
    }
    void spin() {
        for (std::size_t turns = below(1000); turns > 0; --turns) ::SwitchToThread();
    }
    void safe() {
        for (Page& page : pages_) page.past.clear();
    }
    static bool isCopied(const Page& page) {
        for (const auto& [name, details] : copies("\\~quillon-*.page")) {
            const auto copy = files::Unpack(readFile(name));
            if (copy && copy->path == page.path && copy->caption == page.caption &&
                copy->text == std::u16string(page.text.begin(), page.text.end()))
                return true;
        }
        return false;
    }

    // ---- What is going on when the program ends.
    void writing() {
        const auto before = copies("\\~qu*");
        type();
        spinUntil([&] { return copies("\\~qu*") != before; });
    }
    void saving() {
        if (front().path.empty()) return;
        const auto before = Listing(scratch("*"));
        saving_ = quillon_->page();
        quillon_->choose(mnuFileSave);
        if (below(2) == 0) spinUntil([&] { return Listing(scratch("*")) != before; });
    }
    void session() {
        const auto end = [this](bool really) {
            EXPECT_EQ(send(quillon_->window(), WM_QUERYENDSESSION), TRUE);
            send(quillon_->window(), WM_ENDSESSION, really);
        };
        end(false);
        check();
        if (below(2) == 0) {
            quillon_->choose(front().changed ? mnuFileClose : mnuFileOpen);
            EXPECT_TRUE(seen::Until([this] { return !::IsWindowEnabled(quillon_->window()); }));
        }
        end(true);
        safe();
    }
    void awaitCopies() {
        const auto isKept = [](const Page& page) { return !page.changed || isCopied(page); };
        const auto areKept = [&] { return std::all_of(pages_.begin(), pages_.end(), isKept); };
        EXPECT_TRUE(seen::Until(areKept, kPatience / 2)) << "some seconds after the last change";
        safe();
    }

    // ---- Killing the program, and what the next start brings back.
    void kill() {
        quillon_->kill();
        for (Page& page : pages_) {
            remember(page);
            if (page.window != saving_ || readFile(page.path) != page.text + "\r\n") continue;
            files_[page.path] = page.text + "\r\n";
            page.past.push_back(page.past.back());
            page.past.back().changed = false;
        }
        saving_ = nullptr;
        for (const auto& [path, bytes] : files_) EXPECT_EQ(readFile(path), bytes) << path;
    }
    // Returns the earlier state that the page in front has come back in.
    State recognised(std::vector<Page>& before) {
        const std::string text = quillon_->pageText();
        const std::string caption = quillon_->pageCaption();
        const auto isIt = [&](const State& state) {
            return state.changed && state.text == text && state.caption == caption;
        };
        for (auto page = before.begin(); page != before.end(); ++page) {
            const auto state = std::find_if(page->past.rbegin(), page->past.rend(), isIt);
            if (state == page->past.rend()) continue;
            ++(state->text == page->text ? asLast_ : older_);
            State found = *state;
            before.erase(page);
            return found;
        }
        ADD_FAILURE() << caption << " comes back with a text that it never had or had too long ago:\n"
                      << text;
        return {text, "", true, caption};
    }
    void start() {
        if (below(3) == 0) {
            const Quillon half("", false);
            seen::Until([&] { return !seen::TopLevel(half.process()).empty(); });
            spin();
        }
        std::vector<Page> before = std::exchange(pages_, {});
        quillon_.emplace();
        // A command that is chosen now runs when the start is complete.
        quillon_->choose(mnuHelpAbout);
        gone(quillon_->waitForDialog("About Quillon"), WM_CLOSE);
        pages_.push_back({{document::kPageOutline, "", false, "Untitled1"}, quillon_->page()});
        const std::size_t count = quillon_->pages().size() - 1;
        EXPECT_TRUE(count != 1 || quillon_->shows("1 unsaved page has come back."));
        for (std::size_t i = 1; i <= count; ++i) {
            run(windowList + static_cast<int>(i));
            pages_.push_back({recognised(before), quillon_->page()});
            check();
            if (!front().path.empty() && below(3) == 0) save();
        }
        for (const Page& page : before) {
            const auto isSafe = [](const State& state) { return !state.changed; };
            EXPECT_TRUE(std::any_of(page.past.begin(), page.past.end(), isSafe))
                << page.caption << " is lost";
            fresh_ += page.changed;
        }
    }

    void die(std::size_t number) {
        using K = KilledTest;
        static constexpr void (K::*kMoments[])() = {&K::session, &K::saving, &K::type, &K::writing};
        if (pages_.empty()) newPage();
        remember(front());
        (this->*kMoments[number % std::size(kMoments)])();
        spin();
        kill();
    }

    HWND saving_ = nullptr;  // the page that may have been saved or not
    int asLast_ = 0, older_ = 0, fresh_ = 0;
};

TEST_F(KilledTest, EachPageComesBackOrIsOnDisk) {
    const int kills = EnvironmentNumber("QUILLON_KILLS", 4);
    int done = 0;
    for (; done < kills && !HasFailure(); ++done) {
        SCOPED_TRACE("kill " + std::to_string(done));
        for (std::size_t left = 1 + below(20); left > 0 && !HasFailure(); --left) act();
        if (below(4) == 0) awaitCopies();
        die(static_cast<std::size_t>(done));
        start();
    }
    std::printf("%d kills in %d actions with seed %u, %d at the end of a session: of the changed pages\n",
                done, actions_, seed_, (done + 3) / 4);
    std::printf(
        "%d came back as they were, %d as seconds before, %d were changed for seconds only, none lost\n",
        asLast_, older_, fresh_);
}

}  // namespace
