#include <exception>
#include <utility>

#include "authoring/spelling/core/spell_text.h"
#include "authoring/spelling/spell_service.h"
#include "win/automation.h"
#include "win/clipboard.h"
#include "win/disabled.h"

namespace authoring {
namespace {

using win::AutomationObject;
using win::Variant;

// The window of a word processor that was running already, to be put back as it was.
class FoundWindow {
 public:
    FoundWindow() {
        placement_.length = sizeof placement_;
        ::GetWindowPlacement(window_, &placement_);
    }
    bool isThere() const { return window_ != nullptr; }
    void putBack() {
        if (window_ && placement_.showCmd != SW_SHOWMINIMIZED) ::SetWindowPlacement(window_, &placement_);
    }

 private:
    HWND window_ = ::FindWindowW(L"OpusApp", nullptr);
    WINDOWPLACEMENT placement_{};
};

// Brings the program back to the front at the end of the scope.
class InFront {
 public:
    explicit InFront(HWND window) : window_(window) {}
    ~InFront() {
        if (::GetForegroundWindow() == window_ || ::SetForegroundWindow(window_)) return;
        // The system lets only the thread that has the foreground give it away.
        const DWORD front = ::GetWindowThreadProcessId(::GetForegroundWindow(), nullptr);
        ::AttachThreadInput(front, ::GetCurrentThreadId(), TRUE);
        ::SetForegroundWindow(window_);
        ::AttachThreadInput(front, ::GetCurrentThreadId(), FALSE);
    }
    InFront(const InFront&) = delete;
    InFront& operator=(const InFront&) = delete;

 private:
    HWND window_;
};

class WordBasic : public SpellService {
 public:
    // `isOurs` when the word processor was not running before.
    WordBasic(AutomationObject word, bool isOurs, FoundWindow found)
        : word_(std::move(word)), isOurs_(isOurs), found_(found) {}

    std::optional<std::u16string> correct(HWND owner, const std::u16string& text) override {
        const InFront program(owner);
        const win::Disabled ours;
        std::u16string corrected;
        try {
            send(text);
            word_.call(L"ToolsSpelling");
            corrected = fetch();
            close();
        } catch (const std::exception&) {
            rescue(owner, text, std::move(corrected));
            throw;
        }
        return corrected;
    }

 private:
    void send(const std::u16string& text) {
        word_.call(L"FileNew");
        hasDocument_ = true;
        word_.call(L"Insert", Variant(text));
        word_.call(L"StartOfDocument");
        word_.call(L"EndOfDocument", Variant(1L));
    }

    std::u16string fetch() {
        const Variant variable(u"MyVar");
        word_.call(L"EditSelectAll");
        word_.call(L"SetDocumentVar", variable, word_.call(L"Selection"));
        return TextFromWordProcessor(word_.call(L"GetDocumentVar", variable).text());
    }

    // Never closes what the user has open.
    void close() {
        const Variant discard(2L);
        if (hasDocument_) word_.call(isOurs_ ? L"FileCloseAll" : L"FileClose", discard);
        hasDocument_ = false;
        if (isOurs_) {
            word_.call(L"AppClose");
        } else {
            found_.putBack();
        }
    }

    // Tries every step: after a call that failed others may still work.
    void rescue(HWND owner, const std::u16string& text, std::u16string corrected) {
        try {
            if (hasDocument_ && corrected.empty()) {
                word_.call(L"EditSelectAll");
                corrected = TextFromWordProcessor(word_.call(L"Selection").text());
            }
        } catch (const std::exception&) {
            // There is no more than what was sent.
        }
        try {
            if (!corrected.empty() && corrected != text) win::SetClipboardText(owner, corrected);
        } catch (const std::exception&) {
            // Another program has the clipboard open.
        }
        try {
            close();
        } catch (const std::exception&) {
            // The word processor no longer answers.
        }
    }

    AutomationObject word_;
    bool isOurs_;
    FoundWindow found_;
    bool hasDocument_ = false;
};

}  // namespace

std::unique_ptr<SpellService> StartWordBasic() {
    const FoundWindow found;
    const bool isOurs = !found.isThere() && !win::IsAutomationRunning(L"Word.Basic") &&
                        !win::IsAutomationRunning(L"Word.Application");
    auto word = AutomationObject::create(L"Word.Basic");
    if (!word) return nullptr;
    try {
        word->call(L"AppMinimize");
        return std::make_unique<WordBasic>(std::move(*word), isOurs, found);
    } catch (const std::exception&) {
        if (!isOurs) return nullptr;
    }
    try {
        word->call(L"AppClose");
    } catch (const std::exception&) {
        // It ends by itself once its last reference is released.
    }
    return nullptr;
}

}  // namespace authoring
