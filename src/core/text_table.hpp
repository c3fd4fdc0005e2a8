// The one table of every text the user sees: messages, captions, unit captions and tooltips,
// English and German.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace kvt {

/// What a row of the text table is used for.
enum class text_kind {
    message,         ///< a message box; name is the enumerator of message
    caption,         ///< set by both caption routines when the language changes
    design_caption,  ///< of Form3 and Form4: English at design time, German set by the German
                     ///< routine or by the form's own load, and never back
    caption_mm,      ///< set by the millimetre label routine
    caption_inch,    ///< set by the inch label routine
    fixed_caption,   ///< a caption that no routine changes
    tooltip,         ///< explains a field with its unit
    spoken           ///< what a screen reader calls a control that has no caption beside it
};

/// Whether a row must have a German text of its own.
enum class text_languages { both, english_only };

struct text_row {
    text_kind kind;
    std::string_view form;  ///< the form's name; empty for messages
    std::string_view
        name;  ///< the control's name, "" for the form's own caption, or the message's name
    std::string_view english;
    std::string_view german;  ///< empty only with english_only
    text_languages languages = text_languages::both;
};

/// The whole table, UTF-8. Rows of one form stand together.
std::span<const text_row> text_rows();

/// Every message of the program.
enum class message {
#define KVT_MESSAGE(name, english, german) name,
#define KVT_MESSAGE_ENGLISH_ONLY(name, english) name,
#include "core/messages.inc"
#undef KVT_MESSAGE
#undef KVT_MESSAGE_ENGLISH_ONLY
};

/// The text of a message: German for language 2, English for anything else and for English-only
/// messages.
std::string_view message_text(message id, std::int16_t language);

/// The text of a row: German for language 2 where there is one, else English.
std::string_view row_text(const text_row& row, std::int16_t language);

/// One row for each control with a caption, the one that find_caption gives, in the order of form
/// and control; and the place of a control in that list.
std::span<const text_row* const> caption_rows();
std::optional<std::size_t> caption_index(std::string_view form, std::string_view name);

/// The row of a control, or nullptr. The first kind that exists in the order of text_kind, tooltips
/// and spoken names excluded.
const text_row* find_caption(std::string_view form, std::string_view name);
const text_row* find_text(text_kind kind, std::string_view form, std::string_view name);

/// The text of a row that must be there, by find_caption.
std::string_view form_text(std::string_view form, std::string_view name, std::int16_t language);

}  // namespace kvt
