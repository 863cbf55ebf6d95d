#include <optional>
#include <set>
#include <thread>

#include "support/com_object.h"
#include "support/standin_word.h"
#include "support/wide.h"
#include "win/app_test.h"

#define MIN_SPELLING_NTDDI 0
#include <spellcheck.h>

namespace {

constexpr char kDone[] = "Spell Check Completed.";
constexpr char kFailed[] = "Spell check  failed.\r\nIf problem persists, please contact Quillon Support.";
constexpr char kNoWord[] = "Could not Load Microsoft Word!";

class WordTest : public AppTest {
 protected:
    // Installs the stand-in for the word processor, with an order for it.
    void install(const std::string& order = "", bool running = false) {
        word_.emplace(logPath(), order);
        EXPECT_TRUE(!running || word_->start());
    }
    std::string logPath() const { return scratch("word.log"); }
    // The calls that the word processor got, once it has been released.
    std::string calls() const {
        std::string log;
        seen::Until([&] { return (log = readFile(logPath())).ends_with("\nreleased\n"); });
        return log;
    }
    std::string check() { return said(tbrSpelling, "Quillon Note:"); }

 private:
    std::optional<StandinWord> word_;
};

TEST_F(WordTest, TheWholePageGoesThroughTheWordProcessorUnlessItIsEmpty) {
    install();
    newPage("");
    run(tbrSpelling);
    EXPECT_EQ(readFile(logPath()), "(no file)");
    newPage("<B>teh</B>\r\n\r\nteh caf\u00E9\r\n").txtPad().select(4, 4);
    EXPECT_EQ(check(), kDone);
    EXPECT_EQ(calls(),
              "AppMinimize\nFileNew\nInsert <B>teh</B>\r\n\r\nteh caf\u00E9\r\n\nStartOfDocument\n"
              "EndOfDocument 1\nToolsSpelling\nEditSelectAll\nSelection\n"
              "SetDocumentVar MyVar <B>the</B>\r\rthe caf\u00E9\r\r\nGetDocumentVar MyVar\n"
              "FileCloseAll 2\nAppClose\nreleased\n");
    EXPECT_EQ(pageText(), "<B>the</B>\r\n\r\nthe caf\u00E9\r\n");
    EXPECT_TRUE(active().txtPad().isChanged());
    EXPECT_EQ(selected(), "0-" + std::to_string(active().txtPad().textLength()));
    EXPECT_EQ(clipboard(), "<B>teh</B>\r\n\r\nteh caf\u00E9\r\n");
    EXPECT_TRUE(label("Current Line No: 1"));
    EXPECT_TRUE(pageHasFocus());
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "<B>teh</B>\r\n\r\nteh caf\u00E9\r\n");
    newPage("caf\u00E9 \u20AC fine\r\n\tend");
    EXPECT_EQ(check(), kDone);
    EXPECT_EQ(pageText(), "caf\u00E9 \u20AC fine\r\n\tend");
    EXPECT_FALSE(active().txtPad().isChanged()) << "it has no mistakes";
    calls();
}

TEST_F(WordTest, EachCallThatFailsLeavesThePageAndTheWordProcessorAsTheyWere) {
    newPage("teh one\r\nteh two").txtPad().select(2, 16);
    install("each");
    for (int failing = 1; failing <= 12; ++failing) {
        SCOPED_TRACE(failing);
        setClipboard("kept");
        EXPECT_EQ(said(tbrSpelling), failing == 1 ? kNoWord : kFailed);
        EXPECT_EQ(pageText(), "teh one\r\nteh two");
        EXPECT_FALSE(active().txtPad().isChanged());
        EXPECT_EQ(selected(), "2-16");
        // From the sixth call on, what had been corrected by then.
        EXPECT_EQ(clipboard(), failing < 6 ? "kept" : "h one\r\nthe two");
        EXPECT_TRUE(::IsWindowEnabled(main().mainHwnd()));
        const std::string log = calls();
        EXPECT_TRUE(log.ends_with("\nAppClose\nreleased\n")) << log;
        EXPECT_EQ(log.find("FileCloseAll 2\n") != std::string::npos, failing > 2) << log;
        ::DeleteFileA(logPath().c_str());
    }
}

