#include "ui/desktop.hpp"

#include "app/start_up.hpp"

namespace kvt {

desktop::desktop(const std::filesystem::path& folder)
    : person_(program_),
      runner_(program_, person_),
      entry_focus_(runner_),
      window_(form_context{program_, runner_, person_}) {
    program_.folder = folder;
    person_.attach(
        &window_, [this] { window_.refresh(); }, [this](std::string_view form) { window_.load_child(form); });
}

bool desktop::start(const std::string& path) {
    runner_.act([&path](kvt::program& kavetta, user& person) {
        load_settings(kavetta);
        start_project(kavetta, person, path);
    });
    if (runner_.has_ended()) {
        return false;
    }
    window_.show_layout();
    return true;
}

}  // namespace kvt
