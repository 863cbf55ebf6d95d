#include "authoring/templates/core/template_list.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "files/core/device_name.h"

namespace authoring {
namespace {

constexpr std::string_view kForbidden = "\\/:*?\"<>|";

bool IsForbidden(char c) {
    return static_cast<unsigned char>(c) < ' ' || kForbidden.find(c) != std::string_view::npos;
}

std::string InUse(std::string_view what) {
    std::string text(what);
    text +=
        "\r\nPlease go back and enter a new name,"
        "\r\nor delete the template with that name"
        "\r\nunder the ORGANIZE TEMPLATES menu.";
    return text;
}

}  // namespace

std::string NewTemplateProblem(const TemplateList& list, std::string_view name, std::string_view id) {
    if (name.empty()) return "Please enter a filename for the template.";
    if (id.empty()) return "Please enter a ID for the template.";
    for (const Template& slot : list) {
        if (slot.name == name) return InUse("That template file is already in use.");
    }
    for (const Template& slot : list) {
        if (slot.id == id) return InUse("That template name is already in use.");
    }
    return std::string(FileNameProblem(name));
}

std::string_view FileNameProblem(std::string_view name) {
    if (std::any_of(name.begin(), name.end(), IsForbidden)) {
        return "A file name cannot contain any of these characters:\r\n"
               "\\  /  :  *  ?  \"  <  >  |\r\n"
               "Please enter a plain file name, without a folder.";
    }
    if (name.ends_with('.') || name.ends_with(' ')) {
        return "A file name cannot end with a dot or a blank.\r\n"
               "Please enter another name.";
    }
    if (files::IsDeviceName(name)) {
        return "Windows keeps that name for a device.\r\n"
               "Please enter another name.";
    }
    return {};
}

const Template* TemplateOfSameFile(
    const TemplateList& list, const std::string& name,
    const std::function<bool(const std::string&, const std::string&)>& sameFile) {
    const auto found = std::find_if(list.begin(), list.end(), [&](const Template& slot) {
        return !slot.name.empty() && slot.name != name && sameFile(slot.name, name);
    });
    return found == list.end() ? nullptr : &*found;
}

TemplateList WithTemplate(const TemplateList& list, Template added) {
    TemplateList result;
    result.front() = std::move(added);
    std::copy(list.begin(), std::prev(list.end()), std::next(result.begin()));
    return result;
}

TemplateList ShownTemplates(const TemplateList& list,
                            const std::function<bool(const std::string& name)>& fileExists) {
    TemplateList shown;
    const Template* last = nullptr;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const Template& slot = list[i];
        if (slot.name.empty() || slot.id.empty() || (last && last->name == slot.name)) continue;
        if (!fileExists(slot.name)) continue;
        shown[i] = slot;
        last = &slot;
    }
    return shown;
}

TemplateList RebuiltTemplates(const TemplateList& list,
                              const std::function<bool(const std::string& name)>& fileExists) {
    TemplateList rebuilt = ShownTemplates(list, fileExists);
    std::stable_partition(rebuilt.begin(), rebuilt.end(),
                          [](const Template& slot) { return !slot.id.empty(); });
    return rebuilt;
}

std::vector<std::size_t> OfferedSlots(const TemplateList& list) {
    std::vector<std::size_t> slots;
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (!list[i].id.empty()) slots.push_back(i);
    }
    return slots;
}

}  // namespace authoring
