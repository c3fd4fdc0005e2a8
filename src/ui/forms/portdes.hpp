// portdes: the Port Design form, where the inlet, the outlet and the metering groove are entered.
#pragma once

#include "ui/shell/mdi_form.hpp"

class QBoxLayout;
class QGridLayout;
class QGroupBox;
class QLabel;
class QPushButton;
class QWidget;

namespace kvt {

class portdes : public mdi_form {
    Q_OBJECT

  public:
    explicit portdes(form_context context);

    void refresh() override;

  protected:
    void changeEvent(QEvent* event) override;

  private:
    QGroupBox* inlet_frame();
    QGroupBox* outlet_frame();
    QGroupBox* type_frame();
    QWidget* fillet_row();
    QWidget* button_row();
    void add_entry(QGridLayout& grid, const char* entry, bool is_length);
    void connect_commands();

    QList<QLabel*> angle_units_;
    QList<QLabel*> length_units_;
    QPushButton* design_ports_ = nullptr;
    QPushButton* clear_ports_ = nullptr;
};

}  // namespace kvt
