#include "app/study/study_problem.hpp"

#include "core/app_state.hpp"
#include "core/text_table.hpp"

#include <cstddef>
#include <utility>

namespace kvt {

namespace {

/// A part may itself hold a %1: nothing is replaced twice.
std::string with_parts(std::string_view text, const std::vector<std::string>& parts) {
    std::string filled;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t part = text[i] == '%' && i + 1 < text.size()
                                     ? static_cast<std::size_t>(text[i + 1] - '1')
                                     : parts.size();
        if (part < parts.size()) {
            filled += parts[part];
            ++i;
        } else {
            filled += text[i];
        }
    }
    return filled;
}

std::string text_of(std::string_view row, const std::vector<std::string>& parts,
                    std::int16_t language) {
    return with_parts(form_text("study", row, language), parts);
}

}  // namespace

study_problem::study_problem(std::string_view row, std::vector<std::string> parts)
    : std::runtime_error(text_of(row, parts, ENGLISH)), row_(row), parts_(std::move(parts)) {}

std::string study_problem::text(std::int16_t language) const {
    return text_of(row_, parts_, language);
}

}  // namespace kvt
