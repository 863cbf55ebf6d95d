// What the help window says.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace help {

struct Topic {
    const char* heading;
    const char* words;
};

// In the order of the Features menu.
extern const std::array<Topic, 14> kTopics;

extern const char kIntroHeading[];
extern const char kIntroWords[];

// The description of a toolbar button; empty for an index that no button has.
std::string ButtonWords(std::size_t index);

}  // namespace help
