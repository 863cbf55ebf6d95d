// The list of page templates: nine slots, the newest first.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace authoring {

inline constexpr std::size_t kTemplateSlots = 9;

struct Template {
    std::string name;  // of its file, without a folder
    std::string id;    // what the menu shows
    friend bool operator==(const Template&, const Template&) = default;
};

using TemplateList = std::array<Template, kTemplateSlots>;

// Why a new template cannot be added, as the text to show, or empty if it can: name or ID missing, name
// or ID in use (exact comparison, all names before all IDs), or a name that is no plain file name.
std::string NewTemplateProblem(const TemplateList& list, std::string_view name, std::string_view id);

// Why `name` cannot be the name of a file in a folder of its own on Windows, as the text to show, or empty if
// it can. An empty name is not looked at. Also to be checked before the file of a stored name is deleted: the
// shell would act on "*.*" or "..\x".
std::string_view FileNameProblem(std::string_view name);

// The listed template of another name whose file Windows would overwrite all the same, by `sameFile`, or
// null.
const Template* TemplateOfSameFile(
    const TemplateList& list, const std::string& name,
    const std::function<bool(const std::string&, const std::string&)>& sameFile);

// Puts a template into the first slot and moves all others down by one. What was in the last slot falls
// off the list, and its file stays.
TemplateList WithTemplate(const TemplateList& list, Template added);

// What the menu shows, slot by slot: every pair that has a name, an ID and a file, by `fileExists`, less
// those with the name of the pair shown just before. The other slots are empty.
TemplateList ShownTemplates(const TemplateList& list,
                            const std::function<bool(const std::string& name)>& fileExists);

// These pairs in their old order and without gaps.
TemplateList RebuiltTemplates(const TemplateList& list,
                              const std::function<bool(const std::string& name)>& fileExists);

// The slots that the Organize dialog offers: all that have an ID, for what the menu hides can be deleted
// there.
std::vector<std::size_t> OfferedSlots(const TemplateList& list);

}  // namespace authoring
