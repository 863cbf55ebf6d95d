// The order in which the rows of a settings section are handed out.
#pragma once

#include <string>
#include <vector>

namespace settings {

struct Row {
    std::string key;
    std::string value;  // any character may occur, NUL included
    friend bool operator==(const Row&, const Row&) = default;
};

// Sorts rows whose key is a decimal number by that number, before all other rows, which keep their
// order. The registry itself promises no order, and some versions enumerate "10" before "2".
void SortRows(std::vector<Row>& rows);

}  // namespace settings
