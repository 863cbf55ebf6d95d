// The list of page templates: nine slots, the newest first.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "authoring/core/fold_table.h"

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

// Why `name` cannot be the name of a file in a folder of its own on Windows, as the text to show, or
// empty if it can. An empty name is not looked at. To be asked also before a stored name is deleted: the
// shell would take "*.*" or "..\x" at its word.
std::string_view FileNameProblem(std::string_view name);

// The listed template whose file Windows would overwrite because the names differ only in case, or null.
const Template* TemplateInOtherCase(const TemplateList& list, std::string_view name, const FoldTable& fold);

// Puts a template into the first slot and moves all others down by one. What was in the last slot falls
// off the list, and its file stays.
TemplateList WithTemplate(const TemplateList& list, Template added);

// The list without gaps: every pair that has a name, an ID and a file, by `fileExists`, in the old order,
// less those with the name of the pair kept just before.
TemplateList RebuiltTemplates(const TemplateList& list,
                              const std::function<bool(const std::string& name)>& fileExists);

// How many templates the Organize dialog offers: those before the first slot without an ID, so that an
// entry's position there is its slot.
std::size_t OfferedTemplates(const TemplateList& list);

}  // namespace authoring
