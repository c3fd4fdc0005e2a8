#include "kvt/aligned_lines.hpp"

#include "base/utf8_text.hpp"

#include <algorithm>
#include <cstddef>

namespace kvt {

std::string aligned_lines(const std::vector<std::pair<std::string, std::string>>& rows) {
    std::size_t widest = 0;
    for (const auto& [caption, value] : rows) {
        widest = std::max(widest, character_count(caption));
    }
    std::string lines;
    for (const auto& [caption, value] : rows) {
        lines += caption + std::string(widest - character_count(caption) + 2, ' ') + value + "\n";
    }
    return lines;
}

std::string aligned_table(const std::vector<std::vector<std::string>>& rows) {
    std::vector<std::size_t> widest;
    for (const std::vector<std::string>& row : rows) {
        widest.resize(std::max(widest.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widest[i] = std::max(widest[i], character_count(row[i]));
        }
    }
    std::string lines;
    for (const std::vector<std::string>& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string blanks(widest[i] - character_count(row[i]), ' ');
            const bool is_last = i + 1 == row.size();
            lines += i == 0 ? row[i] + (is_last ? "" : blanks) : "  " + blanks + row[i];
        }
        lines += "\n";
    }
    return lines;
}

}  // namespace kvt
