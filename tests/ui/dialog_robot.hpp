// dialog_robot: answers the modal dialogs of the program as a person would, and keeps what they
// said.
#pragma once

#include "core/user.hpp"

#include <QObject>
#include <QTimer>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QDialog;
class QFileDialog;
class QMessageBox;
class QPrintDialog;

namespace kvt {

class dialog_robot : public QObject {
    Q_OBJECT

  public:
    dialog_robot();

    std::vector<std::string> messages;   ///< message boxes with one button, in order
    std::vector<std::string> questions;  ///< message boxes with several buttons, in order
    std::vector<std::string> titles;     ///< window titles of the file dialogs, in order
    std::vector<std::string>
        surprises;  ///< dialogs that the script did not foresee; they were cancelled

    // The script.
    std::deque<std::string> answers;  ///< the text of the button to press, question by question
    /// The buttons to press in the boxes of failures, whose texts stand among the messages; without
    /// one the program ends. "" is Esc.
    std::deque<std::string> failure_answers;
    std::vector<std::string> default_buttons;      ///< of those boxes
    std::deque<std::optional<std::string>> files;  ///< the path to choose; nothing cancels
    std::deque<std::optional<std::string>> names;  ///< project names; nothing cancels
    std::deque<std::string>
        prompts;  ///< "new", "open", the name of an example or "" (closed) for Form2
    std::deque<std::optional<std::string>> prints;  ///< the file to print to; nothing cancels
    std::vector<std::string> proposed_prints;       ///< the files that the print dialogs proposed
    std::string left_open;                     ///< name of a dialog that the test itself works in
    std::function<void()> at_message;          ///< looked at while a message box is open
    std::function<void()> at_name;             ///< looked at before the name dialog is answered
    std::function<void()> at_prompt;           ///< looked at before Form2 is answered
    std::function<void(QDialog&)> at_package;  ///< answers Form4
    std::function<void(QFileDialog&)>
        at_file_dialog;  ///< looked at before a file dialog is answered

  private:
    void look_again();
    void look();
    void answer_failure(QMessageBox& box);
    void answer_box(QMessageBox& box);
    void answer_file(QFileDialog& dialog);
    void answer_print(QPrintDialog& dialog);
    void answer_other(QDialog& dialog);
    void be_surprised(QDialog& dialog);
};

}  // namespace kvt
