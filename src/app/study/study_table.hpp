// study_table: the rows of a study as they stand in a table: sorted by a column, and those alone
// that pass a filter.
#pragma once

#include "app/study/study.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kvt {

/// Columns: the design's number, the variables, what became of it, the recorded quantities, what
/// was told.
class study_table {
  public:
    study_table() = default;
    explicit study_table(std::shared_ptr<const study> designs) : designs_(std::move(designs)) {}

    const std::shared_ptr<const study>& designs() const { return designs_; }
    const std::vector<study_row>& rows() const { return rows_; }
    /// Behind the others; those that pass the filter are shown where the sorting puts them after
    /// the next sort.
    void add(std::vector<study_row> rows);
    /// How many of some rows pass the filter.
    std::size_t passing_count(const std::vector<study_row>& rows) const;

    std::size_t column_count() const;
    /// "ecc [mm]"; empty for what the window names itself: number, result, messages.
    std::string heading(std::size_t column) const;
    /// "ecc" and "mm" of a column of numbers; a quantity can have no unit.
    std::string name(std::size_t column) const;
    std::string unit(std::size_t column) const;
    std::size_t result_column() const;
    std::size_t message_column() const { return column_count() - 1; }

    /// Of the rows that are shown, in their order.
    std::size_t shown_count() const { return order_.size(); }
    const study_row& shown(std::size_t place) const { return rows_[order_[place]]; }
    /// A number with six digits, any other text of a variable as it is typed; of the result "ok",
    /// "ok, ports refused", "closing", "ok, best".
    std::string text(std::size_t place, std::size_t column) const;
    /// Nothing where the column holds a text, or the design has no value.
    std::optional<double> number(std::size_t place, std::size_t column) const;

    /// The front, by the numbers of its designs; its rows say so in their result.
    void mark(std::set<std::uint64_t> front) { front_ = std::move(front); }
    bool is_in_front(std::size_t place) const { return front_.contains(shown(place).number); }

    /// Rows without a value come last in either direction; equal ones in the order of their
    /// numbers.
    void sort(std::size_t column, bool rises);
    /// A condition on a column by its name ("ripple<12"), else a text that stands somewhere in the
    /// row, capitals ignored; empty for all.
    void filter(std::string_view text);

  private:
    const chosen_quantity& quantity_of(std::size_t column) const {
        return designs_->recorded()[column - result_column() - 1];
    }
    std::string text_of(const study_row& row, std::size_t column) const;
    std::optional<double> number_of(const study_row& row, std::size_t column) const;
    std::optional<std::size_t> column_named(std::string_view name) const;
    bool passes(const study_row& row) const;
    void show_all_that_pass();

    std::shared_ptr<const study> designs_;
    std::vector<study_row> rows_;
    std::vector<std::uint32_t> order_;
    std::set<std::uint64_t> front_;
    std::size_t sorted_column_ = 0;
    bool rises_ = true;
    std::string filter_;  ///< in small letters
    std::optional<std::pair<std::size_t, study_condition>> condition_;
};

}  // namespace kvt
