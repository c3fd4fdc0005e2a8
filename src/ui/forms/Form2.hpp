// Form2: the prompt at the start, a new project, an existing one, or one from an example.
#pragma once

#include "app/files/examples.hpp"
#include "core/asker.hpp"
#include "ui/shell/dialog_form.hpp"

#include <vector>

class QHBoxLayout;
class QLabel;
class QToolButton;

namespace kvt {

class Form2 : public dialog_form {
    Q_OBJECT

  public:
    Form2(const program& kavetta, const std::vector<delivered_example>& examples, QWidget* parent);

    /// What the user pressed; neither when the prompt was closed in another way.
    const start_answer& chosen() const { return chosen_; }

  private:
    QHBoxLayout* question_row();
    QHBoxLayout* button_row();
    QHBoxLayout* example_row(const std::vector<delivered_example>& examples);
    QToolButton* example_button(const delivered_example& example);
    void show_own_texts(const std::vector<delivered_example>& examples);
    void choose(start_answer chosen);

    QLabel* picture_ = nullptr;
    std::vector<QToolButton*> example_buttons_;  ///< in the order of the examples
    start_answer chosen_;
};

}  // namespace kvt
