#include <optional>
#include <set>
#include <thread>

#include "support/com_object.h"
#include "support/standin_word.h"
#include "win/app_test.h"
#include "win/clipboard.h"

#define MIN_SPELLING_NTDDI 0
#include <spellcheck.h>

namespace {

constexpr char kDone[] = "Spell Check Completed.";
constexpr char kFailed[] = "Spell check  failed.\r\nIf problem persists, please contact Quillon Support.";
constexpr char kNoWord[] = "Could not Load Microsoft Word!";

class WordTest : public AppTest {
 protected:
    // The word processor is there, with an order for its stand-in.
    void install(const std::string& order = "") { word_.emplace(logPath(), order); }
    std::string logPath() const { return scratch("word.log"); }
    // The calls that the word processor got, once it has let go.
    std::string calls() const {
        std::string log;
        seen::Until([&] { return (log = readFile(logPath())).ends_with("\nreleased\n"); });
        return log;
    }
    std::string check() { return said(tbrSpelling, "Quillon Note:"); }

 private:
    std::optional<StandinWord> word_;
};

TEST_F(WordTest, TheWholePageGoesThroughTheWordProcessor) {
    install();
    newPage("<B>teh</B>\r\n\r\nteh caf\xE9\r\n").txtPad().select(4, 4);
    EXPECT_EQ(check(), kDone);
    EXPECT_EQ(calls(),
              "AppMinimize\nFileNew\nInsert <B>teh</B>\r\n\r\nteh caf\xE9\r\n\nStartOfDocument\n"
              "EndOfDocument 1\nToolsSpelling\nEditSelectAll\nSelection\n"
              "SetDocumentVar MyVar <B>the</B>\r\rthe caf\xE9\r\r\nGetDocumentVar MyVar\n"
              "FileCloseAll 2\nAppClose\nreleased\n");
    EXPECT_EQ(pageText(), "<B>the</B>\r\n\r\nthe caf\xE9\r\n");
    EXPECT_TRUE(active().txtPad().isChanged());
    EXPECT_EQ(selected(), "0-" + std::to_string(active().txtPad().textLength()));
    EXPECT_EQ(clipboard(), "<B>teh</B>\r\n\r\nteh caf\xE9\r\n");
    EXPECT_TRUE(label("Current Line No: 1"));
    EXPECT_TRUE(pageHasFocus());
}

TEST_F(WordTest, AnEmptyPageAsksNobodyAndOneWithoutMistakesStaysUnchanged) {
    install();
    newPage("");
    run(tbrSpelling);
    EXPECT_EQ(readFile(logPath()), "(no file)");
    EXPECT_TRUE(pageHasFocus());
    newPage("caf\xE9 \x80 fine\r\n\tend");
    EXPECT_EQ(check(), kDone);
    EXPECT_EQ(pageText(), "caf\xE9 \x80 fine\r\n\tend");
    EXPECT_FALSE(active().txtPad().isChanged());
}

TEST_F(WordTest, OnlyTheSelectionIsSentAndReplaced) {
    install();
    newPage("teh one\r\nteh two\r\nteh three").txtPad().select(9, 18);
    EXPECT_EQ(check(), kDone);
    EXPECT_NE(calls().find("Insert teh two\r\n\n"), std::string::npos);
    EXPECT_EQ(pageText(), "teh one\r\nthe two\r\nteh three");
    EXPECT_TRUE(active().txtPad().isChanged());
    EXPECT_EQ(clipboard(), "teh one\r\nteh two\r\nteh three");
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "teh one\r\nteh two\r\nteh three");
}

TEST_F(WordTest, EachCallThatFailsLeavesThePageAsItWas) {
    newPage("teh one\r\nteh two").txtPad().select(2, 5);
    win::SetClipboardText(main().mainHwnd(), "kept");
    install("each");
    for (int failing = 1; failing <= 12; ++failing) {
        SCOPED_TRACE(failing);
        EXPECT_EQ(said(tbrSpelling), failing == 1 ? kNoWord : kFailed);
        EXPECT_EQ(pageText(), "teh one\r\nteh two");
        EXPECT_FALSE(active().txtPad().isChanged());
        EXPECT_EQ(selected(), "2-5");
        EXPECT_EQ(clipboard(), "kept");
        EXPECT_TRUE(::IsWindowEnabled(main().mainHwnd()));
        EXPECT_TRUE(calls().ends_with("\nreleased\n"));
        ::DeleteFileA(logPath().c_str());
    }
}

