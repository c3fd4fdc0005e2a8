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

    /// What is done, as the window's title and above the bar, when it is not empty; and how much of
    /// the whole, 0 .. 100, in the bar and below it as "20%".
    void show_progress(const QString& text, int percent);

    /// While work is waited for, this window alone takes input.
    void take_input();
    /// The user has pressed Esc, or closed the window, while it took input.
    bool is_ended() const { return is_ended_; }

    /// Closing does not stop the work, so it can't be closed by hand; it ends a wait.
    void reject() override;

  private:
    QLabel* label1_;
    QLabel* label2_;
    QProgressBar* bar_;
    bool is_ended_ = false;
};

}  // namespace kvt
