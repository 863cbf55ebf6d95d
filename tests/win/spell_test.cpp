#include "authoring/frmSpelling.h"
#include "support/standin_word.h"
#include "win/app_test.h"
#include "win/clipboard.h"
#include "win/com.h"
#include "win/unique.h"

#define MIN_SPELLING_NTDDI 0
#include <spellcheck.h>

namespace {

constexpr char kFailed[] = "Spell check  failed.\r\nIf problem persists, please contact Quillon Support.";
constexpr char kNoWord[] = "Could not Load Microsoft Word!";

class WordTest : public AppTest {
 protected:
    static void TearDownTestSuite() { uninstall(); }

    // The word processor is there, with orders for its stand-in; the tests after this one have it too.
    void install(const std::string& orders = "0") {
        if (word_ && orders == orders_) return;
        word_.emplace(logPath(), orders);
        orders_ = orders;
    }
    static void uninstall() { word_.reset(); }
    std::string logPath() const { return scratch("word.log"); }

    // The calls that the word processor got, once it has ended.
    std::string calls() const {
        std::string log;
        seen::Until([&] {
            log = readFile(logPath());
            return log.ends_with("released\n");
        });
        return log;
    }

    std::string check(const std::string& title) {
        User user({User::press(title, IDOK)});
        run(tbrSpelling);
        return user.heard().empty() ? "" : user.heard()[0];
    }

    static inline std::optional<StandinWord> word_;
    static inline std::string orders_;
};

TEST_F(WordTest, TheWholePageGoesThroughTheWordProcessor) {
    install();
    newPage("<B>teh</B>\r\n\r\nteh end\r\n").txtPad().select(4, 4);
    EXPECT_EQ(check("Quillon Note:"), "Spell Check Completed.");
    EXPECT_EQ(
        calls(),
        "AppMinimize\nFileNew\nInsert <B>teh</B>\\r\\n\\r\\nteh end\\r\\n\nStartOfDocument\nEndOfDocument 1\n"
        "ToolsSpelling\nEditSelectAll\nSelection\nSetDocumentVar MyVar <B>the</B>\\r\\rthe end\\r\\r\n"
        "GetDocumentVar MyVar\nFileCloseAll 2\nAppClose\nreleased\n");
    EXPECT_EQ(pageText(), "<B>the</B>\r\n\r\nthe end\r\n");
    EXPECT_TRUE(active().txtPad().isChanged());
    EXPECT_EQ(active().txtPad().selection().start, 0);
    EXPECT_EQ(active().txtPad().selection().end, active().txtPad().textLength());
    EXPECT_EQ(win::ClipboardText(main().mainHwnd()), "<B>teh</B>\r\n\r\nteh end\r\n");
    EXPECT_TRUE(label("Current Line No: 1"));
    EXPECT_EQ(::GetFocus(), active().txtPad().hwnd());
}

TEST_F(WordTest, APageWithoutMistakesStaysUnchanged) {
    install();
    newPage("caf\xE9 \x80 fine\r\n\tend");
    EXPECT_EQ(check("Quillon Note:"), "Spell Check Completed.");
    EXPECT_EQ(pageText(), "caf\xE9 \x80 fine\r\n\tend");
    EXPECT_FALSE(active().txtPad().isChanged());
}

TEST_F(WordTest, OnlyTheSelectionIsSentAndReplaced) {
    install();
    newPage("teh one\r\nteh two\r\nteh three").txtPad().select(9, 18);
    EXPECT_EQ(check("Quillon Note:"), "Spell Check Completed.");
    EXPECT_NE(calls().find("Insert teh two\\r\\n\n"), std::string::npos);
    EXPECT_EQ(pageText(), "teh one\r\nthe two\r\nteh three");
    EXPECT_TRUE(active().txtPad().isChanged());
    EXPECT_EQ(win::ClipboardText(main().mainHwnd()), "teh one\r\nteh two\r\nteh three");
    run(mnuEditUndo);
    EXPECT_EQ(pageText(), "teh one\r\nteh two\r\nteh three");
}

TEST_F(WordTest, AnEmptyPageAsksNobody) {
    install();
    newPage("");
    run(tbrSpelling);
    EXPECT_EQ(readFile(logPath()), "(no file)");
    EXPECT_EQ(::GetFocus(), active().txtPad().hwnd());
}

TEST_F(WordTest, EachCallThatFailsLeavesThePageAsItWas) {
    const std::string page = "teh one\r\nteh two";
    newPage(page).txtPad().select(2, 5);
    win::SetClipboardText(main().mainHwnd(), "kept");
    install("each");
    for (int failing = 1; failing <= 12; ++failing) {
        EXPECT_EQ(check("Quillon"), failing == 1 ? kNoWord : kFailed) << "call " << failing;
        EXPECT_EQ(pageText(), page);
        EXPECT_FALSE(active().txtPad().isChanged());
        EXPECT_EQ(active().txtPad().selection().start, 2);
        EXPECT_EQ(active().txtPad().selection().end, 5);
        EXPECT_EQ(win::ClipboardText(main().mainHwnd()), "kept");
        EXPECT_TRUE(::IsWindowEnabled(main().mainHwnd()));
        EXPECT_TRUE(calls().ends_with("\nreleased\n"));
        ::DeleteFileA(logPath().c_str());
    }
}

TEST_F(WordTest, WithoutAWordProcessorThatIsSaid) {
    uninstall();
    newPage("teh");
    EXPECT_EQ(check("Quillon"), kNoWord);
    EXPECT_EQ(pageText(), "teh");
}

// What happens to the page while the word processor's own dialog is open.
TEST_F(WordTest, ThePageCannotBeTouchedMeanwhileAndMayEvenGo) {
    install("ask");
    frmChild& page = newPage("teh");
    newPage("other");
    ::SendMessageA(main().mdiClient(), WM_MDIACTIVATE, reinterpret_cast<WPARAM>(page.hwnd()), 0);
    bool enabled = true;
    std::thread user([&, child = page.hwnd(), client = main().mdiClient(), window = main().mainHwnd()] {
        HWND box = nullptr;
        EXPECT_TRUE(
            seen::Until([&] { return (box = ::FindWindowA(nullptr, "Stand-in spelling")) != nullptr; }));
        enabled = ::IsWindowEnabled(window) != FALSE;
        ::SendMessageA(client, WM_MDIDESTROY, reinterpret_cast<WPARAM>(child), 0);
        ::PostMessageA(box, WM_COMMAND, IDOK, 0);
    });
    EXPECT_EQ(check("Quillon"), kFailed);
    user.join();
    EXPECT_FALSE(enabled);
    EXPECT_EQ(main().documents().size(), 1U);
    EXPECT_EQ(pageText(), "other");
}

class FewWords : public authoring::SpellDictionary {
 public:
    bool knows(const std::string& word) override { return word == "the" || word == "end" || word == added; }
    std::vector<std::string> suggestions(const std::string& word) override {
        if (word == "teh") return {"the", "ten"};
        return {};
    }
    void add(const std::string& word) override { added = word; }

