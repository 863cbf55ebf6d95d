// Files that lie beside the tests: listings typed by hand, and what real programs wrote.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>

namespace kept {

// The bytes of a file, by its path below tests/.
inline std::string Read(const std::string& path) {
    std::ifstream file(std::filesystem::path(QUILLON_TESTS) / path, std::ios::binary);
    if (!file) throw std::runtime_error("no file tests/" + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

// A listing of texts, each below a line "== NAME". An arrow stands for CR LF; the lines of the listing
// itself only make it readable.
inline std::map<std::string, std::string> Listing(const std::string& path) {
    const std::string arrow = "\xE2\x86\xB5";
    std::ifstream file(std::filesystem::path(QUILLON_TESTS) / path, std::ios::binary);
    std::map<std::string, std::string> texts;
    std::string name;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("== ")) {
            name = line.substr(3);
            if (!texts.emplace(name, "").second) throw std::runtime_error("listed twice: " + name);
        } else if (line.ends_with(arrow)) {
            texts.at(name) += line.substr(0, line.size() - arrow.size()) + "\r\n";
        } else {
            texts.at(name) += line;
        }
    }
    return texts;
}

}  // namespace kept
