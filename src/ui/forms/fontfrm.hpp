// fontfrm: the font of the controls of all forms. No menu opens it.
#pragma once

#include "ui/shell/dialog_form.hpp"

class QLineEdit;
class QRadioButton;

namespace kvt {

class fontfrm : public dialog_form {
    Q_OBJECT

  public:
    fontfrm(const program& kavetta, QWidget* parent);

  private:
    void change_font();
    double size_points() const;

    QLineEdit* text1_;
    QRadioButton* fntarial_;
    QRadioButton* fntsansserif_;
};

}  // namespace kvt
