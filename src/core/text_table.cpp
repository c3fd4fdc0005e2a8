// The rows of the text table, one file a form, and the look-up by message, control and language.
#include "core/text_table.hpp"

#include <algorithm>
#include <array>
#include <cassert>
#include <cstddef>
#include <tuple>
#include <utility>

namespace kvt {

namespace {

constexpr std::int16_t GERMAN = 2;

/// Messages alone, in the order of the enumerators, so that an enumerator is the index of its row.
constexpr auto MESSAGE_ROWS = std::to_array<text_row>({
#define KVT_MESSAGE(name, english, german) \
    {text_kind::message, "", #name, english, german, text_languages::both},
#define KVT_MESSAGE_ENGLISH_ONLY(name, english) \
    {text_kind::message, "", #name, english, "", text_languages::english_only},
#include "core/messages.inc"
#undef KVT_MESSAGE
#undef KVT_MESSAGE_ENGLISH_ONLY
});

consteval auto form_rows() {
    using enum text_kind;
    using enum text_languages;
    return std::to_array<text_row>({
#include "core/texts/Aboutform.inc"
#include "core/texts/Form1.inc"
#include "core/texts/Form2.inc"
#include "core/texts/Form3.inc"
#include "core/texts/Form4.inc"
#include "core/texts/GT_form.inc"
#include "core/texts/MDIForm1.inc"
#include "core/texts/Perffrm.inc"
#include "core/texts/charts.inc"
#include "core/texts/cnc.inc"
#include "core/texts/data.inc"
#include "core/texts/dxf.inc"
#include "core/texts/exact_figures.inc"
#include "core/texts/explanations.inc"
#include "core/texts/fontfrm.inc"
#include "core/texts/graphpopupmenu.inc"
#include "core/texts/history.inc"
#include "core/texts/kvt.inc"
#include "core/texts/limits.inc"
#include "core/texts/model_view.inc"
#include "core/texts/newprojectname.inc"
#include "core/texts/perf_res.inc"
#include "core/texts/pinned.inc"
#include "core/texts/portdes.inc"
#include "core/texts/progressfrm.inc"
#include "core/texts/report.inc"
#include "core/texts/result_tables.inc"
#include "core/texts/select_graphs.inc"
#include "core/texts/sheet.inc"
#include "core/texts/spoken.inc"
#include "core/texts/step.inc"
#include "core/texts/study.inc"
#include "core/texts/study_form.inc"
#include "core/texts/viewpopupmenu.inc"
#include "core/texts/viewwinfrm.inc"
    });
}

constexpr auto FORM_ROWS = form_rows();

/// One array for the reader: the messages first, then the forms.
consteval auto all_rows() {
    std::array<text_row, MESSAGE_ROWS.size() + FORM_ROWS.size()> rows{};
    std::ranges::copy(FORM_ROWS, std::ranges::copy(MESSAGE_ROWS, rows.begin()).out);
    return rows;
}

constexpr auto ROWS = all_rows();

constexpr bool is_caption(const text_row& row) {
    return row.kind != text_kind::message && row.kind != text_kind::tooltip &&
           row.kind != text_kind::spoken;
}

constexpr auto control_of(const text_row& row) {
    return std::pair(row.form, row.name);
}

constexpr auto place_of(const text_row* row) {
    return std::tuple(row->form, row->name, row->kind);
}

/// Every row in the order of form, control and kind.
consteval auto sorted_rows() {
    std::array<const text_row*, ROWS.size()> rows{};
    std::ranges::transform(ROWS, rows.begin(), [](const text_row& row) { return &row; });
    std::ranges::sort(rows, {}, place_of);
    return rows;
}

constexpr auto SORTED_ROWS = sorted_rows();

/// The first caption row of each control, in the order of form and control.
struct caption_list {
    std::array<const text_row*, FORM_ROWS.size()> rows{};
    std::size_t count = 0;
};

consteval caption_list first_captions() {
    caption_list list;
    for (const text_row* row : SORTED_ROWS) {
        if (!is_caption(*row)) {
            continue;
        }
        if (list.count == 0 || control_of(*list.rows[list.count - 1]) != control_of(*row)) {
            list.rows[list.count++] = row;
        }
    }
    return list;
}

constexpr caption_list CAPTIONS = first_captions();

}  // namespace

std::span<const text_row> text_rows() {
    return ROWS;
}

std::string_view row_text(const text_row& row, std::int16_t language) {
    return language == GERMAN && row.languages == text_languages::both ? row.german : row.english;
}

std::string_view message_text(message id, std::int16_t language) {
    return row_text(ROWS[static_cast<std::size_t>(id)], language);
}

const text_row* find_text(text_kind kind, std::string_view form, std::string_view name) {
    const auto place = std::tuple(form, name, kind);
    const auto found = std::ranges::lower_bound(SORTED_ROWS, place, {}, place_of);
    return found == SORTED_ROWS.end() || place_of(*found) != place ? nullptr : *found;
}

std::span<const text_row* const> caption_rows() {
    return std::span(CAPTIONS.rows).first(CAPTIONS.count);
}

std::optional<std::size_t> caption_index(std::string_view form, std::string_view name) {
    const auto rows = caption_rows();
    const auto found = std::ranges::lower_bound(
        rows, std::pair(form, name), {}, [](const text_row* row) { return control_of(*row); });
    if (found == rows.end() || control_of(**found) != std::pair(form, name)) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - rows.begin());
}

const text_row* find_caption(std::string_view form, std::string_view name) {
    const auto index = caption_index(form, name);
    return index ? caption_rows()[*index] : nullptr;
}

std::string_view form_text(std::string_view form, std::string_view name, std::int16_t language) {
    const text_row* row = find_caption(form, name);
    assert(row != nullptr);
    return row_text(*row, language);
}

}  // namespace kvt
