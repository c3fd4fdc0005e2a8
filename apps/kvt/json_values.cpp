#include "kvt/json_values.hpp"

#include <type_traits>

namespace kvt {

namespace {

/// The numbers of a block, which are taken piece by piece.
class block_reader {
  public:
    explicit block_reader(const number_block& block) : block_(block) {}

    json whole() { return level(0); }

  private:
    bool is_row(std::size_t depth) const { return depth + 1 == block_.shape.size(); }

    json level(std::size_t depth) {
        if (is_row(depth)) {
            return row();
        }
        json list = json::array();
        for (std::size_t i = 0; i < block_.shape[depth]; ++i) {
            list.push_back(level(depth + 1));
        }
        return list;
    }

    /// The next numbers, as many as a row has. A piece ends with a row.
    json row() {
        const std::size_t length = block_.shape.back();
        const std::span<const double> rest = block_.pieces[piece_].subspan(taken_);
        taken_ += length;
        if (rest.size() == length) {
            ++piece_;
            taken_ = 0;
        }
        return std::vector<double>(rest.begin(),
                                   rest.begin() + static_cast<std::ptrdiff_t>(length));
    }

    const number_block& block_;
    std::size_t piece_ = 0;
    std::size_t taken_ = 0;  // of the piece
};

json json_of_content(const value_content& content) {
    return std::visit(
        [](const auto& held) -> json {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, number_block>) {
                return block_reader(held).whole();
            } else {
                return held;
            }
        },
        content);
}

}  // namespace

json json_of_values(const named_values& values, bool full) {
    json object = json::object();
    for (const named_value& value : values) {
        if (full || !value.full_only) {
            object[value.name] = json_of_content(value.content);
        }
    }
    return object;
}

}  // namespace kvt
