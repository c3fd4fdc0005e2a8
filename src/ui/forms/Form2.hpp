// Form2: the prompt at the start, a new project or an existing one.
#pragma once

#include "core/asker.hpp"
#include "ui/shell/dialog_form.hpp"

namespace kvt {

class Form2 : public dialog_form {
    Q_OBJECT

  public:
    Form2(const program& kavetta, QWidget* parent);

    /// What the user pressed; neither when the prompt was closed in another way.
    start_choice choice() const { return choice_; }

  private:
    void choose(start_choice choice);

    start_choice choice_ = start_choice::neither;
};

}  // namespace kvt
