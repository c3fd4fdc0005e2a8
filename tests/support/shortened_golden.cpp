#include "support/shortened_golden.hpp"

#include "base/fixed_number.hpp"
#include "base/text_file.hpp"
#include "support/golden_files.hpp"

#include <charconv>
#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

namespace kvt {

namespace {

constexpr std::size_t LONGEST_LINE = 400;
constexpr std::size_t KEPT_OF_A_LINE = 150;
constexpr std::size_t SHORTEST_RUN = 6;  // groups

/// The line with every number replaced by one sign.
std::string form_of(const std::string& line) {
    std::string form;
    for (const char c : line) {
        const bool is_number = (c >= '0' && c <= '9') || c == '.' || c == '-';
        if (!is_number) {
            form += c;
        } else if (form.empty() || form.back() != '0') {
            form += '0';
        }
    }
    return form;
}

/// How many groups of `size` lines follow each other from `at` on that have the forms of the first
/// one.
std::size_t groups_from(const std::vector<std::string>& forms, std::size_t at, std::size_t size) {
    std::size_t groups = 1;
    while (at + (groups + 1) * size <= forms.size() &&
           std::equal(forms.begin() + static_cast<std::ptrdiff_t>(at),
                      forms.begin() + static_cast<std::ptrdiff_t>(at + size),
                      forms.begin() + static_cast<std::ptrdiff_t>(at + groups * size))) {
        ++groups;
    }
    return groups;
}

std::string kept(const std::string& line) {
    if (line.size() <= LONGEST_LINE) {
        return line + "\r\n";
    }
    return line.substr(0, KEPT_OF_A_LINE) + " ... " + line.substr(line.size() - KEPT_OF_A_LINE) +
           "\r\n";
}

bool starts_number(char c) {
    return (c >= '0' && c <= '9') || c == '-';
}

/// The number at text[at], when one stands there; `at` goes on behind it.
std::optional<double> number_at(const std::string& text, std::size_t& at) {
    double value = 0.0;
    const auto parsed = std::from_chars(text.data() + at, text.data() + text.size(), value);
    if (parsed.ec != std::errc()) {
        return std::nullopt;
    }
    at = static_cast<std::size_t>(parsed.ptr - text.data());
    return value;
}

/// The text with points in its numbers; points elsewhere become commas, so that no two texts become
/// the same.
std::string with_points(std::string text, char decimal_mark) {
    for (char& c : text) {
        if (c == decimal_mark) {
            c = '.';
        } else if (c == '.') {
            c = decimal_mark;
        }
    }
    return text;
}

std::string summary_of(const std::string& bytes, std::size_t line_count) {
    double sum = 0.0;
    std::size_t numbers = 0;
    for (std::size_t at = 0; at < bytes.size();) {
        const bool is_reference = at > 0 && bytes[at - 1] == '#';
        const auto number = starts_number(bytes[at]) ? number_at(bytes, at) : std::nullopt;
        if (number && is_reference) {
            continue;
        }
        if (number) {
            sum += *number * static_cast<double>(1 + numbers++ % 97);
        } else {
            ++at;
        }
    }
    return "... " + std::to_string(line_count) + " lines, " + std::to_string(numbers) +
           " numbers, weighted sum " + fixed_number(sum, 4) + "\r\n";
}

/// Whether two texts are the same but for the last digits of their numbers.
bool agree(const std::string& left, const std::string& right) {
    constexpr double TOLERANCE = 1e-9;
    std::size_t i = 0, j = 0;
    while (i < left.size() && j < right.size()) {
        if (starts_number(left[i]) && starts_number(right[j])) {
            const auto a = number_at(left, i);
            const auto b = number_at(right, j);
            if (a && b) {
                if (std::abs(*a - *b) > TOLERANCE * std::max(1.0, std::abs(*a))) {
                    return false;
                }
                continue;
            }
            if (a.has_value() != b.has_value()) {
                return false;
            }
        }
        if (left[i++] != right[j++]) {
            return false;
        }
    }
    return i == left.size() && j == right.size();
}

}  // namespace

std::string shortened(const std::string& bytes, char decimal_mark) {
    const std::vector<std::string> lines = split_lines(bytes);
    std::vector<std::string> forms;
    for (const std::string& line : lines) {
        forms.push_back(form_of(line));
    }
    std::string text;
    for (std::size_t at = 0; at < lines.size();) {
        std::size_t size = 1;
        std::size_t groups = groups_from(forms, at, 1);
        if (groups < SHORTEST_RUN) {
            size = 10;
            groups = at + size <= lines.size() ? groups_from(forms, at, size) : 0;
        }
        if (groups < SHORTEST_RUN) {
            text += kept(lines[at++]);
            continue;
        }
        const std::size_t end = at + groups * size;
        for (const std::size_t stop = at + 2 * size; at < stop; ++at) {
            text += kept(lines[at]);
        }
        text += "... " + std::to_string((groups - 4) * size) + " lines like these ...\r\n";
        for (at = end - 2 * size; at < end; ++at) {
            text += kept(lines[at]);
        }
    }
    return text + summary_of(with_points(bytes, decimal_mark), lines.size());
}

void expect_near_golden(const std::string& name, const std::string& text, char decimal_mark) {
    const std::string expected =
        bytes_of_file(std::filesystem::path(KVT_TEST_DATA) / "output" / name);
    if (!agree(with_points(text, decimal_mark), with_points(expected, decimal_mark))) {
        expect_golden(name, text);
    }
}

void expect_shortened_golden(const std::string& name, const std::string& bytes, char decimal_mark) {
    expect_near_golden(name, shortened(bytes, decimal_mark), decimal_mark);
}

}  // namespace kvt
