// The modal forms: texts, keys, what they answer.
#include "ui/shell/dialog_form.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"
#include "ui/forms/Aboutform.hpp"
#include "ui/forms/Form2.hpp"
#include "ui/forms/newprojectname.hpp"

namespace kvt {

namespace {

std::string text_of(const QWidget& dialog, const char* name) {
    if (const auto* label = dialog.findChild<QLabel*>(name)) {
        return utf8_text(label->text());
    }
    return utf8_text(dialog.findChild<QAbstractButton*>(name)->text());
}

program german_program() {
    program kavetta;
    kavetta.app_state.language = GERMAN;
    set_german_captions(kavetta);
    return kavetta;
}

}  // namespace

TEST(Form2, asks_in_the_current_language) {
    const program english;
    EXPECT_EQ(text_of(Form2(english, {}, nullptr), "Label1"),
              "Would you like to start a New Project or Open an existing one?");
    const program german = german_program();
    const Form2 prompt(german, {}, nullptr);
    EXPECT_EQ(text_of(prompt, "new"), "Neu");
    EXPECT_EQ(text_of(prompt, "open"), "Öffnen Sie");
}

TEST(Form2, answers_with_the_button_and_neither_for_escape) {
    const program kavetta;
    for (const auto& [button, choice] : {std::pair("new", start_choice::new_project),
                                         std::pair("open", start_choice::open_project)}) {
        Form2 prompt(kavetta, {}, nullptr);
        prompt.show();
        QTest::mouseClick(prompt.findChild<QPushButton*>(button), Qt::LeftButton);
        EXPECT_EQ(prompt.chosen().choice, choice);
        EXPECT_FALSE(prompt.isVisible());
    }
    Form2 prompt(kavetta, {}, nullptr);
    prompt.show();
    QTest::keyClick(&prompt, Qt::Key_Escape);
    EXPECT_EQ(prompt.chosen().choice, start_choice::neither);
    EXPECT_FALSE(prompt.isVisible());
}

TEST(Form2, shows_the_delivered_examples_with_pictures_and_answers_with_the_chosen_one) {
    const program kavetta;
    Form2 prompt(kavetta, delivered_examples(DELIVERED_PROJECTS), nullptr);
    prompt.show();
    const QList<QToolButton*> buttons = prompt.findChildren<QToolButton*>();
    ASSERT_EQ(buttons.size(), 5);
    for (const QToolButton* button : buttons) {
        EXPECT_FALSE(button->icon().isNull()) << utf8_text(button->text());
    }
    EXPECT_EQ(buttons[1]->text(), "engine oil");
    EXPECT_TRUE(prompt.findChild<QPushButton*>("new")->isDefault());
    buttons[1]->setFocus();
    QTest::keyClick(buttons[1], Qt::Key_Space);
    EXPECT_EQ(prompt.chosen().choice, start_choice::example);
    EXPECT_TRUE(prompt.chosen().example.ends_with("engine_oil.KVT")) << prompt.chosen().example;
    EXPECT_FALSE(prompt.isVisible());
}

TEST(Form2, has_neither_a_row_nor_its_label_without_examples) {
    const program kavetta;
    const Form2 prompt(kavetta, delivered_examples(DELIVERED_PROJECTS / "none"), nullptr);
    EXPECT_TRUE(prompt.findChildren<QToolButton*>().isEmpty());
    EXPECT_EQ(prompt.findChild<QLabel*>("examples"), nullptr);
}

TEST(newprojectname, takes_any_text_that_a_file_can_hold) {
    const program kavetta;
    int refused = 0;
    newprojectname dialog(kavetta, nullptr, [&] { ++refused; });
    dialog.show();
    auto* name = dialog.findChild<QLineEdit*>("txtprojectname");
    type_keys(name, QString("Öl ") + QChar(0x0436) + "2");
    EXPECT_EQ(dialog.name(), "Öl 2");
    EXPECT_EQ(refused, 1);
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST(newprojectname, is_german_in_german) {
    const program kavetta = german_program();
    const newprojectname dialog(kavetta, nullptr, [] {});
    EXPECT_EQ(dialog.windowTitle(), "Neu Projekt");
    EXPECT_EQ(text_of(dialog, "lblLabels"), "Planen Sie Namen:");
    EXPECT_EQ(text_of(dialog, "cmdCancel"), "Heben Sie auf");
}

TEST(Aboutform, names_the_version) {
    const program kavetta;
    const Aboutform about(kavetta, nullptr);
    EXPECT_EQ(about.windowTitle(), "About Kavetta V2021");
    EXPECT_EQ(text_of(about, "lblVersion"), "Version 2021.1.1");
}

}  // namespace kvt
