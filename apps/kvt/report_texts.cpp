#include "kvt/report_texts.hpp"

#include "base/fixed4.hpp"
#include "base/number_text.hpp"
#include "core/length_unit.hpp"

#include <cmath>

namespace kvt {

namespace {

std::string text_of(const text_row* row, std::string_view name, std::int16_t language) {
    return std::string(row == nullptr ? name : row_text(*row, language));
}

}  // namespace

std::string rounded(double value) {
    constexpr double LARGEST = 1.0e9;
    return std::abs(value) < LARGEST ? fixed4::from(value).text() : number_text(value);
}

std::string length_unit_text(const app_state& state) {
    return " " + std::string(message_text(length_unit_of(state).short_name, state.language));
}

std::string length_text(const app_state& state, double millimetres) {
    return rounded(length_unit_of(state).from_mm(millimetres)) + length_unit_text(state);
}

std::string caption_text(std::string_view form, std::string_view name, std::int16_t language) {
    return text_of(find_caption(form, name), name, language);
}

std::string unit_caption_text(std::string_view form, std::string_view name,
                              const app_state& state) {
    return text_of(find_text(length_unit_of(state).captions, form, name), name, state.language);
}

}  // namespace kvt
