// The wheel over a list never changes a choice.
#include "ui/parts/quiet_wheel.hpp"

#include "ui/desktop_fixture.hpp"

#include <QComboBox>
#include <QWheelEvent>

namespace kvt {
namespace {

class quiet_wheel_test : public desktop_test {
  protected:
    static void turn_wheel(QWidget* over) {
        const QPointF place(over->rect().center());
        QWheelEvent down(place, over->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(over, &down);
    }
};

TEST_F(quiet_wheel_test, changes_no_unit_with_or_without_the_focus) {
    start();
    auto* list = find<QComboBox>("unittype");
    kavetta().entries.volumereqd = "10";
    turn_wheel(list);
    list->setFocus();
    turn_wheel(list);
    settle();
    EXPECT_EQ(list->currentIndex(), 0);
    EXPECT_EQ(kavetta().app_state.capacity_unit, 1);
    EXPECT_EQ(kavetta().entries.volumereqd, "10");
}

TEST_F(quiet_wheel_test, leaves_the_keys_to_the_list) {
    start();
    auto* list = find<QComboBox>("unittype");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    settle();
    EXPECT_EQ(kavetta().app_state.capacity_unit, 2);
}

}  // namespace
}  // namespace kvt
