// GT_form: the guide of five pictures for somebody without the simulation package.
#pragma once

#include "ui/shell/dialog_form.hpp"

#include <cstdint>
#include <exception>

class QLabel;
class QPushButton;

namespace kvt {

class progress_shower;

class GT_form : public dialog_form {
    Q_OBJECT

  public:
    /// Loads the first picture. Throws file_not_found or invalid_property_value for one that is
    /// missing or none.
    GT_form(const program& kavetta, progress_shower& person, QWidget* parent);

    /// Shows the guide until it is closed. Throws as the constructor for a later picture, which
    /// closes it.
    void run();

  protected:
    /// F1 opens the help file.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void show_screen();
    void press_next();

    progress_shower& person_;
    std::int16_t gt_guide_screen_ = 1;
    QLabel* picture_;
    QPushButton* next_;
    std::exception_ptr failure_;
};

}  // namespace kvt
