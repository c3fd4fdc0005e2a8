// announcer: says a line to a screen reader without anything on the screen.
#pragma once

#include <QWidget>

namespace kvt {

/// A notification of one dot. A screen reader speaks its name as often as it is shown anew; the
/// widget itself stays where it is.
class announcer : public QWidget {
    Q_OBJECT

  public:
    explicit announcer(QWidget* parent);

    /// Says a line; nothing for an empty one.
    void announce(const QString& line);

  signals:
    void announced(const QString& line);
};

}  // namespace kvt
