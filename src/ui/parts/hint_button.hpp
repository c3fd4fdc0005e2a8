// hint_button: one line in the status bar for the hints on display, and the list of all of them,
// which a click opens above it.
#pragma once

#include <QStringList>
#include <QToolButton>

class QListWidget;

namespace kvt {

class hint_button : public QToolButton {
    Q_OBJECT

  public:
    hint_button();

    /// Shows the line, shortened where it is longer than half of the window; hidden without hints.
    void show_hints(const QString& line, const QStringList& hints);

  protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void open_list();
    void shorten();

    QString line_;
    QListWidget* list_;
};

}  // namespace kvt
