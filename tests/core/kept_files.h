// Files beside the tests: listings typed by hand, and files that real programs have written.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

namespace kept {

// The bytes of a file, by its path below tests/; none where there is no file.
inline std::string Read(const std::string& path) {
    std::ifstream file(QUILLON_TESTS "/" + path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace kept
