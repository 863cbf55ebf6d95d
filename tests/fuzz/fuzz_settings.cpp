// Damaged settings: a line with a count, a line with a path, and rows of the recent files, with a line for
// each key and each value.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <functional>
#include <set>
#include <utility>
#include <vector>

#include "check.h"
#include "document/core/font_size.h"
#include "files/core/recent_files.h"

namespace {

using settings::Row;

// Keys that are not numbers, or too large, sort behind all numbers.
std::pair<bool, unsigned long> Rank(const Row& row) {
    unsigned long number = 0;
    const char* end = row.key.data() + row.key.size();
    const auto [stop, error] = std::from_chars(row.key.data(), end, number);
    if (error == std::errc() && stop == end) return {false, number};
    return {true, 0};
}

void CheckRecent(const std::string& count, const std::string& path, const std::vector<Row>& rows) {
    const std::vector<std::string> stored = files::StoredFiles(count, rows);
    const std::set<std::string> once(stored.begin(), stored.end());
    Check(stored.size() <= files::kRecentFiles && once.size() == stored.size() && once.count("") == 0);
    const auto fresh = files::WithNewest(stored, path, std::equal_to<>());
    Check(fresh.size() <= files::kRecentFiles && fresh.front() == path);
    Check(std::count(fresh.begin(), fresh.end(), path) == 1);
    const bool full = stored.size() == files::kRecentFiles && once.count(path) == 0;
    Check(fresh.size() == stored.size() + (full || once.count(path) != 0 ? 0U : 1U));
    auto from = stored.begin();
    for (auto entry = fresh.begin() + 1; entry != fresh.end(); ++entry) {
        from = std::find(from, stored.end(), *entry);
        Check(from++ != stored.end());
    }
}

void CheckFontSize(const std::string& text) {
    const float points = document::ParseFontSize(text);
    const auto [isText, number] = Rank({text, ""});
    if (!isText && number >= 1 && number <= 400) Check(points == static_cast<float>(number));
    if (points == 0) return;
    Check(points >= document::kSmallestPoints && points <= document::kLargestPoints);
    std::string again = document::FontSizeText(points);
    std::replace(again.begin(), again.end(), '.', ',');  // which may stand for it
    Check(std::abs(document::ParseFontSize(again) - points) < 0.006F);
}

}  // namespace

void Try(std::string_view input) {
    const std::string count = TakeLine(input);
    const std::string path = TakeLine(input);
    CheckFontSize(count);
    std::vector<Row> rows;
    while (!input.empty()) {
        const std::string key = TakeLine(input);
        rows.push_back({key, TakeLine(input)});
    }
    std::vector<Row> sorted = rows;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Row& a, const Row& b) { return Rank(a) < Rank(b); });
    settings::SortRows(rows);
    Check(rows == sorted);
    CheckRecent(count, path, rows);
}
