#include "authoring/core/template_list.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace authoring {
namespace {

constexpr std::string_view kForbidden = "\\/:*?\"<>|";

bool IsForbidden(char c) {
    return static_cast<unsigned char>(c) < ' ' || kForbidden.find(c) != std::string_view::npos;
}

bool SameText(std::string_view a, std::string_view b, const FoldTable& fold) {
    const auto folded = [&](char c) { return fold[static_cast<unsigned char>(c)]; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return folded(x) == folded(y); });
}

// Windows opens the device for these names whatever extension follows, and blanks before it.
bool IsDevice(std::string_view name) {
    std::string_view stem = name.substr(0, name.find('.'));
    while (stem.ends_with(' ')) stem.remove_suffix(1);
    for (const std::string_view device : {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"}) {
        if (SameText(stem, device, kAsciiFold)) return true;
    }
    // The last three are the superscript digits of code page 1252.
    constexpr std::string_view kPorts = "123456789\xB9\xB2\xB3";
    return stem.size() == 4 && kPorts.find(stem[3]) != std::string_view::npos &&
           (SameText(stem.substr(0, 3), "COM", kAsciiFold) || SameText(stem.substr(0, 3), "LPT", kAsciiFold));
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
    if (IsDevice(name)) {
        return "Windows keeps that name for a device.\r\n"
               "Please enter another name.";
    }
    return {};
}

const Template* TemplateInOtherCase(const TemplateList& list, std::string_view name, const FoldTable& fold) {
    const auto found = std::find_if(list.begin(), list.end(), [&](const Template& slot) {
        return slot.name != name && SameText(slot.name, name, fold);
    });
    return found == list.end() ? nullptr : &*found;
}

TemplateList WithTemplate(const TemplateList& list, Template added) {
    TemplateList result;
    result.front() = std::move(added);
    std::copy(list.begin(), std::prev(list.end()), std::next(result.begin()));
    return result;
}

TemplateList RebuiltTemplates(const TemplateList& list,
                              const std::function<bool(const std::string& name)>& fileExists) {
    TemplateList result;
    std::size_t kept = 0;
    for (const Template& slot : list) {
        if (slot.name.empty() || slot.id.empty()) continue;
        if (kept > 0 && result[kept - 1].name == slot.name) continue;
        if (fileExists(slot.name)) result[kept++] = slot;
    }
    return result;
}

std::size_t OfferedTemplates(const TemplateList& list) {
    const auto end =
        std::find_if(list.begin(), list.end(), [](const Template& slot) { return slot.id.empty(); });
    return static_cast<std::size_t>(std::distance(list.begin(), end));
}

}  // namespace authoring
