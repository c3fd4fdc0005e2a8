// Form3: the CNC output dialog, where files, cutter and resolution are chosen.
#pragma once

#include "app/files/cnc_output.hpp"
#include "ui/shell/dialog_form.hpp"

#include <map>

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QLineEdit;

namespace kvt {

class Form3 : public dialog_form {
    Q_OBJECT

  public:
    Form3(form_context context, QWidget* parent);

    /// While okbutton is at work: the boxes as its checks have left them.
    void refresh() override;

  protected:
    /// F1 opens the help file.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QLayout* lay_out_files();
    QLayout* lay_out_entries();
    QLayout* lay_out_buttons();
    QCheckBox* file_box(const written_file& file);
    void collect();
    void show_form();
    void press_ok();
    void press_last_values();

    form_context context_;
    cnc_form form_;
    bool is_pressed_ = false;  ///< okbutton is at work
    std::map<const written_file*, QCheckBox*> files_;
    QCheckBox* clockwise_;
    QLineEdit* toolsize_;
    QLineEdit* groovetooltext_;
    QComboBox* resolution_;
    QLabel* toolunits_;
    QLabel* toolunits_groove_;
    QLabel* groove_label_;
};

}  // namespace kvt
