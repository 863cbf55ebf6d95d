// A printer whose sheets come back as text and as pictures.
#pragma once

#include <string>
#include <vector>

// Installs a PostScript printer on Letter paper, which prints into a file of `folder` (on drive Z:), and
// makes it the default one.
class TestPrinter {
 public:
    explicit TestPrinter(const std::string& folder);

    struct Line {
        int page = 0;  // from 1
        int left = 0;  // of its first character, in points from the edge of the sheet
        int base = 0;  // of its letters, from the top edge
        std::string text;
    };
    // What was printed last, as Ghostscript reads it. Blank lines leave no trace but their room.
    std::vector<Line> lines() const;

    // Around the ink of each sheet, in points from its lower left corner.
    struct Box {
        double left = 0, bottom = 0, right = 0, top = 0;
    };
    std::vector<Box> ink() const;

    bool hasPrinted() const;

 private:
    void installDriver() const;
    // Runs Ghostscript over the print and returns all that it said.
    std::string read(const std::string& options) const;

    std::string folder_;
};
