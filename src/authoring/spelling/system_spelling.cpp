#include <iterator>
#include <utility>

#include "authoring/spelling/core/spell_languages.h"
#include "authoring/spelling/frmSpelling.h"
#include "authoring/spelling/spell_service.h"
#include "win/com.h"
#include "win/disabled.h"
#include "win/unicode.h"

// The interfaces of Windows 8 and later, which the header hides from programs for older ones.
#define MIN_SPELLING_NTDDI 0
#include <spellcheck.h>

namespace authoring {
namespace {

using win::CheckResult;
using win::ComPtr;

std::vector<std::wstring> Texts(const ComPtr<IEnumString>& strings) {
    std::vector<std::wstring> texts;
    wchar_t* text = nullptr;
    while (strings.get()->Next(1, &text, nullptr) == S_OK) {
        const win::UniqueTaskText owned(text);
        texts.emplace_back(text);
    }
    return texts;
}

class SystemDictionary : public SpellDictionary {
 public:
    explicit SystemDictionary(ComPtr<ISpellChecker> checker) : checker_(std::move(checker)) {}

    bool knows(const std::u16string& word) override {
        IEnumSpellingError* found = nullptr;
        CheckResult(checker_.get()->Check(Wide(word).c_str(), &found));
        const ComPtr<IEnumSpellingError> errors(found);
        ISpellingError* first = nullptr;
        const HRESULT result = errors.get()->Next(&first);
        const ComPtr<ISpellingError> error(first);
        CheckResult(result);
        return result != S_OK;
    }

    std::vector<std::u16string> suggestions(const std::u16string& word) override {
        IEnumString* found = nullptr;
        CheckResult(checker_.get()->Suggest(Wide(word).c_str(), &found));
        std::vector<std::u16string> words;
        for (const std::wstring& text : Texts(ComPtr<IEnumString>(found)))
            words.emplace_back(win::AsUtf16(text));
        return words;
    }

    void add(const std::u16string& word) override { CheckResult(checker_.get()->Add(Wide(word).c_str())); }

 private:
    // The checker knows the plain apostrophe of English, not always the typographic one.
    static std::wstring Wide(const std::u16string& word) {
        std::wstring wide(win::AsWide(word));
        for (wchar_t& c : wide) {
            if (c == L'\x2019') c = L'\'';
        }
        return wide;
    }

    ComPtr<ISpellChecker> checker_;
};

// Combining marks count as letters. Beyond U+FFFF, where the system classes surrogates only, the blocks of
// Unicode that hold letters count.
bool IsLetter(char32_t c) {
    if (c > 0xFFFF) {
        const bool isNotation = c >= 0x1D000 && c < 0x1D400;  // of music, and old numbers
        const bool isPicture = c >= 0x1F000 && c < 0x20000;
        return c < 0x40000 && !isNotation && !isPicture;
    }
    const auto unit = static_cast<wchar_t>(c);
    WORD classes = 0;
    ::GetStringTypeW(CT_CTYPE3, &unit, 1, &classes);
    return ::IsCharAlphaW(unit) || (classes & C3_NONSPACING) != 0;
}

class SystemSpelling : public SpellService {
 public:
    explicit SystemSpelling(ComPtr<ISpellChecker> checker) : dictionary_(std::move(checker)) {}

    std::optional<std::u16string> correct(HWND owner, const std::u16string& text) override {
        // The dialog disables its owner itself.
        const win::Disabled others(owner);
        SpellingPass pass(text, IsLetter, dictionary_);
        if (!frmSpelling::correct(owner, pass) && !pass.isChanged()) return std::nullopt;
        return pass.result();
    }

 private:
    SystemDictionary dictionary_;
};

std::string UserLanguage() {
    // LOCALE_SNAME: Vista and later know it, and so does every system that has a checker.
    constexpr LCTYPE kName = 0x5C;
    wchar_t name[85] = L"";
    ::GetLocaleInfoW(LOCALE_USER_DEFAULT, kName, name, static_cast<int>(std::size(name)));
    return win::ToUtf8(name);
}

std::vector<std::string> Supported(ISpellCheckerFactory* factory) {
    IEnumString* found = nullptr;
    std::vector<std::string> languages;
    if (FAILED(factory->get_SupportedLanguages(&found))) return languages;
    for (const std::wstring& language : Texts(ComPtr<IEnumString>(found)))
        languages.push_back(win::ToUtf8(language));
    return languages;
}

}  // namespace

std::unique_ptr<SpellService> StartSystemSpelling(const std::string& language) {
    void* object = nullptr;
    if (FAILED(::CoCreateInstance(__uuidof(SpellCheckerFactory), nullptr, CLSCTX_INPROC_SERVER,
                                  __uuidof(ISpellCheckerFactory), &object))) {
        return nullptr;
    }
    const ComPtr<ISpellCheckerFactory> factory(static_cast<ISpellCheckerFactory*>(object));
    for (const std::string& tag : LanguagesToTry(language, UserLanguage(), Supported(factory.get()))) {
        ISpellChecker* checker = nullptr;
        if (SUCCEEDED(factory.get()->CreateSpellChecker(win::ToWide(tag).c_str(), &checker)) && checker) {
            return std::make_unique<SystemSpelling>(ComPtr<ISpellChecker>(checker));
        }
    }
    return nullptr;
}

}  // namespace authoring
