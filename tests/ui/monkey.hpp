// monkey: hits the windows of the program with random keys, clicks, drags, wheels, sizes and menu
// entries, and answers the dialogs that appear.
#pragma once

#include "support/property_runs.hpp"
#include "ui/shell/desktop.hpp"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

class QDialog;
class QFileDialog;
class QMessageBox;

namespace kvt {

/// Answers every modal dialog at random, from the event loop, so that it works while a command
/// waits for the answer.
class monkey_answers : public QObject {
    Q_OBJECT

  public:
    /// projects: files to open, good and bad; saved: the folder to which it saves.
    monkey_answers(random_values& random, std::vector<std::string> projects,
                   std::filesystem::path saved);

    int answered = 0;

  private:
    void look_again();
    void look();
    void answer(QDialog& dialog);
    void answer_box(QMessageBox& box);
    void answer_file(QFileDialog& dialog);

    random_values& random_;
    std::vector<std::string> projects_;
    std::filesystem::path saved_;
    QPointer<QWidget> popup_;  ///< seen open by the last look
};

/// One event at a time on the windows of a program.
class monkey {
  public:
    monkey(random_values& random, desktop& on_screen);

    /// Sends one random event, and what belongs to it: a drag is several.
    void act();
    /// How many events of each kind were sent.
    const std::map<std::string, int>& sent() const { return sent_; }

  private:
    void click();
    void type();
    void press_key();
    void drag();
    void turn_wheel();
    void resize();
    void choose_menu();
    void switch_language_or_unit();

    QWidget* any_control();
    QPoint any_place(const QWidget& widget);
    template <typename value>
    value any(const std::vector<value>& values) {
        return values[static_cast<std::size_t>(
            random_.whole(0, static_cast<int>(values.size()) - 1))];
    }

    random_values& random_;
    desktop& desktop_;
    std::map<std::string, int> sent_;
};

}  // namespace kvt
