#include "ui/forms/GT_form.hpp"

#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/run_time_error.hpp"
#include "core/text_table.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/parts/picture_file.hpp"
#include "ui/shell/help_file.hpp"
#include "ui/shell/qt_text.hpp"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kvt {

namespace {

constexpr std::int16_t LAST_SCREEN = 5;
/// The pictures have twice the pixels that a screen of usual density shows.
constexpr int WIDTH = 720;

}  // namespace

GT_form::GT_form(const program& kavetta, progress_shower& person, QWidget* parent)
    : dialog_form("GT_form", kavetta, parent),
      person_(person),
      picture_(new QLabel),
      next_(new QPushButton) {
    picture_->setObjectName("Picture1");
    next_->setObjectName("cmd_next");
    next_->setDefault(true);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(picture_);
    layout->addWidget(next_, 0, Qt::AlignRight);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    show_texts();
    show_screen();
    connect(next_, &QPushButton::clicked, this, &GT_form::press_next);
}

void GT_form::run() {
    exec();
    if (failure_) {
        std::rethrow_exception(failure_);
    }
}

void GT_form::show_screen() {
    const std::string name = "GT_screen_" + std::to_string(gt_guide_screen_) + ".jpg";
    const QPixmap picture = picture_of_file(kavetta_.folder / path_of_utf8(name));
    picture_->setPixmap(picture.scaledToWidth(WIDTH, Qt::SmoothTransformation));
    picture_->setAccessibleName(
        qt_text(form_text("spoken", "gt_guide", kavetta_.app_state.language)) +
        QString::number(gt_guide_screen_));
    if (gt_guide_screen_ == LAST_SCREEN) {
        next_->setText(
            qt_text(form_text("GT_form", "cmd_next_close", kavetta_.app_state.language)));
    }
}

/// A failure can't pass the event loop: run takes it further.
void GT_form::press_next() {
    if (gt_guide_screen_ == LAST_SCREEN) {
        accept();
        return;
    }
    ++gt_guide_screen_;
    try {
        show_screen();
    } catch (const run_time_error&) {
        failure_ = std::current_exception();
        reject();
    }
}

void GT_form::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F1) {
        show_help_file(kavetta_, person_);
        return;
    }
    dialog_form::keyPressEvent(event);
}

}  // namespace kvt
