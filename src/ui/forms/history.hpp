// history: the window that lists the steps of the history and goes to any of them.
#pragma once

#include "ui/shell/loaded_form.hpp"

class QListWidget;

namespace kvt {

class history : public loaded_form {
    Q_OBJECT

  public:
    explicit history(form_context context);

    QSize start_size() const override;
    /// Shows the steps; those that were undone stand paler below the present one.
    void refresh() override;

  private:
    void show_steps();

    QListWidget* list_;
};

}  // namespace kvt
