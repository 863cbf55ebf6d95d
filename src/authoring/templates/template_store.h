// Where templates are kept: the list in the settings, the pages in a folder beside the program.
#pragma once

#include <string>

#include "authoring/templates/core/template_list.h"

namespace authoring {

// "Templates" in the program's own folder, without a backslash at its end.
std::string TemplateFolder();
std::string TemplatePath(const std::string& name);

TemplateList ReadTemplates();

// Which way the entries have moved since the list was read. The slots are written in the order in which an
// interrupted write leaves an entry twice rather than nowhere.
enum class Moved { up, down };

// False when the store refuses.
bool WriteTemplates(const TemplateList& list, Moved moved);

// Sets the attributes of a file to archive, with read-only or without.
bool SetFileReadOnly(const std::string& path, bool readOnly);

// Takes the read-only attribute from a file while it is to be replaced or deleted, and gives it back to the
// file that is there afterwards.
class WritableFile {
 public:
    explicit WritableFile(const std::string& path);
    ~WritableFile();
    WritableFile(const WritableFile&) = delete;
    WritableFile& operator=(const WritableFile&) = delete;

 private:
    std::string path_;
    bool wasReadOnly_;
};

}  // namespace authoring
