// The captions of a program that has just started, and their change.
#include "core/captions.hpp"

#include "core/text_table.hpp"

namespace kvt {

captions::captions() {
    for (const text_row& row : text_rows()) {
        if (row.kind != text_kind::message && row.kind != text_kind::tooltip) {
            set(row.form, row.name, find_caption(row.form, row.name)->english);
        }
    }
}

const std::string& captions::of(std::string_view form, std::string_view control) const {
    static const std::string none;
    const auto found = texts_.find(std::pair(std::string(form), std::string(control)));
    return found == texts_.end() ? none : found->second;
}

void captions::set(std::string_view form, std::string_view control, std::string_view text) {
    texts_.insert_or_assign({std::string(form), std::string(control)}, std::string(text));
}

}  // namespace kvt
