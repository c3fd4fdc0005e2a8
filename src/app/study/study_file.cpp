#include "app/study/study_file.hpp"

#include "app/study/study_identity.hpp"
#include "app/study/study_problem.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "base/whole_file.hpp"

#include <cerrno>
#include <string_view>
#include <system_error>
#include <utility>

namespace kvt {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view NEXT = "next ";

[[noreturn]] void fail_access(const fs::path& path, int system_error = errno) {
    throw run_time_error(failure::path_file_access, utf8_of_path(path),
                         {file_fault::reason::system, system_error});
}

fs::path unfinished_path(const study_place& place) {
    return path_of_utf8(utf8_of_path(place.path) + UNFINISHED_ENDING);
}

/// A rows' file that grows says itself how far it is.
void write_unfinished(const study& designs, const study_place& place,
                      std::optional<std::uint64_t> next) {
    const std::string identity = identity_of(designs, place.part, place.format);
    const std::string line = next ? std::string(NEXT) + std::to_string(*next) + "\n" : "";
    write_file(unfinished_path(place), identity + "\n" + line);
}

void remove_unfinished(const study_place& place) {
    std::error_code error;
    fs::remove(unfinished_path(place), error);
    if (error) {
        fail_access(unfinished_path(place), error.value());
    }
}

void cut_off(const fs::path& path, std::uintmax_t length) {
    std::error_code error;
    fs::resize_file(path, length, error);
    if (error) {
        fail_access(path, error.value());
    }
}

bool is_there(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

[[noreturn]] void refuse_other_study(const study_place& place) {
    throw study_problem("other_study", {utf8_of_path(place.path)});
}

/// Calls back with each whole line behind the head, without its end; answers their length with
/// that of the head, in bytes.
std::uintmax_t read_rows(const study& designs, const study_place& place,
                         const std::function<void(std::string_view)>& take) {
    std::ifstream file(place.path, std::ios::binary);
    if (!file) {
        fail_access(place.path);
    }
    const std::string head = head_line(designs, place.format);
    const std::string_view line_end = place.format == study_format::csv ? "\r\n" : "\n";
    std::uintmax_t length = 0;
    std::string line;
    while (std::getline(file, line) && !file.eof()) {
        line += '\n';
        if (!line.ends_with(line_end) || (length == 0 && !head.empty() && line != head)) {
            refuse_other_study(place);
        }
        if (length >= head.size()) {
            take(std::string_view(line).substr(0, line.size() - line_end.size()));
        }
        length += line.size();
    }
    return length;
}

std::uint64_t number_behind(std::string_view text) {
    std::uint64_t number = 0;
    for (const char c : text) {
        number = number * 10 + static_cast<std::uint64_t>(c - '0');
    }
    return number;
}

/// Behind the last row of a file that grows, or what stands beside a front.
std::uint64_t next_of_unfinished(const study& designs, const study_place& place) {
    const std::string text = read_file(unfinished_path(place));
    const std::size_t end = text.find('\n');
    if (text.substr(0, end) != identity_of(designs, place.part, place.format)) {
        refuse_other_study(place);
    }
    const std::size_t next = text.find(NEXT, end);
    if (next != std::string::npos) {
        const std::size_t digits = next + NEXT.size();
        return number_behind(
            std::string_view(text).substr(digits, text.find('\n', digits) - digits));
    }
    std::string last;
    read_rows(designs, place, [&](std::string_view line) { last = line; });
    return last.empty() ? place.part.begin : row_of_line(designs, last, place.format).number + 1;
}

}  // namespace

std::optional<std::uint64_t> first_missing(const study& designs, const study_place& place) {
    if (is_there(unfinished_path(place))) {
        return is_there(place.path) ? next_of_unfinished(designs, place)
                                    : std::optional<std::uint64_t>();
    }
    if (!is_there(place.path)) {
        return std::nullopt;
    }
    read_rows(designs, place, [](std::string_view) {});
    return place.part.end;
}

growing_study_file::growing_study_file(const study& designs, study_place place, bool goes_on)
    : designs_(designs), place_(std::move(place)) {
    std::uintmax_t length = 0;
    if (goes_on) {
        length = read_rows(designs, place_, [](std::string_view) {});
        cut_off(place_.path, length);
    } else {
        write_unfinished(designs, place_, std::nullopt);
        write_file(place_.path, "");
    }
    file_.open(place_.path, std::ios::binary | std::ios::app);
    if (length == 0) {
        file_ << head_line(designs, place_.format);
    }
    if (!file_.flush()) {
        fail_access(place_.path);
    }
}

void growing_study_file::add(const study_row& row) {
    if (!(file_ << row_line(designs_, row, place_.format)).flush()) {
        fail_access(place_.path);
    }
}

void growing_study_file::finish() {
    file_.close();
    if (!file_) {
        fail_access(place_.path);
    }
    remove_unfinished(place_);
}

void write_study_rows(const study& designs, const study_place& place,
                      const std::vector<study_row>& rows, std::uint64_t next) {
    if (!is_there(unfinished_path(place))) {
        write_unfinished(designs, place, place.part.begin);
    }
    write_file(place.path, table_text(designs, rows, place.format));
    if (next == place.part.end) {
        remove_unfinished(place);
    } else {
        write_unfinished(designs, place, next);
    }
}

std::vector<study_row> rows_of_file(const study& designs, const study_place& place) {
    std::vector<study_row> rows;
    read_rows(designs, place, [&](std::string_view line) {
        rows.push_back(row_of_line(designs, line, place.format));
    });
    return rows;
}

}  // namespace kvt
