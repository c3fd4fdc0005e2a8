// Perffrm: the Performance form, where fluid, rotor materials and the range of speed and pressure
// are entered.
#pragma once

#include "ui/shell/mdi_form.hpp"

class QGridLayout;
class QLineEdit;
class QPushButton;
class QWidget;

namespace kvt {

class Perffrm : public mdi_form {
    Q_OBJECT

  public:
    explicit Perffrm(form_context context);

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void add_fluid(QGridLayout& grid);
    void add_materials(QGridLayout& grid);
    void add_range(QGridLayout& grid);
    QWidget* simulation_part();

    QPushButton* calc_perf_ = nullptr;
};

}  // namespace kvt
