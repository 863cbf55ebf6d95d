#include "authoring/spell_service.h"

#include "authoring/system_spelling.h"
#include "authoring/word_basic.h"

namespace authoring {

std::unique_ptr<SpellService> StartSpellService() {
    auto service = StartWordBasic();
    return service ? std::move(service) : StartSystemSpelling();
}

}  // namespace authoring
