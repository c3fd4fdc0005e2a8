#include "app/desk/explanation_windows.hpp"

#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "core/text_table.hpp"
#include "core/user.hpp"

namespace kvt {

namespace {

bool& closed_flag(program& kavetta, explanation_window window) {
    return window == explanation_window::gerotor ? kavetta.app_state.explain_closed
                                                 : kavetta.app_state.port_explain_closed;
}

}  // namespace

std::string_view form_of(explanation_window window) {
    return window == explanation_window::gerotor ? "explain" : "port_explain";
}

std::filesystem::path load_explanation(program& kavetta, explanation_window window) {
    const std::string_view form = form_of(window);
    closed_flag(kavetta, window) = false;
    const std::int16_t language = kavetta.app_state.language;
    kavetta.captions.set(*find_caption(form, ""), language);
    const std::filesystem::path picture =
        kavetta.folder / path_of_utf8(form_text(form, "Image1", language));
    std::error_code error;
    if (!std::filesystem::is_regular_file(picture, error)) {
        throw run_time_error(failure::file_not_found, utf8_of_path(picture));
    }
    return picture;
}

void unload_explanation(program& kavetta, explanation_window window) {
    closed_flag(kavetta, window) = true;
}

void show_gerotor_explanation(program&, user& person) {
    person.show_form(form_of(explanation_window::gerotor));
}

void show_porting_explanation(program&, user& person) {
    person.show_form(form_of(explanation_window::porting));
}

}  // namespace kvt
