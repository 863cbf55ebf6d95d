#include "authoring/templates/template_store.h"

#include "settings/CRegSettings.h"
#include "win/unicode.h"
#include "win/wide_path.h"
#include "win/windows.h"

namespace authoring {
namespace {

constexpr char kNames[] = "templateNames";
constexpr char kIds[] = "templateIDs";

DWORD Attributes(const std::string& path) {
    return ::GetFileAttributesW(win::WidePath(path).c_str());
}

}  // namespace

std::string TemplateFolder() {
    std::wstring program(MAX_PATH, L'\0');
    DWORD length = ::GetModuleFileNameW(nullptr, program.data(), MAX_PATH);
    while (length == program.size()) {
        program.resize(program.size() * 2);
        length = ::GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    }
    return win::ToUtf8({program.data(), program.rfind(L'\\', length)}) + "\\Templates";
}

std::string TemplatePath(const std::string& name) {
    return TemplateFolder() + "\\" + name;
}

TemplateList ReadTemplates() {
    TemplateList list;
    const auto read = [&list](const char* section, std::string Template::*part) {
        for (auto& [key, value] : CRegSettings().GetAllRegSettings(section)) {
            const std::size_t slot = key.size() == 1 ? static_cast<std::size_t>(key[0] - '0') : list.size();
            if (slot < list.size()) list[slot].*part = std::move(value);
        }
    };
    read(kNames, &Template::name);
    read(kIds, &Template::id);
    return list;
}

bool WriteTemplates(const TemplateList& list, Moved moved) {
    const CRegSettings settings;
    const TemplateList stored = ReadTemplates();
    bool done = true;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const std::size_t slot = moved == Moved::up ? i : list.size() - 1 - i;
        const Template& wanted = list[slot];
        if (wanted == stored[slot]) continue;
        const std::string key = std::to_string(slot);
        // A slot without an ID is empty: no name is ever beside the ID of another.
        const bool renamed = stored[slot].name != wanted.name;
        done = done && (!renamed || settings.SaveRegSetting(kIds, key, "")) &&
               settings.SaveRegSetting(kNames, key, wanted.name) &&
               settings.SaveRegSetting(kIds, key, wanted.id);
    }
    return done;
}

bool SetFileReadOnly(const std::string& path, bool readOnly) {
    const DWORD attributes =
        readOnly ? FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_ARCHIVE : FILE_ATTRIBUTE_ARCHIVE;
    return ::SetFileAttributesW(win::WidePath(path).c_str(), attributes) != FALSE;
}

WritableFile::WritableFile(const std::string& path) : path_(path) {
    const DWORD attributes = Attributes(path);
    wasReadOnly_ = attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0 &&
                   (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
    if (wasReadOnly_) SetFileReadOnly(path, false);
}

WritableFile::~WritableFile() {
    if (wasReadOnly_ && Attributes(path_) != INVALID_FILE_ATTRIBUTES) SetFileReadOnly(path_, true);
}

}  // namespace authoring
