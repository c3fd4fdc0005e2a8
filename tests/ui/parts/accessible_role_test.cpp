// accessible_role: the roles of widgets that are painted by hand.
#include "ui/parts/accessible_role.hpp"

#include <QWidget>

#include <gtest/gtest.h>

namespace kvt {

namespace {

QAccessible::Role role_of(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->role();
}

}  // namespace

TEST(set_accessible_role, gives_a_widget_its_role_and_leaves_name_and_others) {
    QWidget chart;
    QWidget other;
    set_accessible_role(chart, QAccessible::Chart);
    chart.setAccessibleName("Pump Flow");
    EXPECT_EQ(role_of(chart), QAccessible::Chart);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&chart)->text(QAccessible::Name), "Pump Flow");
    EXPECT_NE(role_of(other), QAccessible::Chart);
}

}  // namespace kvt
