// trial_label: says the trial of its result, and nothing without one.
#include "ui/parts/trial_label.hpp"

#include "ui/shell/qt_text.hpp"

#include <QImage>

#include <gtest/gtest.h>

namespace kvt {

namespace {

labels with_capacity(const std::string& capacity) {
    labels texts;
    texts.capacity = capacity;
    return texts;
}

QImage picture_of(QWidget& widget) {
    widget.resize(200, 20);
    return widget.grab().toImage();
}

}  // namespace

TEST(trial_label, stands_while_there_is_a_trial) {
    trial_label label("Form1", "capacity");
    EXPECT_EQ(label.objectName(), "capacity_trial");
    EXPECT_TRUE(label.isHidden());
    const trial_figures trial{with_capacity("7.94")};
    label.show_figure(with_capacity("7.601"), &trial, ',');
    EXPECT_EQ(utf8_text(label.text()), "→ 7,94, +4,5 %");
    EXPECT_FALSE(label.isHidden());
    label.show_figure(with_capacity("7.601"), nullptr, ',');
    EXPECT_TRUE(label.isHidden());
}

TEST(trial_label, has_a_fainter_ink_when_it_is_pale) {
    trial_label label("Form1", "capacity");
    trial_figures trial{with_capacity("7.94")};
    label.show_figure(with_capacity("7.601"), &trial, '.');
    const QImage strong = picture_of(label);
    trial.is_pale = true;
    label.show_figure(with_capacity("7.601"), &trial, '.');
    EXPECT_NE(picture_of(label), strong);
}

TEST(show_trial_figures, finds_the_labels_below_a_widget) {
    QWidget form;
    auto* label = new trial_label("Form1", "area_ratio");
    label->setParent(&form);
    trial_figures trial;
    trial.texts.area_ratio = "30 %";
    labels present;
    present.area_ratio = "20 %";
    show_trial_figures(form, present, &trial, '.');
    EXPECT_EQ(utf8_text(label->text()), "→ 30, +50.0 %");
}

}  // namespace kvt
