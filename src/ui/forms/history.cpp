#include "ui/forms/history.hpp"

#include "app/history/step_text.hpp"
#include "app/program.hpp"
#include "ui/shell/qt_text.hpp"

#include <QListWidget>
#include <QVBoxLayout>

namespace kvt {

namespace {

constexpr QSize START_SIZE(420, 320);
constexpr int MARGIN = 8;

}  // namespace

history::history(form_context context) : loaded_form("history", context), list_(new QListWidget) {
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(MARGIN, MARGIN, MARGIN, MARGIN);
    layout->addWidget(list_);
    list_->setObjectName("history_list");
    connect(list_, &QListWidget::itemActivated, this, [this](const QListWidgetItem* item) {
        context_.runner.go_to_step(static_cast<std::size_t>(list_->row(item)));
    });
    connect(&context.runner, &command_runner::edited, this, &history::show_steps);
    bind(content, false);
}

QSize history::start_size() const {
    return START_SIZE;
}

void history::refresh() {
    loaded_form::refresh();
    list_->setAccessibleName(caption_of(context_.kavetta, "history", ""));
    show_steps();
}

void history::show_steps() {
    const edit_history& steps = context_.runner.history();
    list_->clear();
    for (std::size_t step = 0; step < steps.size(); ++step) {
        auto* item = new QListWidgetItem(qt_text(step_text(context_.kavetta, steps, step)), list_);
        if (step > steps.position()) {
            item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
        }
    }
    list_->setCurrentRow(static_cast<int>(steps.position()));
}

}  // namespace kvt