TEST_F(WordTest, WithoutAnySpellingThatIsSaid) {
    newPage("teh");
    EXPECT_EQ(said(tbrSpelling), kNoWord);
}

// What happens to the page while the word processor's own dialog is open.
TEST_F(WordTest, ThePageCannotBeTouchedMeanwhileAndMayEvenGo) {
    install("ask");
    newPage("other");
    bool enabled = true;
    const std::jthread user(
        [&, child = newPage("teh").hwnd(), client = main().mdiClient(), mainWindow = main().mainHwnd()] {
            HWND asked = nullptr;
            EXPECT_TRUE(seen::Until([&] { return (asked = ::FindWindowA(nullptr, "Stand-in spelling")); }));
            enabled = ::IsWindowEnabled(mainWindow) != FALSE;
            ::SendMessageA(client, WM_MDIDESTROY, reinterpret_cast<WPARAM>(child), 0);
            ::PostMessageA(asked, WM_COMMAND, IDOK, 0);
        });
    EXPECT_EQ(said(tbrSpelling), kFailed);
    EXPECT_FALSE(enabled);
    EXPECT_EQ(main().documents().size(), 1U);
    EXPECT_EQ(pageText(), "other");
}

// The system's spell checker, which Wine does not have.
class FakeErrors : public ComObject<IEnumSpellingError> {
 public:
    explicit FakeErrors(bool any) : any_(any) {}
    STDMETHOD(Next)(ISpellingError** error) override {
        *error = nullptr;
        return any_ ? S_OK : S_FALSE;
    }

 private:
    bool any_;
};

class FakeStrings : public ComObject<IEnumString> {
 public:
    explicit FakeStrings(std::vector<std::wstring> strings) : strings_(std::move(strings)) {}
    STDMETHOD(Next)(ULONG, LPOLESTR* text, ULONG*) override {
        if (given_ == strings_.size()) return S_FALSE;
        *text = static_cast<wchar_t*>(::CoTaskMemAlloc(10 * sizeof(wchar_t)));
        ::lstrcpyW(*text, strings_[given_++].c_str());
        return S_OK;
    }
    STDMETHOD(Skip)(ULONG) override { return E_NOTIMPL; }
    STDMETHOD(Reset)() override { return E_NOTIMPL; }
    STDMETHOD(Clone)(IEnumString**) override { return E_NOTIMPL; }

 private:
    std::vector<std::wstring> strings_;
    std::size_t given_ = 0;
};

class FakeChecker : public ComObject<ISpellChecker> {
 public:
    STDMETHOD(Check)(LPCWSTR text, IEnumSpellingError** errors) override {
        *errors = new FakeErrors(!known_.contains(text));
        return S_OK;
    }
    STDMETHOD(Suggest)(LPCWSTR text, IEnumString** strings) override {
        *strings = new FakeStrings(std::wstring(text) == L"teh" ? kForTeh : std::vector<std::wstring>{});
        return S_OK;
    }
    STDMETHOD(Add)(LPCWSTR word) override {
        known_.insert(word);
        return S_OK;
    }
    STDMETHOD(get_LanguageTag)(LPWSTR*) override { return E_NOTIMPL; }
    STDMETHOD(Ignore)(LPCWSTR) override { return E_NOTIMPL; }
    STDMETHOD(AutoCorrect)(LPCWSTR, LPCWSTR) override { return E_NOTIMPL; }
    STDMETHOD(GetOptionValue)(LPCWSTR, BYTE*) override { return E_NOTIMPL; }
    STDMETHOD(get_OptionIds)(IEnumString**) override { return E_NOTIMPL; }
    STDMETHOD(get_Id)(LPWSTR*) override { return E_NOTIMPL; }
    STDMETHOD(get_LocalizedName)(LPWSTR*) override { return E_NOTIMPL; }
    STDMETHOD(add_SpellCheckerChanged)(ISpellCheckerChangedEventHandler*, DWORD*) override {
        return E_NOTIMPL;
    }
    STDMETHOD(remove_SpellCheckerChanged)(DWORD) override { return E_NOTIMPL; }
    STDMETHOD(GetOptionDescription)(LPCWSTR, IOptionDescription**) override { return E_NOTIMPL; }
    STDMETHOD(ComprehensiveCheck)(LPCWSTR, IEnumSpellingError**) override { return E_NOTIMPL; }

