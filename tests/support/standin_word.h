// The stand-in for the word processor (tests/tools/standin_word), installed and removed.
#pragma once

#include <string>

#include "support/class_key.h"

constexpr char kStandinWordClass[] = "{5C5A5D0E-2A53-4B0A-9C1B-5B372E6461D4}";

// For the object's life it serves as "Word.Basic" and writes its calls to `log`; its orders are told in its
// source.
class StandinWord {
 public:
    explicit StandinWord(const std::string& log, const std::string& orders = "")
        : name_("Word.Basic\\CLSID", kStandinWordClass),
          server_(std::string("CLSID\\") + kStandinWordClass + "\\LocalServer32",
                  '"' + ToolPath("standin_word.exe") + "\" \"" + log + "\" " + orders) {}

 private:
    ClassKey name_;
    ClassKey server_;
};
