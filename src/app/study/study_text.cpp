#include "app/study/study_text.hpp"

#include "app/study/run_words.hpp"
#include "app/study/study_json.hpp"
#include "app/study/study_problem.hpp"

#include <array>
#include <charconv>
#include <optional>

namespace kvt {

namespace {

std::uint64_t number_of(std::string_view text) {
    std::uint64_t number = 0;
    const char* end = text.data() + text.size();
    if (std::from_chars(text.data(), end, number).ptr != end || text.empty()) {
        throw study_problem("no_row", {std::string(text)});
    }
    return number;
}

// Comma-separated values.

constexpr std::string_view MARKS_THAT_NEED_QUOTES = ",\"\r\n";

std::string cell(std::string_view text) {
    if (text.find_first_of(MARKS_THAT_NEED_QUOTES) == std::string_view::npos) {
        return std::string(text);
    }
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c == '"' ? "\"\"" : std::string(1, c);
    }
    return quoted + "\"";
}

std::string csv_line(const std::vector<std::string>& texts) {
    std::string line;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        line += (i == 0 ? "" : ",") + cell(texts[i]);
    }
    return line + "\r\n";
}

/// The shortest text that reads back to the same double.
std::string value_text(std::optional<double> value) {
    if (!value) {
        return {};
    }
    constexpr std::size_t LONGEST = 32;
    std::array<char, LONGEST> digits = {};
    return {digits.data(), std::to_chars(digits.data(), digits.data() + LONGEST, *value).ptr};
}

std::optional<double> value_of_text(std::string_view text) {
    if (text.empty()) {
        return std::nullopt;
    }
    double value = 0.0;
    const char* end = text.data() + text.size();
    if (std::from_chars(text.data(), end, value).ptr != end) {
        throw study_problem("no_row", {std::string(text)});
    }
    return value;
}

std::string csv_row(const study_row& row) {
    std::vector<std::string> cells = {std::to_string(row.number)};
    cells.insert(cells.end(), row.texts.begin(), row.texts.end());
    cells.emplace_back(batch_end_name(row.result.end));
    cells.push_back(ports_word(row.result));
    cells.push_back(performance_word(row.result));
    for (const std::optional<double>& value : row.values) {
        cells.push_back(value_text(value));
    }
    cells.push_back(on_one_line(row.messages));
    cells.push_back(on_one_line(row.hints));
    return csv_line(cells);
}

std::vector<std::string> cells_of(std::string_view line) {
    std::vector<std::string> cells(1);
    bool is_quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const bool is_pair = is_quoted && line.substr(i, 2) == "\"\"";
        if (is_pair) {
            cells.back() += '"';
            ++i;
        } else if (line[i] == '"') {
            is_quoted = !is_quoted;
        } else if (line[i] == ',' && !is_quoted) {
            cells.emplace_back();
        } else {
            cells.back() += line[i];
        }
    }
    return cells;
}

/// Behind the variables, and behind the values.
constexpr std::size_t CELLS_OF_RUN = 3, CELLS_OF_TEXTS = 2;

std::vector<std::string> told_in(const std::string& cell) {
    return cell.empty() ? std::vector<std::string>() : std::vector{cell};
}

study_row csv_row_of(const study& designs, std::string_view line) {
    const std::vector<std::string> cells = cells_of(line);
    const std::size_t variables = designs.plan().variables.size();
    const std::size_t values = designs.recorded().size();
    if (cells.size() != 1 + variables + CELLS_OF_RUN + values + CELLS_OF_TEXTS) {
        throw study_problem("no_row", {std::string(line)});
    }
    study_row row;
    row.number = number_of(cells[0]);
    const auto run = cells.begin() + 1 + static_cast<std::ptrdiff_t>(variables);
    row.texts.assign(cells.begin() + 1, run);
    row.result = result_of_words(run[0], run[1], run[2]);
    for (std::size_t i = 0; i < values; ++i) {
        row.values.push_back(value_of_text(run[static_cast<std::ptrdiff_t>(CELLS_OF_RUN + i)]));
    }
    row.messages = told_in(cells[cells.size() - CELLS_OF_TEXTS]);
    row.hints = told_in(cells.back());
    return row;
}

std::string csv_head(const study& designs) {
    std::vector<std::string> cells = {"design"};
    for (std::size_t i = 0; i < designs.plan().variables.size(); ++i) {
        cells.push_back(designs.heading_of_variable(i));
    }
    cells.insert(cells.end(), {"end", "ports", "performance"});
    for (const chosen_quantity& quantity : designs.recorded()) {
        cells.push_back(quantity.heading());
    }
    cells.insert(cells.end(), {"messages", "hints"});
    return csv_line(cells);
}

}  // namespace

std::string head_line(const study& designs, study_format format) {
    return format == study_format::csv ? csv_head(designs) : "";
}

std::string row_line(const study& designs, const study_row& row, study_format format) {
    return format == study_format::csv ? csv_row(row)
                                       : text_of_json(json_of_row(designs, row)) + "\n";
}

std::string table_text(const study& designs, const std::vector<study_row>& rows,
                       study_format format) {
    std::string text = head_line(designs, format);
    for (const study_row& row : rows) {
        text += row_line(designs, row, format);
    }
    return text;
}

study_row row_of_line(const study& designs, std::string_view line, study_format format) {
    study_row row = format == study_format::csv ? csv_row_of(designs, line)
                                                : row_of_json(designs, json_of_text(line));
    row.meets_conditions = true;
    return row;
}

}  // namespace kvt