 private:
    const std::vector<std::wstring> kForTeh{L"th\x00E9y", L"ten"};
    std::set<std::wstring> known_{L"the", L"end"};
};

class FakeCheckers : public ComObject<ISpellCheckerFactory> {
    STDMETHOD(get_SupportedLanguages)(IEnumString**) override { return E_NOTIMPL; }
    STDMETHOD(IsSupported)(LPCWSTR, BOOL*) override { return E_NOTIMPL; }
    STDMETHOD(CreateSpellChecker)(LPCWSTR, ISpellChecker** checker) override {
        *checker = new FakeChecker;
        return S_OK;
    }
};

class SystemSpellingTest : public AppTest {
 protected:
    // Presses a button once the dialog asks about `word`.
    static void answer(HWND dialog, const std::string& word, const std::string& button,
                       const std::string& typed = "") {
        EXPECT_TRUE(seen::Until([&] { return seen::Child(dialog, word, "Static"); })) << word;
        if (!typed.empty()) ::SetWindowTextA(seen::ChildOfClass(dialog, "Edit"), typed.c_str());
        ::SendMessageA(seen::Child(dialog, button, "Button"), BM_CLICK, 0, 0);
    }
    std::string checkWith(const std::function<void(HWND)>& answers) {
        return heard([&] { run(tbrSpelling); }, {{"Spelling", answers}, User::press("Quillon Note:", IDOK)});
    }

 private:
    ClassServer server_{__uuidof(SpellCheckerFactory), CLSCTX_INPROC_SERVER, [] { return new FakeCheckers; }};
};

TEST_F(SystemSpellingTest, EveryAnswerDoesWhatItSays) {
    const std::string page = "<teh>teh Qu end teh Xy Qu Xy Xy Zz Vw</teh>";
    newPage(page);
    EXPECT_EQ(checkWith([](HWND dialog) {
                  answer(dialog, "teh", "&Change");
                  answer(dialog, "Qu", "I&gnore All");
                  answer(dialog, "teh", "&Change", "ten");
                  answer(dialog, "Xy", "&Ignore");
                  answer(dialog, "Xy", "&Add");
                  answer(dialog, "Zz", "&Change");
                  answer(dialog, "Vw", "&Change", "W");
              }),
              kDone);
    EXPECT_EQ(pageText(), "<teh>th\xE9y Qu end ten Xy Qu Xy Xy Zz W</teh>");
    EXPECT_EQ(clipboard(), page);
}

TEST_F(SystemSpellingTest, ASuggestionCanBeChosenAndTheRestBeLeft) {
    newPage("teh teh teh");
    EXPECT_EQ(checkWith([](HWND dialog) {
                  const HWND list = seen::ChildOfClass(dialog, "ListBox");
                  ::SendMessageA(list, LB_SETCURSEL, 1, 0);
                  Notify(list, LBN_SELCHANGE);
                  EXPECT_EQ(seen::TextOf(seen::ChildOfClass(dialog, "Edit")), "ten");
                  answer(dialog, "teh", "&Change");
                  answer(dialog, "teh", "Close");
              }),
              kDone);
    EXPECT_EQ(pageText(), "ten teh teh");
    newPage("teh");
    heard([&] { run(tbrSpelling); }, {User::press("Spelling", IDCANCEL)});
    EXPECT_EQ(pageText(), "teh");
    EXPECT_FALSE(active().txtPad().isChanged());
}

}  // namespace
