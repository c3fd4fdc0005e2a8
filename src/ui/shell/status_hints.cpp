#include "ui/shell/status_hints.hpp"

#include "app/desk/autosave.hpp"
#include "app/desk/command_hints.hpp"
#include "app/program.hpp"
#include "app/stages/stale_results.hpp"
#include "ui/parts/form_binding.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/parts/hint_button.hpp"
#include "ui/shell/qt_text.hpp"

#include <QLabel>
#include <QShortcut>
#include <QStatusBar>

namespace kvt {

status_hints::status_hints(const program& kavetta, QStatusBar& bar)
    : QObject(&bar),
      kavetta_(kavetta),
      hints_(new hint_button),
      trial_message_(named_label("trial_message")),
      cursor_position_(named_label("cursor_position")),
      stale_hint_(named_label("stale_hint")),
      unsaved_mark_(named_label("unsaved_mark")) {
    trial_message_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    bar.addWidget(trial_message_, 1);
    bar.addPermanentWidget(hints_);
    bar.addPermanentWidget(cursor_position_);
    bar.addPermanentWidget(stale_hint_);
    bar.addPermanentWidget(unsaved_mark_);
    auto* open_hints = new QShortcut(Qt::Key_F6, &bar);
    connect(open_hints, &QShortcut::activated, hints_, &hint_button::click);
}

void status_hints::refresh() {
    const std::vector<hint> hints = hints_on_display(kavetta_, performance_hint_);
    QStringList texts;
    for (const hint& row : hints) {
        texts.append(qt_text(row.text));
    }
    const QString line = qt_text(hint_summary(hints, kavetta_.app_state.language));
    hints_->show_hints(line, texts);
    const QString hint = qt_text(stale_hint(kavetta_));
    stale_hint_->setText(hint);
    stale_hint_->setVisible(!hint.isEmpty());
    unsaved_mark_->setText(caption_of(kavetta_, "MDIForm1", "unsaved_mark"));
    unsaved_mark_->setToolTip(tooltip_of(kavetta_, "MDIForm1", "unsaved_mark"));
    unsaved_mark_->setVisible(has_unsaved_changes(kavetta_));
    tell_new({line, hint});
}

void status_hints::tell_new(const QStringList& lines) {
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (!lines[i].isEmpty() && lines[i] != told_.value(i)) {
            emit told(lines[i]);
        }
    }
    told_ = lines;
}

void status_hints::show_trial_message(const std::vector<std::string>& messages) {
    const QString line = messages.empty() ? QString() : qt_text(messages.front()).simplified();
    trial_message_->setText(line);
    trial_message_->setToolTip(line);
}

void status_hints::show_cursor(const QString& place) {
    cursor_position_->setText(place);
}

}  // namespace kvt
