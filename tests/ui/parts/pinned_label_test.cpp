// pinned_label: says the result of the pinned design, and nothing without one.
#include "ui/parts/pinned_label.hpp"

#include "ui/shell/qt_text.hpp"

#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace kvt {

namespace {

pinned_figures with_capacity(const std::string& capacity) {
    pinned_figures pinned;
    pinned.texts.capacity = capacity;
    pinned.heading = "Pinned: engine_oil";
    return pinned;
}

}  // namespace

TEST(pinned_label, stands_while_a_design_with_its_result_is_pinned) {
    pinned_label label("Form1", "capacity");
    EXPECT_EQ(label.objectName(), "capacity_pinned");
    EXPECT_TRUE(label.isHidden());
    const pinned_figures pinned = with_capacity("7.94");
    label.show_figure(&pinned, ',');
    EXPECT_EQ(utf8_text(label.text()), "7,94");
    EXPECT_EQ(utf8_text(label.toolTip()), "Pinned: engine_oil");
    EXPECT_FALSE(label.isHidden());
    const pinned_figures without_capacity = with_capacity("");
    label.show_figure(&without_capacity, ',');
    EXPECT_TRUE(label.isHidden());
    label.show_figure(&pinned, ',');
    label.show_figure(nullptr, ',');
    EXPECT_TRUE(label.isHidden());
    EXPECT_TRUE(label.toolTip().isEmpty());
}

TEST(pinned_label, is_painted_fainter_than_a_result) {
    pinned_label label("Form1", "capacity");
    QLabel result("7.94");
    result.setFont(label.font());
    result.setAlignment(label.alignment());
    const pinned_figures pinned = with_capacity("7.94");
    label.show_figure(&pinned, '.');
    label.resize(100, 20);
    result.resize(100, 20);
    EXPECT_NE(label.grab().toImage(), result.grab().toImage());
}

TEST(pinned_heading, is_cut_where_there_is_no_room) {
    pinned_heading heading;
    const pinned_figures pinned = with_capacity("7.94");
    heading.resize(400, 20);
    heading.show_heading(&pinned);
    EXPECT_EQ(utf8_text(heading.text()), "Pinned: engine_oil");
    heading.resize(60, 20);
    heading.show_heading(&pinned);
    EXPECT_TRUE(utf8_text(heading.text()).ends_with("…")) << utf8_text(heading.text());
    EXPECT_EQ(utf8_text(heading.toolTip()), "Pinned: engine_oil");
    heading.show_heading(nullptr);
    EXPECT_TRUE(heading.isHidden());
}

TEST(show_pinned_figures, finds_the_labels_below_a_widget) {
    QWidget form;
    auto* layout = new QVBoxLayout(&form);
    auto* label = new pinned_label("Form1", "capacity");
    auto* heading = new pinned_heading;
    layout->addWidget(heading);
    layout->addWidget(label);
    const pinned_figures pinned = with_capacity("7.94");
    show_pinned_figures(form, &pinned, '.');
    EXPECT_EQ(utf8_text(label->text()), "7.94");
    EXPECT_FALSE(heading->isHidden());
}

}  // namespace kvt
