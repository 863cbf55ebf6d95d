#include "authoring/system_spelling.h"

#include <utility>

#include "authoring/code_page.h"
#include "authoring/frmSpelling.h"
#include "win/com.h"
#include "win/error.h"
#include "win/unicode.h"

// The interfaces of Windows 8 and later, which the header hides from programs for older ones.
#define MIN_SPELLING_NTDDI 0
#include <spellcheck.h>

namespace authoring {
namespace {

using win::ComPtr;

void CheckResult(HRESULT result) {
    if (FAILED(result)) throw win::Error(static_cast<DWORD>(result));
}

class SystemDictionary : public SpellDictionary {
 public:
    explicit SystemDictionary(ComPtr<ISpellChecker> checker) : checker_(std::move(checker)) {}

    bool knows(const std::string& word) override {
        IEnumSpellingError* found = nullptr;
        CheckResult(checker_.get()->Check(Wide(word).c_str(), &found));
        const ComPtr<IEnumSpellingError> errors(found);
        ISpellingError* first = nullptr;
        const HRESULT result = errors.get()->Next(&first);
        const ComPtr<ISpellingError> error(first);
        CheckResult(result);
        return result != S_OK;
    }

    std::vector<std::string> suggestions(const std::string& word) override {
        IEnumString* found = nullptr;
        CheckResult(checker_.get()->Suggest(Wide(word).c_str(), &found));
        const ComPtr<IEnumString> strings(found);
        std::vector<std::string> words;
        wchar_t* text = nullptr;
        while (strings.get()->Next(1, &text, nullptr) == S_OK) {
            const win::UniqueTaskText owned(text);
            words.push_back(win::ToAnsi(text));
        }
        return words;
    }

    void add(const std::string& word) override { CheckResult(checker_.get()->Add(Wide(word).c_str())); }

 private:
    // The checker knows the plain apostrophe of English, not always the typographic one.
    static std::wstring Wide(const std::string& word) {
        std::wstring wide = win::ToWide(word);
        for (wchar_t& c : wide) {
            if (c == L'\x2019') c = L'\'';
        }
        return wide;
    }

    ComPtr<ISpellChecker> checker_;
};

class SystemSpelling : public SpellService {
 public:
    explicit SystemSpelling(ComPtr<ISpellChecker> checker) : dictionary_(std::move(checker)) {}

    std::optional<std::string> correct(HWND owner, const std::string& text) override {
        SpellingPass pass(text, SystemLetters(), dictionary_);
        if (!frmSpelling::correct(owner, pass) && !pass.isChanged()) return std::nullopt;
        return pass.result();
    }

 private:
    SystemDictionary dictionary_;
};

// "en-US", in the way that XP can tell it too.
std::wstring UserLanguage() {
    wchar_t language[16] = L"";
    wchar_t country[16] = L"";
    ::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SISO639LANGNAME, language, 16);
    ::GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SISO3166CTRYNAME, country, 16);
    return std::wstring(language) + L'-' + country;
}

}  // namespace

std::unique_ptr<SpellService> StartSystemSpelling() {
    void* object = nullptr;
    if (FAILED(::CoCreateInstance(__uuidof(SpellCheckerFactory), nullptr, CLSCTX_INPROC_SERVER,
                                  __uuidof(ISpellCheckerFactory), &object))) {
        return nullptr;
    }
    const ComPtr<ISpellCheckerFactory> factory(static_cast<ISpellCheckerFactory*>(object));
    for (const std::wstring& language : {UserLanguage(), std::wstring(L"en-US")}) {
        ISpellChecker* checker = nullptr;
        if (SUCCEEDED(factory.get()->CreateSpellChecker(language.c_str(), &checker)) && checker) {
            return std::make_unique<SystemSpelling>(ComPtr<ISpellChecker>(checker));
        }
    }
    return nullptr;
}

}  // namespace authoring
