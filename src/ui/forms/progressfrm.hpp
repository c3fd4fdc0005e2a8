// progressfrm: how far long work has come.
#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

namespace kvt {

struct program;

/// A window of its own that does not wait for the user. Its texts are those of the language at its
/// load.
class progressfrm : public QDialog {
    Q_OBJECT

  public:
    progressfrm(const program& kavetta, QWidget* parent);

    /// What is done now, and how much of the whole, 0 .. 100.
    void show_progress(const QString& text, int percent);

    /// Closing does not stop the work, so it can't be closed by hand.
    void reject() override {}

  private:
    QLabel* label1_;
    QProgressBar* bar_;
};

}  // namespace kvt
