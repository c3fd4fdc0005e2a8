#include "ui/forms/progressfrm.hpp"

#include "app/program.hpp"
#include "core/text_table.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace kvt {

namespace {

constexpr int WIDTH = 320;

}  // namespace

progressfrm::progressfrm(const program& kavetta, QWidget* parent)
    : QDialog(parent),
      label1_(named_label("Label1")),
      label2_(named_label("Label2")),
      bar_(new QProgressBar) {
    setObjectName("progressfrm");
    setModal(false);
    const std::int16_t language = kavetta.app_state.language;
    setWindowTitle(qt_text(row_text(*find_caption("progressfrm", ""), language)));
    label2_->setText(qt_text(row_text(*find_caption("progressfrm", "Label2"), language)));
    bar_->setObjectName("ProgressBar1");
    bar_->setRange(0, 100);
    bar_->setMinimumWidth(WIDTH);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 16);
    layout->addWidget(label2_);
    layout->addWidget(bar_);
    layout->addWidget(label1_);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void progressfrm::show_progress(const QString& text, int percent) {
    if (!text.isEmpty()) {
        setWindowTitle(text);
        label2_->setText(text);
    }
    bar_->setAccessibleName(label2_->text());
    label1_->setText(QString::number(percent) + "%");
    bar_->setValue(percent);
    show();
}

void progressfrm::take_input() {
    if (isModal()) {
        return;
    }
    // A window that is shown keeps the modality that it was shown with.
    hide();
    setWindowModality(Qt::ApplicationModal);
    show();
    activateWindow();
}

void progressfrm::reject() {
    is_ended_ = isModal();
}

}  // namespace kvt