TEST_F(WordTest, OneThatRanBeforeKeepsItsDocumentsAndGetsTheSelectionOnly) {
    const std::string page = "teh one\r\nteh two\r\nteh three";
    for (const char* order : {"running", "window"}) {
        SCOPED_TRACE(order);
        newPage(page).txtPad().select(9, 18);
        install(order, true);
        EXPECT_EQ(check(), kDone);
        const HWND window = ::FindWindowA("OpusApp", nullptr);
        EXPECT_FALSE(window && ::IsIconic(window));
        const std::string log = calls();
        EXPECT_TRUE(log.ends_with("\nGetDocumentVar MyVar\nFileClose 2\nreleased\n")) << log;
        EXPECT_NE(log.find("Insert teh two\r\n\n"), std::string::npos) << log;
        EXPECT_EQ(pageText(), "teh one\r\nthe two\r\nteh three");
        EXPECT_EQ(clipboard(), page);
        run(mnuEditUndo);
        EXPECT_EQ(pageText(), page);
        ::DeleteFileA(logPath().c_str());
    }
}

// While the word processor's own dialog is open.
TEST_F(WordTest, NoWindowCanBeUsedMeanwhileAndThePageMayBeClosed) {
    install("ask");
    newPage("other");
    run(tbrFind);
    run(tbrReplace);
    const HWND find = window("Find");
    const HWND replace = window("Replace");
    ::EnableWindow(replace, FALSE);
    bool enabled = true;
    const std::jthread user(
        [&, child = newPage("teh").hwnd(), client = main().mdiClient(), mainWindow = main().mainHwnd()] {
            HWND asked = nullptr;
            EXPECT_TRUE(seen::Until([&] { return (asked = ::FindWindowA(nullptr, "Stand-in spelling")); }));
            enabled = ::IsWindowEnabled(mainWindow) || ::IsWindowEnabled(find);
            ::SendMessageA(client, WM_MDIDESTROY, reinterpret_cast<WPARAM>(child), 0);
            ::PostMessageA(asked, WM_COMMAND, IDOK, 0);
        });
    EXPECT_EQ(said(tbrSpelling), kFailed);
    EXPECT_FALSE(enabled);
    EXPECT_TRUE(::IsWindowEnabled(main().mainHwnd()));
    EXPECT_EQ(main().documents().size(), 1U);
    EXPECT_EQ(pageText(), "other");
    EXPECT_EQ(clipboard(), "the") << "the corrected text is not lost";
}

// Stands in for the system's spell checker, which Wine does not have: one object with all its interfaces.
class SpellDouble : public ISpellCheckerFactory,
                    public ISpellChecker,
                    public IEnumSpellingError,
                    public IEnumString {
 public:
    std::string language;  // of the checker that was made last
    bool fails = false;

    STDMETHOD(QueryInterface)(REFIID, void** object) override {
        *object = static_cast<ISpellCheckerFactory*>(this);
        return S_OK;
    }
    STDMETHOD_(ULONG, AddRef)() override { return 1; }
    STDMETHOD_(ULONG, Release)() override { return 1; }

    STDMETHOD(get_SupportedLanguages)(IEnumString** languages) override {
        return tell({L"en-GB", L"de-DE"}, languages);
    }
    STDMETHOD(CreateSpellChecker)(LPCWSTR tag, ISpellChecker** checker) override {
        language = Narrow(tag);
        if (language != "en-GB" && language != "de-DE" && language != "en-US") return E_INVALIDARG;
        *checker = this;
        return S_OK;
    }
    STDMETHOD(Check)(LPCWSTR word, IEnumSpellingError** errors) override {
        isWrong_ = !known_.contains(word);
        *errors = this;
        return fails ? E_FAIL : S_OK;
    }
    STDMETHOD(Next)(ISpellingError** error) override {
        *error = nullptr;
        return isWrong_ ? S_OK : S_FALSE;
    }
    STDMETHOD(Suggest)(LPCWSTR word, IEnumString** words) override {
        if (fails) return E_FAIL;
        return std::wstring(word) == L"teh" ? tell({L"th\x00E9y", L"ten"}, words) : tell({}, words);
    }
    STDMETHOD(Add)(LPCWSTR word) override {
        known_.insert(word);
        return fails ? E_FAIL : S_OK;
    }
    STDMETHOD(Next)(ULONG, LPOLESTR* text, ULONG*) override {
        if (strings_.empty()) return S_FALSE;
        *text = static_cast<wchar_t*>(::CoTaskMemAlloc(10 * sizeof(wchar_t)));
        ::lstrcpyW(*text, strings_.front());
        strings_.erase(strings_.begin());
        return S_OK;
    }

    STDMETHOD(IsSupported)(LPCWSTR, BOOL*) override { return E_NOTIMPL; }
    STDMETHOD(Skip)(ULONG) override { return E_NOTIMPL; }
    STDMETHOD(Reset)() override { return E_NOTIMPL; }
    STDMETHOD(Clone)(IEnumString**) override { return E_NOTIMPL; }
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
    HRESULT tell(std::vector<const wchar_t*> strings, IEnumString** told) {
        strings_ = std::move(strings);
        *told = this;
        return S_OK;
    }

    std::vector<const wchar_t*> strings_;
    bool isWrong_ = false;
    std::set<std::wstring> known_{L"the", L"end"};
};

