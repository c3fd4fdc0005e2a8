// asker: what a command asks the person on the other side.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kvt {

enum class answer { yes, no, cancel };
enum class question_buttons { yes_no, yes_no_cancel };

/// What the user chose at the start prompt.
enum class start_choice { neither, new_project, open_project, example };

/// The answer at the start prompt.
struct start_answer {
    start_choice choice = start_choice::neither;
    std::string example;  ///< the path of the example that was chosen
};

class asker {
  public:
    virtual ~asker() = default;

    virtual answer ask(std::string_view question, question_buttons buttons) = 0;
    /// Tells a failure that ends the program unless the user would rather go on. No answer is
    /// false: the program ends.
    virtual bool ask_to_go_on(std::string_view failure) = 0;
    /// The New Project dialog: the typed name for OK, nothing for Cancel.
    virtual std::optional<std::string> ask_project_name() = 0;
    /// The prompt Form2: new, open, or one of the examples.
    virtual start_answer ask_new_or_open() = 0;
    /// Form4: the code of the CAD package that was chosen, with `code` as the choice at first.
    /// Nothing for OK without a choice and when the form was closed in another way.
    virtual std::optional<std::string> ask_modelling_package(std::string_view code) = 0;
};

}  // namespace kvt
