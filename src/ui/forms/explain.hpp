// explain and port_explain: pictures that name the parameters of the rotors and of the ports.
#pragma once

#include "app/desk/explanation_windows.hpp"
#include "ui/shell/loaded_form.hpp"

namespace kvt {

/// A window with the picture of its language, which follows the size of the window. Throws
/// run_time_error when the picture can't be loaded.
class explanation_form : public loaded_form {
    Q_OBJECT

  public:
    void refresh() override;

  protected:
    explanation_form(explanation_window window, form_context context);

    void unload() override;

  private:
    explanation_window window_;
};

class explain : public explanation_form {
    Q_OBJECT

  public:
    explicit explain(form_context context)
        : explanation_form(explanation_window::gerotor, context) {}
};

class port_explain : public explanation_form {
    Q_OBJECT

  public:
    explicit port_explain(form_context context)
        : explanation_form(explanation_window::porting, context) {}
};

}  // namespace kvt
