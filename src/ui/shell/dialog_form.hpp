// dialog_form: what the modal forms have in common.
#pragma once

#include "ui/parts/form_binding.hpp"

#include <QDialog>

namespace kvt {

/// A dialog named as its form, whose texts are the program's captions at the moment it appears. Esc
/// closes it.
class dialog_form : public QDialog {
    Q_OBJECT

  public:
    dialog_form(const char* form, const program& kavetta, QWidget* parent);

    /// Shows the state of a command that was started from the dialog, before its message appears.
    virtual void refresh() {}

  protected:
    /// Shows captions and tooltips in all named controls; call it when they exist.
    void show_texts();
    /// All texts stand now: the controls get what a screen reader says of them.
    void showEvent(QShowEvent* event) override;

    const program& kavetta_;

  private:
    std::string form_;
};

}  // namespace kvt
