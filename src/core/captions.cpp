// The captions of a program that has just started, and their change.
#include "core/captions.hpp"

#include "core/text_table.hpp"

namespace kvt {

std::string_view captions::of(std::string_view form, std::string_view control) const {
    const auto index = caption_index(form, control);
    if (!index) {
        return {};
    }
    return texts_.empty() ? caption_rows()[*index]->english : texts_[*index];
}

void captions::set(const text_row& row, std::int16_t language) {
    if (texts_.empty()) {
        for (const text_row* first : caption_rows()) {
            texts_.push_back(first->english);
        }
    }
    if (const auto index = caption_index(row.form, row.name)) {
        texts_[*index] = row_text(row, language);
    }
}

}  // namespace kvt