    std::string added;
};

struct Spelling {
    FewWords dictionary;
    authoring::SpellingPass pass;
    explicit Spelling(const std::string& page) : pass(page, authoring::kAsciiLetters, dictionary) {}
};

// Presses a button once the dialog asks about `word`.
User::Act Answer(const std::string& word, const std::string& button, const std::string& typed = "") {
    return {"Spelling", [=](HWND dialog) {
                EXPECT_TRUE(seen::Until([&] { return seen::Child(dialog, word, "Static") != nullptr; }))
                    << word;
                if (!typed.empty()) ::SetWindowTextA(seen::ChildOfClass(dialog, "Edit"), typed.c_str());
                ::SendMessageA(seen::Child(dialog, button, "Button"), BM_CLICK, 0, 0);
            }};
}

void Play(const std::vector<User::Act>& acts) {
    HWND dialog = nullptr;
    ASSERT_TRUE(
        seen::Until([&] { return (dialog = seen::Titled(::GetCurrentProcessId(), "Spelling")) != nullptr; }));
    for (const User::Act& act : acts) act.act(dialog);
}

// The system's spell checker, which Wine does not have. It does not know "teh".
template <typename Interface>
class Fake : public Interface {
 public:
    virtual ~Fake() = default;
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** object) override {
        *object = id == IID_IUnknown || id == __uuidof(Interface) ? this : nullptr;
        if (!*object) return E_NOINTERFACE;
        this->AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0) delete this;
        return left;
    }

 private:
    ULONG references_ = 1;
};