class SystemSpellingTest : public AppTest {
 protected:
    // Presses a button once the dialog asks about `word`.
    static void answer(HWND dialog, const std::string& word, const std::string& button,
                       const std::string& typed = "") {
        EXPECT_TRUE(seen::Until([&] { return seen::Child(dialog, word, "Static"); })) << word;
        if (!typed.empty()) seen::PutText(seen::ChildOfClass(dialog, "Edit"), typed);
        Notify(seen::Child(dialog, button, "Button"), BN_CLICKED);
    }
    std::string checkWith(const std::function<void(HWND)>& answers) {
        return heard([&] { run(tbrSpelling); }, {{"Spelling", answers}, User::press("Quillon Note:", IDOK)});
    }

    SpellDouble checker_;

 private:
    ClassServer server_{__uuidof(SpellCheckerFactory), CLSCTX_INPROC_SERVER,
                        [this] { return static_cast<ISpellCheckerFactory*>(&checker_); }};
};

TEST_F(SystemSpellingTest, EveryAnswerDoesWhatItSays) {
    const std::string page = "<teh>teh Qu end teh Xy Qu Xy Xy Z\u0301\u0142\U00010428 Vw</teh>";
    openPage("index.htm", page);
    EXPECT_EQ(checkWith([](HWND dialog) {
                  answer(dialog, "teh", "&Change");
                  answer(dialog, "Qu", "I&gnore All");
                  answer(dialog, "teh", "&Change", "ten");
                  answer(dialog, "Xy", "&Ignore");
                  answer(dialog, "Xy", "&Add");
                  answer(dialog, "Z\u0301\u0142\U00010428", "&Change");
                  answer(dialog, "Vw", "&Change", "W");
              }),
              kDone);
    EXPECT_EQ(pageText(), "<teh>th\u00E9y Qu end ten Xy Qu Xy Xy Z\u0301\u0142\U00010428 W</teh>");
    EXPECT_EQ(clipboard(), page);
}

TEST_F(SystemSpellingTest, ASuggestionCanBeChosenAndTheRestLeftUnchecked) {
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

TEST_F(SystemSpellingTest, ACheckerThatFailsIsReportedOnceAndSkipsNoWord) {
    newPage("the teh the end teh end end");
    const auto heard =
        User::hears([&] { run(tbrSpelling); },
                    {{"Spelling",
                      [this](HWND dialog) {
                          EXPECT_TRUE(seen::Until([&] { return seen::Child(dialog, "teh", "Static"); }));
                          checker_.fails = true;
                          ::PostMessageA(seen::Child(dialog, "&Change", "Button"), BM_CLICK, 0, 0);
                      }},
                     User::press("Quillon", IDOK),
                     {"Spelling",
                      [](HWND dialog) {
                          answer(dialog, "end", "&Ignore");
                          answer(dialog, "teh", "&Change", "ten");
                          answer(dialog, "end", "&Add");
                      }},
                     User::press("Quillon Note:", IDOK)});
    EXPECT_EQ(heard[1].find("The system's spell checker reports an error."), 0U);
    EXPECT_EQ(heard[3], kDone);
    EXPECT_EQ(pageText(), "the th\u00E9y the end ten end end") << "it asks about no word twice";
}

TEST_F(SystemSpellingTest, ThePagesOwnLanguageIsCheckedOrNone) {
    for (const auto& [tag, language] : {std::pair("de", "de-DE"), {"de-DE-1996", "de-DE"}, {"en", "en-US"}}) {
        newPage("<HTML LANG=" + std::string(tag) + ">end");
        EXPECT_EQ(said(tbrSpelling, "Quillon Note:"), kDone);
        EXPECT_EQ(checker_.language, language);
    }
    newPage("<HTML LANG=fr>end");
    EXPECT_EQ(said(tbrSpelling), kNoWord);
}

}  // namespace
