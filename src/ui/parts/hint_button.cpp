#include "ui/parts/hint_button.hpp"

#include "ui/parts/accessible_names.hpp"

#include <QKeyEvent>
#include <QListWidget>

namespace kvt {

namespace {

/// Room beside the text of the button, pixels.
constexpr int TEXT_MARGINS = 12;
/// Largest width of the list, pixels; longer hints are broken into lines.
constexpr int LIST_WIDTH = 520;

}  // namespace

hint_button::hint_button() : list_(new QListWidget(this)) {
    setObjectName("hints");
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    // The window may become narrower than the line.
    setMinimumWidth(1);
    list_->setObjectName("hint_list");
    list_->setWindowFlags(Qt::Popup);
    list_->setWordWrap(true);
    list_->installEventFilter(this);
    list_->setSelectionMode(QAbstractItemView::NoSelection);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(this, &QToolButton::clicked, this, &hint_button::open_list);
    hide();
}

void hint_button::show_hints(const QString& line, const QStringList& hints) {
    line_ = line;
    set_accessible_name(*this, line);
    setToolTip(hints.join('\n'));
    list_->clear();
    list_->addItems(hints);
    shorten();
    setVisible(!hints.isEmpty());
}

void hint_button::resizeEvent(QResizeEvent* event) {
    QToolButton::resizeEvent(event);
    shorten();
}

/// A list leaves Esc to its window, which it is itself here.
bool hint_button::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        list_->hide();
        return true;
    }
    return QToolButton::eventFilter(watched, event);
}

void hint_button::shorten() {
    const int room = window()->width() / 2 - TEXT_MARGINS;
    setText(fontMetrics().elidedText(line_, Qt::ElideRight, room).replace('&', "&&"));
}

/// The list lies above the button, its right edge at the button's.
void hint_button::open_list() {
    const int width = std::min(LIST_WIDTH, window()->width());
    list_->setFixedWidth(width);
    list_->doItemsLayout();
    int height = 2 * list_->frameWidth();
    for (int row = 0; row < list_->count(); ++row) {
        height += list_->sizeHintForRow(row);
    }
    list_->setFixedHeight(std::min(height, window()->height() / 2));
    const QPoint corner = mapToGlobal(QPoint(this->width() - width, -list_->height()));
    list_->move(corner);
    list_->show();
    list_->setCurrentRow(0);
    list_->setFocus();
}

}  // namespace kvt
