// The languages of the windows: every form in that of the start, Qt's own texts too.
#include "ui/shell/qt_language.hpp"

#include "core/text_table.hpp"
#include "support/scripted_user.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/forms/Aboutform.hpp"
#include "ui/forms/Form3.hpp"
#include "ui/forms/Form4.hpp"
#include "ui/forms/fontfrm.hpp"
#include "ui/forms/perf_res.hpp"
#include "ui/forms/progressfrm.hpp"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QMdiSubWindow>

#include <map>

namespace kvt {
namespace {

using shown_texts = std::map<std::string, std::string>;

/// The texts of the named controls of a form, and its title under "".
shown_texts texts_of(const QWidget& form) {
    shown_texts texts = {{"", utf8_text(form.windowTitle())}};
    for (const QWidget* control : form.findChildren<QWidget*>()) {
        const std::string name = utf8_text(control->objectName());
        if (name.empty()) {
            continue;
        }
        if (const auto* label = qobject_cast<const QLabel*>(control)) {
            texts[name] = utf8_text(label->text());
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(control)) {
            texts[name] = utf8_text(button->text());
        } else if (const auto* group = qobject_cast<const QGroupBox*>(control)) {
            texts[name] = utf8_text(group->title());
        }
    }
    return texts;
}

/// Whether a shown text may be the caption of any row of that control in that language. Some titles
/// have something behind them.
bool is_caption_of(const text_row& row, const std::string& shown, std::int16_t language) {
    using enum text_kind;
    for (const text_kind kind :
         {caption, design_caption, caption_mm, caption_inch, fixed_caption}) {
        const text_row* found = find_text(kind, row.form, row.name);
        if (found != nullptr && shown.starts_with(row_text(*found, language))) {
            return true;
        }
    }
    return false;
}

class languages_test : public desktop_test {
  protected:
    /// Every control whose captions differ between the languages shows that of this one.
    void expect_language(const char* form, const shown_texts& shown, std::int16_t language) {
        int compared = 0;
        for (const text_row& row : text_rows()) {
            const auto text = shown.find(std::string(row.name));
            const bool differs = row_text(row, ENGLISH) != row_text(row, GERMAN);
            if (row.form != form || row.kind == text_kind::tooltip ||
                row.kind == text_kind::spoken || !differs || text == shown.end()) {
                continue;
            }
            EXPECT_TRUE(is_caption_of(row, text->second, language))
                << form << "." << row.name << ": " << text->second;
            ++compared;
        }
        EXPECT_GT(compared, 0) << form;
    }

    /// Starts by the prompt with a new project; Form2 and newprojectname are read on the way.
    void start_new(std::int16_t language) {
        write_settings(language == GERMAN ? '2' : '1');
        robot.prompts = {"new"};
        robot.names = {"pump"};
        robot.at_prompt = [&, language] {
            expect_language("Form2", texts_of(*QApplication::activeModalWidget()), language);
        };
        robot.at_name = [&, language] {
            expect_language("newprojectname", texts_of(*QApplication::activeModalWidget()),
                            language);
        };
        program_on_screen = std::make_unique<desktop>(folder.path());
        program_on_screen->start();
    }

    void expect_children(std::int16_t language) {
        for (const char* form : {"Form1", "portdes", "viewwinfrm", "Perffrm", "select_graphs"}) {
            expect_language(form, texts_of(*find<QMdiSubWindow>(form)), language);
        }
    }

    void expect_dialogs(std::int16_t language) {
        scripted_user person;
        expect_language("Aboutform", texts_of(Aboutform(kavetta(), nullptr)), language);
        expect_language("fontfrm", texts_of(fontfrm(kavetta(), nullptr)), language);
        expect_language("progressfrm", texts_of(progressfrm(kavetta(), nullptr)), language);
        expect_language("Form3", texts_of(Form3({kavetta(), desk().runner(), person}, nullptr)),
                        language);
        expect_language("Form4", texts_of(Form4(kavetta(), person, "acad", nullptr)), language);
        perf_res results({kavetta(), desk().runner(), person});
        results.refresh();
        expect_language("perf_res", texts_of(results), language);
    }

    /// The text of the button of a file dialog that Qt itself names.
    QString cancel_of_file_dialog() {
        QString text;
        robot.at_file_dialog = [&](QFileDialog& dialog) {
            text = dialog.findChild<QDialogButtonBox*>()
                       ->button(QDialogButtonBox::Cancel)
                       ->text()
                       .remove('&');
        };
        robot.files.emplace_back(std::nullopt);
        choose("mnufileopen");
        return text;
    }
};

TEST_F(languages_test, every_form_comes_up_in_the_language_of_the_start) {
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        start_new(language);
        expect_children(language);
        expect_dialogs(language);
        program_on_screen.reset();
    }
}

TEST_F(languages_test, the_dialogs_of_the_start_are_english_again_after_a_change_back) {
    start_new(GERMAN);
    press("Image1");
    expect_children(ENGLISH);
    robot.names = {std::optional<std::string>("second")};
    robot.at_name = [&] {
        expect_language("newprojectname", texts_of(*QApplication::activeModalWidget()), ENGLISH);
    };
    robot.answers = {"Yes"};
    choose("mnufilenew");
}

TEST_F(languages_test, the_file_dialogs_of_qt_follow) {
    start();
    EXPECT_EQ(cancel_of_file_dialog(), "Cancel");
    press("Image2");
    EXPECT_EQ(cancel_of_file_dialog(), "Abbrechen");
    press("Image1");
    EXPECT_EQ(cancel_of_file_dialog(), "Cancel");
}

}  // namespace
}  // namespace kvt
