// The rows of the text table, one file a form, and the look-up by message, control and language.
#include "core/text_table.hpp"

#include <algorithm>
#include <array>
#include <cassert>

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
#include "core/texts/MDIForm1.inc"
#include "core/texts/Perffrm.inc"
#include "core/texts/cnc.inc"
#include "core/texts/dxf.inc"
#include "core/texts/explanations.inc"
#include "core/texts/fontfrm.inc"
#include "core/texts/kvt.inc"
#include "core/texts/newprojectname.inc"
#include "core/texts/perf_res.inc"
#include "core/texts/portdes.inc"
#include "core/texts/progressfrm.inc"
#include "core/texts/select_graphs.inc"
#include "core/texts/step.inc"
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
    const auto found = std::ranges::find_if(ROWS, [&](const text_row& row) {
        return row.kind == kind && row.form == form && row.name == name;
    });
    return found == ROWS.end() ? nullptr : &*found;
}

const text_row* find_caption(std::string_view form, std::string_view name) {
    using enum text_kind;
    for (const text_kind kind :
         {caption, design_caption, caption_mm, caption_inch, fixed_caption}) {
        if (const text_row* row = find_text(kind, form, name)) {
            return row;
        }
    }
    return nullptr;
}

std::string_view form_text(std::string_view form, std::string_view name, std::int16_t language) {
    const text_row* row = find_caption(form, name);
    assert(row != nullptr);
    return row_text(*row, language);
}

}  // namespace kvt
