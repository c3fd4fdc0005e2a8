// Tests of the Print entry: the dialog, what a cancelled one leaves, and the end without a word.
#include "app/files/print_project.hpp"

#include "app/files/project_fixture.hpp"
#include "base/run_time_error.hpp"

namespace kvt {
namespace {

/// Counts the lines of the test's own counter, since the command owns the printer.
class counting_printer : public report_printer {
  public:
    explicit counting_printer(int& lines, int fails_at = -1) : lines_(lines), fails_at_(fails_at) {}

    void font_size(double) override {}
    void line(std::initializer_list<report_item>) override {
        if (++lines_ == fails_at_) {
            throw run_time_error(failure::path_file_access);
        }
    }
    void end_document() override { lines_ += 1000; }

  private:
    int& lines_;
    int fails_at_;
};

using print_project_test = project_test;

TEST_F(print_project_test, asks_with_the_name_of_the_project_and_its_folder) {
    kavetta.app_state.project_name = "pump";
    kavetta.app_state.projects_folder = folder.file("projects");
    person.printers.push_back(nullptr);
    print_project(kavetta, person);
    ASSERT_EQ(person.prints.size(), 1U);
    EXPECT_EQ(person.prints[0].document, "pump");
    EXPECT_EQ(person.prints[0].file_without_printer, folder.file("projects/pump.pdf"));
    EXPECT_EQ(person.log, std::vector<std::string>{"print pump"}) << "cancelled: nothing follows";
}

TEST_F(print_project_test, names_a_project_without_a_name_as_the_program) {
    person.printers.push_back(nullptr);
    print_project(kavetta, person);
    EXPECT_EQ(person.prints[0].document, "Kavetta");
}

TEST_F(print_project_test, prints_to_the_end_of_the_document) {
    int lines = 0;
    person.printers.push_back(std::make_unique<counting_printer>(lines));
    print_project(kavetta, person);
    EXPECT_GT(lines, 1000 + 70);
}

TEST_F(print_project_test, ends_without_a_word_when_the_printer_fails) {
    int lines = 0;
    person.printers.push_back(std::make_unique<counting_printer>(lines, 3));
    print_project(kavetta, person);
    EXPECT_EQ(lines, 3) << "the document stays unfinished";
    EXPECT_EQ(person.log, std::vector<std::string>{"print Kavetta"});
}

TEST_F(print_project_test, carries_the_date_and_time_of_the_clock) {
    class stopped_clock : public clock {
        std::chrono::system_clock::time_point now() const override { return {}; }
    };
    const report_source source = report_of(kavetta, stopped_clock());
    EXPECT_EQ(source.title, "Kavetta V2021");
    EXPECT_EQ(source.date, short_date(stopped_clock()));
    EXPECT_EQ(source.time, time_of_day(stopped_clock()));
}

}  // namespace
}  // namespace kvt
