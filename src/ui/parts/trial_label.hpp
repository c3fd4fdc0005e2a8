// trial_label: what the entries as they are being typed would change a result of a form to.
#pragma once

#include "core/entries.hpp"

#include <QLabel>

namespace kvt {

struct figure;

/// The results of a trial; pale while the entries are refused that came after it.
struct trial_figures {
    labels texts;
    bool is_pale = false;
};

/// Named as the result with "_trial" behind it; hidden while there is nothing to say.
class trial_label : public QLabel {
    Q_OBJECT

  public:
    trial_label(const char* form, const char* control);

    /// "→ 7.94, +4.5 %" beside the present result; null: there is no trial.
    void show_figure(const labels& present, const trial_figures* trial, char decimal_mark);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const figure* figure_;
    bool is_pale_ = false;
};

/// Shows the trial in all labels below a widget.
void show_trial_figures(const QWidget& below, const labels& present, const trial_figures* trial,
                        char decimal_mark);

}  // namespace kvt
