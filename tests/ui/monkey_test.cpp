// Random events on all forms: the program neither falls nor loses an entry.
#include "ui/monkey.hpp"

#include "app/desk/start_up.hpp"
#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "support/temporary_folder.hpp"
#include "ui/shell/qt_text.hpp"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QLineEdit>
#include <QMdiSubWindow>

#include <gtest/gtest.h>
#include <iostream>

namespace kvt {

namespace {

constexpr int EVENTS = 20000;
/// The program ends now and then by a run-time failure, as it should. A monkey that does nothing
/// else tests nothing.
constexpr int EVENTS_A_RUN = 20;

/// Takes the place of the program that opens the help file.
class help_reader : public QObject {
    Q_OBJECT

  public:
    help_reader() { QDesktopServices::setUrlHandler("file", this, "read"); }
    ~help_reader() override { QDesktopServices::unsetUrlHandler("file"); }

  public slots:
    void read(const QUrl&) { ++opened; }

  public:
    int opened = 0;
};

class monkey_test : public testing::Test {
  protected:
    monkey_test() {
        fill_program_folder(folder.path(), KVT_SHARE_FOLDER);
        write_file(folder.path() / "KVT_V2021_Help_EN.pdf", "%PDF");
        for (const char* name :
             {"n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove", "n07_inch_hydraulic"}) {
            const std::string file = std::string(name) + ".KVT";
            const std::filesystem::path copy = folder.path() / "projects" / file;
            write_file(copy, read_file(std::string(KVT_TEST_DATA) + "/designs/" + file));
            projects.push_back(utf8_of_path(copy));
        }
        write_file(folder.path() / "projects" / "torn.KVT", "one line\r\n");
        projects.push_back(utf8_of_path(folder.path() / "projects" / "torn.KVT"));
    }

    /// Starts the program, with a design or at the prompt.
    void start(random_values& random) {
        on_screen.reset();
        const bool with_design = random.whole(0, 3) > 0;
        do {
            on_screen = std::make_unique<desktop>(folder.path());
        } while (!on_screen->start(
            with_design ? projects[static_cast<std::size_t>(random.whole(0, 3))] : ""));
        on_screen->window().activateWindow();
        QCoreApplication::processEvents();
        find_boxes();
        ASSERT_EQ(boxes.size() + checks.size(), entry_fields().size()) << "every entry has its box";
    }

    /// The boxes of all forms with their entries; these forms stay as long as the program.
    void find_boxes() {
        boxes.clear();
        checks.clear();
        for (const entry_field& field : entry_fields()) {
            const auto* form = on_screen->window().findChild<QMdiSubWindow*>(qt_text(field.form));
            if (form == nullptr) {
                continue;
            }
            if (auto* box = form->findChild<QLineEdit*>(qt_text(field.name))) {
                boxes.emplace_back(box, &field);
            } else if (auto* check = form->findChild<QAbstractButton*>(qt_text(field.name))) {
                checks.emplace_back(check, &field);
            }
        }
    }

    /// What the boxes show is what the program has, for every entry of every form.
    void expect_no_lost_entry(int event) const {
        const entries& kept = on_screen->program().entries;
        for (const auto& [box, field] : boxes) {
            ASSERT_NE(box, nullptr) << field->name << " has gone, event " << event;
            ASSERT_EQ(utf8_text(box->text()), kept.*field->member)
                << field->name << ", event " << event;
        }
        for (const auto& [check, field] : checks) {
            ASSERT_NE(check, nullptr) << field->name << " has gone, event " << event;
            ASSERT_EQ(check->isChecked(), kept.*field->member == "1")
                << field->name << ", event " << event;
        }
    }

    temporary_folder folder;
    std::vector<std::string> projects;
    std::unique_ptr<desktop> on_screen;
    std::vector<std::pair<QPointer<QLineEdit>, const entry_field*>> boxes;
    std::vector<std::pair<QPointer<QAbstractButton>, const entry_field*>> checks;
};

}  // namespace

TEST_F(monkey_test, random_events_neither_end_the_process_nor_lose_an_entry) {
    const int events = property_count(EVENTS);
    random_values random;
    monkey_answers answers(random, projects, folder.path() / "projects");
    help_reader help;
    int starts = 0;
    int event = 0;
    std::map<std::string, int> sent;
    while (event < events) {
        start(random);
        ++starts;
        monkey hand(random, *on_screen);
        for (; event < events && !on_screen->runner().has_ended(); ++event) {
            hand.act();
            if (!on_screen->runner().has_ended()) {
                expect_no_lost_entry(event);
            }
            if (HasFatalFailure()) {
                return;
            }
        }
        for (const auto& [kind, count] : hand.sent()) {
            sent[kind] += count;
        }
    }
    std::cout << events << " events, " << starts << " starts, " << answers.answered << " dialogs, "
              << help.opened << " times the help file\n";
    EXPECT_GT(answers.answered, 0);
    EXPECT_EQ(sent.size(), 8U) << "every kind of event was sent";
    EXPECT_LT(starts, events / EVENTS_A_RUN + 2);
}

}  // namespace kvt

#include "monkey_test.moc"
