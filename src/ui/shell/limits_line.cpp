#include "ui/shell/limits_line.hpp"

#include "app/program.hpp"
#include "app/trial/design_trial.hpp"
#include "app/trial/limits_text.hpp"
#include "core/text_table.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

#include <QApplication>
#include <QLabel>
#include <QStatusBar>
#include <QToolButton>

namespace kvt {

limits_line::limits_line(form_context context, QStatusBar& bar)
    : QObject(&bar),
      context_(context),
      label_(named_label("limits_line")),
      nearest_(new QToolButton) {
    nearest_->setObjectName("nearest_value");
    nearest_->setFocusPolicy(Qt::TabFocus);
    // The window may become narrower than the line.
    label_->setMinimumWidth(1);
    bar.addPermanentWidget(label_);
    bar.addPermanentWidget(nearest_);
    clear();
    delay_.setSingleShot(true);
    delay_.setInterval(DELAY_MS);
    const command_runner& runner = context.runner;
    connect(&delay_, &QTimer::timeout, this, &limits_line::search);
    connect(&worker_, &limits_worker::found, this, &limits_line::show_limits);
    connect(nearest_, &QToolButton::clicked, this, &limits_line::enter_nearest);
    connect(&runner, &command_runner::starting, &worker_, &limits_worker::give_up);
    connect(&runner, &command_runner::edited, this, &limits_line::search_later);
    connect(&runner, &command_runner::finished, this, &limits_line::search_later);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* now) { focus_changed(now); });
}

/// What stands there stays until another entry has the focus.
void limits_line::focus_changed(QWidget* now) {
    auto* box = qobject_cast<QLineEdit*>(now);
    const entry_field* entry = box == nullptr ? nullptr : find_entry(utf8_text(box->objectName()));
    if (entry == nullptr || box == box_) {
        return;
    }
    clear();
    box_ = box;
    entry_ = entry;
    search_later();
}

/// The range stays until another one is found; the nearest value belonged to another number.
void limits_line::search_later() {
    worker_.give_up();
    nearest_->hide();
    delay_.start();
}

void limits_line::search() {
    const command_runner& runner = context_.runner;
    if (box_ == nullptr || runner.is_running() || runner.has_ended()) {
        return;
    }
    const program& kavetta = context_.kavetta;
    worker_.start(std::make_shared<const program>(trial_copy(kavetta)), *entry_,
                  last_calculated_stage(kavetta));
}

void limits_line::show_limits(const std::optional<entry_limits>& limits) {
    if (box_ == nullptr) {
        return;
    }
    clear();
    if (!limits) {
        return;
    }
    const program& kavetta = context_.kavetta;
    const QString range = qt_text(limits_text(kavetta, *entry_, *limits));
    label_->setText(range);
    label_->setVisible(!range.isEmpty());
    if (!range.isEmpty()) {
        const QString own = tooltip_of(kavetta, entry_->form, entry_->name);
        box_->setToolTip(own.isEmpty() ? range : own + "\n" + range);
    }
    if (const entry_limit* nearest = limits->nearest()) {
        nearest_number_ = qt_text(nearest->shown);
        nearest_->setText(qt_text(nearest_text(kavetta, *entry_, *limits)));
        nearest_->setToolTip(caption_of(kavetta, "limits", "nearest_tooltip"));
        nearest_->show();
        emit told(nearest_->text());
    }
}

void limits_line::clear() {
    label_->clear();
    label_->hide();
    nearest_->hide();
    if (box_ != nullptr) {
        box_->setToolTip(tooltip_of(context_.kavetta, entry_->form, entry_->name));
    }
}

/// Typed with the mark that the user has typed.
void limits_line::enter_nearest() {
    if (box_ == nullptr) {
        return;
    }
    const bool has_comma = box_->text().contains(',');
    box_->setFocus();
    box_->selectAll();
    box_->insert(has_comma ? QString(nearest_number_).replace('.', ',') : nearest_number_);
}

}  // namespace kvt
