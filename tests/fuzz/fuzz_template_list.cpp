// A template list that may have been damaged in the settings store. An input is lines: a name to add,
// then name and ID of each slot; a file exists if its name does not begin with '-'.
#include <algorithm>

#include "authoring/templates/core/template_list.h"
#include "check.h"

using authoring::Template;
using authoring::TemplateList;

namespace {

bool Exists(const std::string& name) {
    return !name.starts_with('-');
}

void CheckRebuilt(const TemplateList& list) {
    const TemplateList rebuilt = authoring::RebuiltTemplates(list, Exists);
    Check(authoring::RebuiltTemplates(rebuilt, Exists) == rebuilt);
    const std::size_t kept = authoring::OfferedSlots(rebuilt).size();
    auto from = list.begin();
    for (std::size_t i = 0; i < kept; ++i) {
        Check(!rebuilt[i].name.empty() && Exists(rebuilt[i].name));
        Check(i == 0 || rebuilt[i].name != rebuilt[i - 1].name);
        from = std::find(from, list.end(), rebuilt[i]);
        Check(from != list.end());
        ++from;
    }
    for (std::size_t i = kept; i < rebuilt.size(); ++i) Check(rebuilt[i] == Template{});
}

void CheckAcceptedName(std::string_view name) {
    Check(name.find_first_of({"\\/:*?\"<>|\r\n\t", 13}) == std::string_view::npos);  // NUL too
    Check(!name.ends_with('.') && !name.ends_with(' '));
}

}  // namespace

void Try(std::string_view input) {
    const std::string name = TakeLine(input);
    TemplateList list;
    for (Template& slot : list) slot = {TakeLine(input), TakeLine(input)};

    CheckRebuilt(list);
    const std::string id = "An ID that is not in the list";
    if (authoring::NewTemplateProblem(list, name, id).empty()) {
        CheckAcceptedName(name);
        const TemplateList longer = authoring::WithTemplate(list, {name, id});
        Check(!authoring::NewTemplateProblem(longer, name, "another").empty());
        Check(!authoring::NewTemplateProblem(longer, "another name", id).empty());
        CheckRebuilt(longer);
    }
}
