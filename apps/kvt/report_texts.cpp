#include "kvt/report_texts.hpp"

#include "base/constants.hpp"
#include "base/fixed4.hpp"
#include "base/number_text.hpp"

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

std::string length_unit(const app_state& state) {
    return state.drawing_units == INCHES ? " in" : " mm";
}

std::string length_text(const app_state& state, double millimetres) {
    const bool inches = state.drawing_units == INCHES;
    return rounded(inches ? millimetres / MM_PER_INCH : millimetres) + length_unit(state);
}

std::string caption_text(std::string_view form, std::string_view name, std::int16_t language) {
    return text_of(find_caption(form, name), name, language);
}

std::string unit_caption_text(std::string_view form, std::string_view name, bool inches,
                              std::int16_t language) {
    const text_kind kind = inches ? text_kind::caption_inch : text_kind::caption_mm;
    return text_of(find_text(kind, form, name), name, language);
}

}  // namespace kvt