class FakeError : public Fake<ISpellingError> {
    HRESULT STDMETHODCALLTYPE get_StartIndex(ULONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Length(ULONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_CorrectiveAction(CORRECTIVE_ACTION*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Replacement(LPWSTR*) override { return E_NOTIMPL; }
};

class FakeErrors : public Fake<IEnumSpellingError> {
 public:
    explicit FakeErrors(bool any) : any_(any) {}
    HRESULT STDMETHODCALLTYPE Next(ISpellingError** error) override {
        *error = any_ ? new FakeError : nullptr;
        return std::exchange(any_, false) ? S_OK : S_FALSE;
    }

 private:
    bool any_;
};

class FakeStrings : public Fake<IEnumString> {
    HRESULT STDMETHODCALLTYPE Next(ULONG, LPOLESTR* text, ULONG*) override {
        if (given_++ > 0) return S_FALSE;
        *text = static_cast<wchar_t*>(::CoTaskMemAlloc(5 * sizeof(wchar_t)));
        ::lstrcpyW(*text, L"th\x00E9y");
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Skip(ULONG) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Reset() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IEnumString**) override { return E_NOTIMPL; }
    int given_ = 0;
};

class FakeChecker : public Fake<ISpellChecker> {
 public:
    HRESULT STDMETHODCALLTYPE Check(LPCWSTR text, IEnumSpellingError** errors) override {
        *errors = new FakeErrors(::lstrcmpW(text, L"teh") == 0);
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE Suggest(LPCWSTR, IEnumString** strings) override {
        *strings = new FakeStrings;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE get_LanguageTag(LPWSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Add(LPCWSTR) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Ignore(LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE AutoCorrect(LPCWSTR, LPCWSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetOptionValue(LPCWSTR, BYTE*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_OptionIds(IEnumString**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_Id(LPWSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_LocalizedName(LPWSTR*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE add_SpellCheckerChanged(ISpellCheckerChangedEventHandler*, DWORD*) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE remove_SpellCheckerChanged(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetOptionDescription(LPCWSTR, IOptionDescription**) override {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE ComprehensiveCheck(LPCWSTR, IEnumSpellingError**) override { return E_NOTIMPL; }
};

class FakeCheckers : public Fake<ISpellCheckerFactory> {
    HRESULT STDMETHODCALLTYPE get_SupportedLanguages(IEnumString**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE IsSupported(LPCWSTR, BOOL*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CreateSpellChecker(LPCWSTR, ISpellChecker** checker) override {
        *checker = new FakeChecker;
        return S_OK;
    }
};

class FakeClass : public Fake<IClassFactory> {
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID id, void** object) override {
        const win::ComPtr<FakeCheckers> checkers(new FakeCheckers);
        return checkers.get()->QueryInterface(id, object);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

TEST_F(WordTest, WithoutAWordProcessorTheSystemsSpellCheckerServes) {
    uninstall();
    const win::ComPtr<FakeClass> cls(new FakeClass);
    DWORD cookie = 0;
    ASSERT_EQ(::CoRegisterClassObject(__uuidof(SpellCheckerFactory), cls.get(), CLSCTX_INPROC_SERVER,
                                      REGCLS_MULTIPLEUSE, &cookie),
              S_OK);
    newPage("<teh>Is teh page</teh>");
    User user({User::press("Spelling", IDOK), User::press("Quillon Note:", IDOK)});
    run(tbrSpelling);
    EXPECT_EQ(user.heard()[1], "Spell Check Completed.");
    EXPECT_EQ(pageText(), "<teh>Is th\xE9y page</teh>");
    EXPECT_EQ(win::ClipboardText(main().mainHwnd()), "<teh>Is teh page</teh>");

    newPage("teh");
    User canceller({User::press("Spelling", IDCANCEL)});
    run(tbrSpelling);
    canceller.heard();
    EXPECT_EQ(pageText(), "teh");
    EXPECT_FALSE(active().txtPad().isChanged());
    ::CoRevokeClassObject(cookie);
}

class SpellingFormTest : public AppTest {};

TEST_F(SpellingFormTest, EveryAnswerDoesWhatItSays) {
    Spelling spelling("<teh>teh Qu end teh Xy Qu Xy Zz Vw</teh>");
    std::thread user([] {
        Play({Answer("teh", "&Change"), Answer("Qu", "I&gnore All"), Answer("teh", "&Change", "ten"),
              Answer("Xy", "&Ignore"), Answer("Xy", "&Add"), Answer("Zz", "&Change"),
              Answer("Vw", "&Change", "W")});
    });
    EXPECT_TRUE(frmSpelling::correct(main().mainHwnd(), spelling.pass));
    user.join();
    EXPECT_EQ(spelling.pass.result(), "<teh>the Qu end ten Xy Qu Xy Zz W</teh>");
    EXPECT_EQ(spelling.dictionary.added, "Xy");
}

TEST_F(SpellingFormTest, ASuggestionCanBeChosenAndTheRestBeLeft) {
    Spelling spelling("teh teh teh");
    std::thread user([] {
        Play({{"",
               [](HWND dialog) {
                   const HWND list = seen::ChildOfClass(dialog, "ListBox");
                   ::SendMessageA(list, LB_SETCURSEL, 1, 0);
                   ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(list), LBN_SELCHANGE),
                                  reinterpret_cast<LPARAM>(list));
                   EXPECT_EQ(seen::TextOf(seen::ChildOfClass(dialog, "Edit")), "ten");
               }},
              Answer("teh", "&Change"),
              Answer("teh", "Close")});
    });
    EXPECT_FALSE(frmSpelling::correct(main().mainHwnd(), spelling.pass));
    user.join();
    EXPECT_EQ(spelling.pass.result(), "ten teh teh");
}

}  // namespace
