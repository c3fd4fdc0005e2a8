// viewwinfrm: the Design view, where the rotor pair is drawn to scale.
#pragma once

#include "ui/mdi_form.hpp"

namespace kvt {

class design_picture;

class viewwinfrm : public mdi_form {
    Q_OBJECT

  public:
    explicit viewwinfrm(form_context context);

    void refresh() override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    QWidget* bottom_row();
    void zoom_all();
    void size_picture();
    void place_controls(int side);

    QWidget* content_;
    design_picture* picture_;
    QWidget* bottom_row_;
};

}  // namespace kvt
