// Aboutform: the About box with the version.
#pragma once

#include "ui/shell/dialog_form.hpp"

namespace kvt {

class Aboutform : public dialog_form {
    Q_OBJECT

  public:
    Aboutform(const program& kavetta, QWidget* parent);
};

}  // namespace kvt
