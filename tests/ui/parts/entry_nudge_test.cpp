// Counting the entries up and down with keys and with the mouse.
#include "ui/parts/entry_nudge.hpp"

#include "app/program.hpp"
#include "ui/desktop_fixture.hpp"

namespace kvt {

namespace {

class entry_nudge_test : public desktop_test {
  protected:
    void key(const char* name, Qt::Key pressed, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        QTest::keyClick(box(name), pressed, keys);
    }
    QLabel* label_of(const char* name) {
        for (auto* candidate : window().findChildren<QLabel*>()) {
            if (candidate->buddy() == box(name)) {
                return candidate;
            }
        }
        return nullptr;
    }
    /// Presses a label in its middle and moves the mouse sideways.
    void drag(QLabel* label, int pixels, Qt::KeyboardModifiers keys = Qt::NoModifier) {
        const QPoint middle = label->rect().center();
        QTest::mousePress(label, Qt::LeftButton, keys, middle);
        const QPoint place = middle + QPoint(pixels, 0);
        QMouseEvent move(QEvent::MouseMove, place, label->mapToGlobal(QPointF(place)), Qt::NoButton,
                         Qt::LeftButton, keys);
        QCoreApplication::sendEvent(label, &move);
    }
};

}  // namespace

TEST_F(entry_nudge_test, up_and_down_count_the_last_digit) {
    start(design_file("n07_engine_oil_groove"));
    type("ecc", "2.80");
    key("ecc", Qt::Key_Up);
    EXPECT_EQ(kavetta().entries.ecc, "2.81");
    key("ecc", Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(shown("ecc"), "2.91");
    key("ecc", Qt::Key_Down);
    key("ecc", Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(kavetta().entries.ecc, "2.80");
}

TEST_F(entry_nudge_test, a_decimal_comma_stays) {
    start();
    type("clearn", "0,09");
    key("clearn", Qt::Key_Up);
    EXPECT_EQ(kavetta().entries.clearn, "0,10");
}

TEST_F(entry_nudge_test, only_an_angle_goes_below_zero) {
    start();
    type("fillet", "0.1");
    key("fillet", Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(kavetta().entries.fillet, "0.0");
    box("inlet_start_inner")->setFocus();
    type("inlet_start_inner", "0");
    key("inlet_start_inner", Qt::Key_Down);
    EXPECT_EQ(kavetta().entries.inlet_start_inner, "-1");
}

TEST_F(entry_nudge_test, esc_gives_back_what_stood_there) {
    start();
    type("ecc", "2.8");
    for (int count = 0; count < 3; ++count) {
        key("ecc", Qt::Key_Up);
    }
    EXPECT_EQ(kavetta().entries.ecc, "3.1");
    key("ecc", Qt::Key_Escape);
    EXPECT_EQ(kavetta().entries.ecc, "2.8");
    key("ecc", Qt::Key_Escape);
    EXPECT_EQ(kavetta().entries.ecc, "2.8");
}

TEST_F(entry_nudge_test, typing_ends_the_steps_that_esc_takes_back) {
    start();
    type("ecc", "2.8");
    key("ecc", Qt::Key_Up);
    type("ecc", "3.5");
    key("ecc", Qt::Key_Escape);
    EXPECT_EQ(kavetta().entries.ecc, "3.5");
}

TEST_F(entry_nudge_test, a_series_is_one_step_of_the_history) {
    start(design_file("n07_engine_oil_groove"));
    const std::string before = kavetta().entries.ecc;
    QTest::mouseClick(box("ecc"), Qt::LeftButton);
    for (int count = 0; count < 5; ++count) {
        key("ecc", Qt::Key_Up);
    }
    EXPECT_EQ(desk().runner().history().size(), 2U);
    QTest::keyClick(box("ecc"), Qt::Key_Z, Qt::ControlModifier);
    settle();
    EXPECT_EQ(kavetta().entries.ecc, before);
}

TEST_F(entry_nudge_test, dragging_the_label_counts_live) {
    start();
    type("ecc", "2.80");
    QLabel* label = label_of("ecc");
    ASSERT_NE(label, nullptr);
    drag(label, 20);
    EXPECT_EQ(kavetta().entries.ecc, "2.85");
    drag(label, -40, Qt::ShiftModifier);
    QTest::mouseRelease(label, Qt::LeftButton);
    EXPECT_EQ(kavetta().entries.ecc, "1.85");
}

TEST_F(entry_nudge_test, esc_gives_back_what_stood_there_before_a_drag) {
    start();
    type("ecc", "2.80");
    type("radouter", "7.5");
    QLabel* label = label_of("ecc");
    drag(label, 40);
    EXPECT_EQ(kavetta().entries.ecc, "2.90");
    EXPECT_TRUE(box("ecc")->hasFocus());
    key("ecc", Qt::Key_Escape);
    EXPECT_EQ(kavetta().entries.ecc, "2.80");
    QMouseEvent move(QEvent::MouseMove, QPointF(90, 2), label->mapToGlobal(QPointF(90, 2)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(label, &move);
    EXPECT_EQ(kavetta().entries.ecc, "2.80");
    QTest::mouseRelease(label, Qt::LeftButton);
}

TEST_F(entry_nudge_test, leaves_what_is_no_number_alone) {
    start();
    type("ecc", "");
    key("ecc", Qt::Key_Up);
    EXPECT_EQ(kavetta().entries.ecc, "");
    type("ecc", "1e3");
    key("ecc", Qt::Key_Up);
    EXPECT_EQ(kavetta().entries.ecc, "1e3");
}

TEST_F(entry_nudge_test, the_label_of_a_closed_box_does_nothing) {
    start();
    ASSERT_FALSE(box("groove_length")->isEnabled());
    const std::string before = kavetta().entries.groove_length;
    drag(label_of("groove_length"), 40);
    EXPECT_EQ(kavetta().entries.groove_length, before);
}

}  // namespace kvt
