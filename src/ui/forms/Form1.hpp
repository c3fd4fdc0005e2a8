// Form1: the Design form, where rotor dimensions are entered.
#pragma once

#include "ui/shell/mdi_form.hpp"

class QButtonGroup;
class QComboBox;
class QFrame;
class QGridLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace kvt {

class assist_area;
class language_flag;

class Form1 : public mdi_form {
    Q_OBJECT

  public:
    explicit Form1(form_context context);

    void refresh() override;
    void show_trial(const trial_figures* trial) override;

  signals:
    /// The form's close is the Exit command.
    void exit_asked();

  protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void add_header(QVBoxLayout& layout);
    void add_requirement(QVBoxLayout& layout);
    void add_entries(QVBoxLayout& layout);
    void add_entry(QGridLayout& grid, const char* entry, bool is_length);
    void add_buttons(QVBoxLayout& layout);
    void add_results(QVBoxLayout& layout);
    void connect_commands();
    void show_assist();
    void show_units();

    QButtonGroup* dimens_ = nullptr;  ///< the option buttons of the length units, by their codes
    QComboBox* unittype_ = nullptr;
    assist_area* assist_ = nullptr;
    language_flag* image1_ = nullptr;
    language_flag* image2_ = nullptr;
    QPushButton* calc_ = nullptr;
    QPushButton* cleardesign_ = nullptr;
    QList<QLabel*> length_units_;
};

}  // namespace kvt
