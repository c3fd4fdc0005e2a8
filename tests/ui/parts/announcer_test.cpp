// announcer: the lines that a screen reader is told.
#include "ui/parts/announcer.hpp"

#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

#include <QAccessible>
#include <QSignalSpy>

namespace kvt {

namespace {

class announcer_test : public desktop_test {
  protected:
    void open_design() {
        start(own_design_file("n07_engine_oil_groove"));
        lines_ = std::make_unique<QSignalSpy>(find<announcer>("announcer"), &announcer::announced);
    }
    /// The lines since the last look, in their order.
    std::vector<std::string> said() {
        std::vector<std::string> lines;
        while (!lines_->isEmpty()) {
            lines.push_back(utf8_text(lines_->takeFirst().front().toString()));
        }
        return lines;
    }

  private:
    std::unique_ptr<QSignalSpy> lines_;
};

}  // namespace

// That the events come over the bus is seen by the test in tests/access.
TEST_F(announcer_test, is_a_notification_with_the_line_as_its_name) {
    QWidget window;
    announcer quiet(&window);
    const QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&quiet);
    EXPECT_EQ(heard->role(), QAccessible::Notification);
    quiet.announce("Ready.");
    EXPECT_EQ(heard->text(QAccessible::Name), "Ready.");
    quiet.announce("");
    EXPECT_EQ(heard->text(QAccessible::Name), "Ready.");
}

TEST_F(announcer_test, says_the_results_of_each_stage) {
    open_design();
    press("Calc");
    const std::vector<std::string> profiles = said();
    ASSERT_FALSE(profiles.empty());
    EXPECT_TRUE(profiles.back().starts_with("Approx. Capacity: ")) << profiles.back();
    press("design_ports");
    const std::vector<std::string> ports = said();
    EXPECT_NE(std::ranges::find(ports, "Ports: inlet, outlet, metering groove."), ports.end());
    press("calc_perf");
    const std::vector<std::string> performance = said();
    ASSERT_FALSE(performance.empty());
    EXPECT_NE(performance.back().find(kavetta().labels.max_speed), std::string::npos);
}

TEST_F(announcer_test, says_that_results_are_of_earlier_entries) {
    open_design();
    press("Calc");
    said();
    type("ecc", "2.9");
    const std::vector<std::string> lines = said();
    ASSERT_EQ(lines.size(), 1U) << "once, not at every key";
    EXPECT_EQ(lines[0], label("stale_hint"));
}

}  // namespace kvt
