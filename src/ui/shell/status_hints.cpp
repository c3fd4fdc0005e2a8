#include "ui/shell/status_hints.hpp"

#include "app/stages/stale_results.hpp"
#include "ui/parts/form_parts.hpp"
#include "ui/shell/qt_text.hpp"

#include <QLabel>
#include <QStatusBar>

namespace kvt {

status_hints::status_hints(const program& kavetta, QStatusBar& bar)
    : QObject(&bar),
      kavetta_(kavetta),
      cursor_position_(named_label("cursor_position")),
      stale_hint_(named_label("stale_hint")) {
    bar.addPermanentWidget(cursor_position_);
    bar.addPermanentWidget(stale_hint_);
}

void status_hints::refresh() {
    const QString hint = qt_text(stale_hint(kavetta_));
    stale_hint_->setText(hint);
    stale_hint_->setVisible(!hint.isEmpty());
}

void status_hints::show_cursor(const QString& place) {
    cursor_position_->setText(place);
}

}  // namespace kvt
