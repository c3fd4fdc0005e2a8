// Perffrm: the Performance form, where fluid, rotor materials and the range of speed and pressure
// are entered.
#pragma once

#include "ui/shell/mdi_form.hpp"

class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;
class QTimer;
class QWidget;

namespace kvt {

class Perffrm : public mdi_form {
    Q_OBJECT

  public:
    explicit Perffrm(form_context context);

    /// Also the version and the fluids of the simulation part.
    void refresh() override;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void add_fluid(QGridLayout& grid);
    void add_materials(QGridLayout& grid);
    void add_range(QGridLayout& grid);
    QWidget* simulation_part();
    void connect_simulation(QPushButton& button);

    QPushButton* calc_perf_ = nullptr;
    QComboBox* gt_combo_ = nullptr;
    QComboBox* gt_fluid_ = nullptr;
    QTimer* tim_gemc_ = nullptr;
};

}  // namespace kvt
