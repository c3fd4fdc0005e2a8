#include "ui/parts/trial_label.hpp"

#include "app/trial/figures.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

namespace kvt {

trial_label::trial_label(const char* form, const char* control)
    : figure_(find_figure(form, control)) {
    setObjectName(QString(control) + "_trial");
    setFont(compact_font());
    hide();
}

void trial_label::show_figure(const labels& present, const trial_figures* trial,
                              char decimal_mark) {
    const std::string text =
        trial == nullptr ? std::string()
                         : changed_figure_text(*figure_, present, trial->texts, decimal_mark);
    is_pale_ = trial != nullptr && trial->is_pale;
    setText(qt_text(text));
    setVisible(!text.empty());
    update();
}

/// The pale ink follows the palette, which can change while it stands.
void trial_label::paintEvent(QPaintEvent* event) {
    if (!is_pale_) {
        QLabel::paintEvent(event);
        return;
    }
    paint_faint_text(*this);
}

void show_trial_figures(const QWidget& below, const labels& present, const trial_figures* trial,
                        char decimal_mark) {
    for (trial_label* label : below.findChildren<trial_label*>()) {
        label->show_figure(present, trial, decimal_mark);
    }
}

}  // namespace kvt
