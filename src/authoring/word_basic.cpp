#include "authoring/word_basic.h"

#include <exception>
#include <utility>

#include "authoring/core/spell_text.h"
#include "win/automation.h"

namespace authoring {
namespace {

using win::AutomationObject;
using win::Variant;

class WordBasic : public SpellService {
 public:
    explicit WordBasic(AutomationObject word) : word_(std::move(word)) {}

    std::optional<std::string> correct(HWND, const std::string& text) override {
        const Variant variable("MyVar");
        word_.call(L"FileNew");
        word_.call(L"Insert", Variant(text));
        word_.call(L"StartOfDocument");
        word_.call(L"EndOfDocument", Variant(1L));
        word_.call(L"ToolsSpelling");
        word_.call(L"EditSelectAll");
        word_.call(L"SetDocumentVar", variable, word_.call(L"Selection"));
        const std::string corrected = word_.call(L"GetDocumentVar", variable).text();
        constexpr long kDiscard = 2;
        word_.call(L"FileCloseAll", Variant(kDiscard));
        word_.call(L"AppClose");
        return TextFromWordProcessor(corrected);
    }

 private:
    AutomationObject word_;
};

}  // namespace

std::unique_ptr<SpellService> StartWordBasic() {
    auto word = AutomationObject::create(L"Word.Basic");
    if (!word) return nullptr;
    try {
        word->call(L"AppMinimize");
    } catch (const std::exception&) {
        return nullptr;
    }
    return std::make_unique<WordBasic>(std::move(*word));
}

}  // namespace authoring
