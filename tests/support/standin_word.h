// The stand-in for the word processor (tests/tools/standin_word), installed and removed.
#pragma once

#include <string>

// From then on it serves as "Word.Basic" and writes its calls to `log`; its orders are told in its source.
// It is removed with the object.
class StandinWord {
 public:
    explicit StandinWord(const std::string& log, const std::string& orders = "0");
    ~StandinWord();
    StandinWord(const StandinWord&) = delete;
    StandinWord& operator=(const StandinWord&) = delete;
};
