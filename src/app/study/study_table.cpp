#include "app/study/study_table.hpp"

#include "app/program.hpp"
#include "app/study/run_words.hpp"
#include "app/study/study_problem.hpp"
#include "base/letter_case.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"
#include "views/tables/result_tables.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kvt {

namespace {

std::string in_small_letters(std::string_view text) {
    std::string small(text);
    std::ranges::transform(small, small.begin(), [](char letter) { return lower_case(letter); });
    return small;
}

std::string result_text(const batch_result& result, std::int16_t language) {
    std::string text(batch_end_name(result.end));
    if (result.ports_refused) {
        text += form_text("study_form", "ports_refused", language);
    }
    if (result.performance_refused) {
        text += form_text("study_form", "performance_refused", language);
    }
    return text;
}

std::optional<double> typed_number(const std::string& text) {
    try {
        return number_of_text(commas_to_points(text));
    } catch (const run_time_error&) {
        return std::nullopt;
    }
}

}  // namespace

std::size_t study_table::column_count() const {
    return designs_ == nullptr
               ? 0
               : designs_->plan().variables.size() + designs_->recorded().size() + 3;
}

std::size_t study_table::result_column() const {
    return designs_->plan().variables.size() + 1;
}

std::string study_table::heading(std::size_t column) const {
    if (column == 0 || column == result_column() || column == message_column()) {
        return {};
    }
    return column < result_column() ? designs_->heading_of_variable(column - 1)
                                    : quantity_of(column).heading();
}

std::string study_table::name(std::size_t column) const {
    return column < result_column() ? designs_->plan().variables[column - 1].control
                                    : quantity_of(column).name;
}

std::string study_table::unit(std::size_t column) const {
    return column < result_column()
               ? unit_of_variable(designs_->plan().variables[column - 1], designs_->base())
               : quantity_of(column).quantity.unit;
}

void study_table::add(std::vector<study_row> rows) {
    for (study_row& row : rows) {
        if (passes(row)) {
            order_.push_back(static_cast<std::uint32_t>(rows_.size()));
        }
        rows_.push_back(std::move(row));
    }
}

std::size_t study_table::passing_count(const std::vector<study_row>& rows) const {
    return static_cast<std::size_t>(
        std::ranges::count_if(rows, [this](const study_row& row) { return passes(row); }));
}

std::string study_table::text_of(const study_row& row, std::size_t column) const {
    if (column == 0) {
        return number_text(static_cast<double>(row.number));
    }
    if (column < result_column()) {
        const std::string& typed = row.texts[column - 1];
        const std::optional<double> number = typed_number(typed);
        return number ? cell_text(number, designs_->base().decimal_mark) : typed;
    }
    if (column == result_column()) {
        const std::int16_t language = designs_->base().app_state.language;
        const std::string best = front_.contains(row.number)
                                     ? std::string(form_text("study_form", "best", language))
                                     : "";
        return result_text(row.result, language) + best;
    }
    if (column == message_column()) {
        return on_one_line(row.messages);
    }
    const std::optional<double> value = row.values[column - result_column() - 1];
    return cell_text(value, designs_->base().decimal_mark);
}

std::optional<double> study_table::number_of(const study_row& row, std::size_t column) const {
    if (column == 0) {
        return static_cast<double>(row.number);
    }
    if (column < result_column()) {
        return typed_number(row.texts[column - 1]);
    }
    return column == result_column() || column == message_column()
               ? std::nullopt
               : row.values[column - result_column() - 1];
}

std::string study_table::text(std::size_t place, std::size_t column) const {
    return text_of(shown(place), column);
}

std::optional<double> study_table::number(std::size_t place, std::size_t column) const {
    return number_of(shown(place), column);
}

void study_table::sort(std::size_t column, bool rises) {
    sorted_column_ = column;
    rises_ = rises;
    struct key {
        double number;
        std::string text;
        std::uint32_t row;
    };
    std::vector<key> keys;
    keys.reserve(order_.size());
    const bool is_text = column == result_column() || column == message_column();
    for (const std::uint32_t row : order_) {
        const std::optional<double> number = number_of(rows_[row], column);
        const double missing = is_text ? 0.0 : HUGE_VAL;
        keys.push_back({number ? (rises ? *number : -*number) : missing,
                        is_text ? text_of(rows_[row], column) : std::string(), row});
    }
    std::ranges::sort(keys, [rises](const key& a, const key& b) {
        if (a.number != b.number) {
            return a.number < b.number;
        }
        if (a.text != b.text) {
            return rises ? a.text < b.text : b.text < a.text;
        }
        return a.row < b.row;
    });
    for (std::size_t i = 0; i < keys.size(); ++i) {
        order_[i] = keys[i].row;
    }
}

std::optional<std::size_t> study_table::column_named(std::string_view name) const {
    for (std::size_t i = 0; i < designs_->plan().variables.size(); ++i) {
        if (designs_->plan().variables[i].control == name) {
            return i + 1;
        }
    }
    for (std::size_t i = 0; i < designs_->recorded().size(); ++i) {
        if (designs_->recorded()[i].name == name) {
            return result_column() + 1 + i;
        }
    }
    return std::nullopt;
}

void study_table::filter(std::string_view text) {
    filter_ = in_small_letters(text);
    condition_.reset();
    try {
        const study_condition condition = study_condition_of(text);
        if (const auto column = column_named(condition.quantity)) {
            condition_.emplace(*column, condition);
        }
    } catch (const study_problem&) {
        // Then it is a text that is looked for.
    }
    show_all_that_pass();
}

void study_table::show_all_that_pass() {
    order_.clear();
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (passes(rows_[i])) {
            order_.push_back(static_cast<std::uint32_t>(i));
        }
    }
    sort(sorted_column_, rises_);
}

bool study_table::passes(const study_row& row) const {
    if (condition_) {
        return condition_->second.is_met(number_of(row, condition_->first));
    }
    if (filter_.empty()) {
        return true;
    }
    for (std::size_t column = 0; column < column_count(); ++column) {
        if (in_small_letters(text_of(row, column)).find(filter_) != std::string::npos) {
            return true;
        }
    }
    return false;
}

}  // namespace kvt
