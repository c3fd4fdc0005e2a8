// Binds the controls of a form to the program by their names: the one place that copies boxes to
// entries and entries, labels, captions, tooltips and enabling to the controls.
#pragma once

#include "ui/shell/command_runner.hpp"

#include <QWidget>

#include <string>

namespace kvt {

struct enabling;

/// What every form works on.
struct form_context {
    kvt::program& kavetta;
    command_runner& runner;
    user& person;
};

class form_binding {
  public:
    /// Binds the controls below root whose objectName is that of an entry, label or caption of the
    /// form: an edit goes to its entry at once. Call it once, when all controls exist.
    form_binding(form_context context, std::string form, QWidget& root);

    /// Shows the program's state in all controls of the form.
    void refresh();

  private:
    void bind_entries();
    void refresh_control(QWidget& control);
    void show_text(QWidget& control, std::string_view name);
    void show_enabled(QWidget& control, std::string_view name);

    form_context context_;
    std::string form_;
    QWidget& root_;
};

/// The caption of a control as the program has it now.
QString caption_of(const program& kavetta, std::string_view form, std::string_view control);

/// The tooltip of a control in the current language; empty for a control without one.
QString tooltip_of(const program& kavetta, std::string_view form, std::string_view control);

/// True when the enabling record lets a control be used; a control without a field in it can always
/// be used.
bool is_enabled(const enabling& state, std::string_view form, std::string_view control);

}  // namespace kvt
