// Lines in memory and lines of bytes.
#include "base/text_file.hpp"

#include "base/code_page.hpp"
#include "base/run_time_error.hpp"

#include <cassert>

namespace kvt {

void text_lines::line(std::string_view utf8) {
    raw_line(code_page_of_utf8(utf8));
}

void text_lines::end_line() {
    // Two searches for one character are several times as fast as one for either.
    const std::string_view open_line = std::string_view(bytes_).substr(line_start_);
    if (open_line.find('\n') != std::string_view::npos ||
        open_line.find('\r') != std::string_view::npos) {
        bytes_.resize(line_start_);
        throw run_time_error(failure::invalid_property_value, "line end inside a line");
    }
    bytes_ += "\r\n";
    line_start_ = bytes_.size();
}

void text_lines::raw_block(std::string_view lines) {
    assert(line_start_ == bytes_.size() && lines.ends_with("\r\n"));
    bytes_ += lines;
    line_start_ = bytes_.size();
}

std::vector<std::string> split_lines(std::string_view bytes) {
    std::vector<std::string> lines;
    while (!bytes.empty()) {
        const std::size_t end = bytes.find_first_of("\r\n");
        lines.emplace_back(bytes.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        const bool is_cr_lf = bytes.substr(end).starts_with("\r\n");
        bytes.remove_prefix(end + (is_cr_lf ? 2 : 1));
    }
    return lines;
}

}  // namespace kvt
