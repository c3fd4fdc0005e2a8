// Tests of what the Study window asks, as it stands in the boxes.
#include "ui/parts/study_plan_side.hpp"

#include "support/open_design.hpp"

#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace kvt {

namespace {

class study_plan_side_test : public testing::Test {
  protected:
    study_plan_side_test() { side.refresh(); }
    template <typename control>
    control* at(const char* name) {
        return side.findChild<control*>(name);
    }
    QString text_of_quantity(const QString& name) {
        auto* list = at<QListWidget>("quantities");
        for (int row = 0; row < list->count(); ++row) {
            if (list->item(row)->data(Qt::UserRole) == name) {
                return list->item(row)->text();
            }
        }
        return {};
    }
    static study_document whole_document() {
        study_document document;
        document.varied = {"ecc=2:3:0.05", "numlobes=5,6"};
        document.sample = "sobol:64";
        document.seed = 7;
        document.recorded = {"capacity", "ripple"};
        document.conditions = {"capacity>5", "ecc<3"};
        document.aims = {"ripple:min"};
        document.targets = {"capacity=7:0.1"};
        document.begins_with_assist = true;
        document.step = 0.05;
        document.budget = 64;
        return document;
    }

    program kavetta = opened_design("n07_engine_oil_groove");
    study_plan_side side{kavetta};
};

}  // namespace

TEST_F(study_plan_side_test, asks_for_what_it_was_shown) {
    side.show_document(whole_document());
    EXPECT_EQ(side.document(), whole_document());
    study_document other = whole_document();
    for (const char* sample : {"grid", "latin:64"}) {
        other.sample = sample;
        side.show_document(other);
        EXPECT_EQ(side.document(), other) << sample;
    }
    other = whole_document();
    other.sample = study_document().sample;
    other.searches = true;
    other.budget = 300;
    side.show_document(other);
    EXPECT_EQ(side.document(), other);
}

TEST_F(study_plan_side_test, begins_with_a_sample_of_usual_quantities) {
    const study_document asked = side.document();
    EXPECT_TRUE(asked.varied.empty());
    EXPECT_EQ(asked.sample, "latin:200");
    EXPECT_EQ(asked.recorded, (std::vector<std::string>{"capacity", "ripple", "outer_diameter",
                                                        "overall_eff_max", "hertz_max"}));
}

TEST_F(study_plan_side_test, keeps_its_choices_in_another_language) {
    side.show_document(whole_document());
    auto* entries = at<QComboBox>("study_entry");
    entries->setCurrentIndex(entries->findData("thick"));
    kavetta.app_state.language = GERMAN;
    side.refresh();
    EXPECT_EQ(side.document(), whole_document());
    EXPECT_EQ(entries->currentData(), "thick");
    EXPECT_EQ(at<QTableWidget>("variables")->horizontalHeaderItem(0)->text(), "Eingabe");
    EXPECT_EQ(at<QComboBox>("study_kind")->currentText(), "Sobol-Folge");
}

TEST_F(study_plan_side_test, opens_the_list_of_entries_as_wide_as_their_names) {
    const QAbstractItemView& list = *at<QComboBox>("study_entry")->view();
    EXPECT_GT(list.sizeHintForColumn(0), 0);
    EXPECT_GE(list.minimumWidth(), list.sizeHintForColumn(0));
}

TEST_F(study_plan_side_test, greys_what_does_not_belong_to_the_kind_with_its_label) {
    const auto usable = [this](int kind) {
        at<QComboBox>("study_kind")->setCurrentIndex(kind);
        std::vector<bool> all;
        for (const char* name : {"study_count", "count_label", "study_targets", "targets_label"}) {
            all.push_back(at<QWidget>(name)->isEnabled());
        }
        return all;
    };
    EXPECT_EQ(usable(0), (std::vector<bool>{false, false, false, false}));
    EXPECT_EQ(usable(1), (std::vector<bool>{true, true, false, false}));
    EXPECT_EQ(usable(3), (std::vector<bool>{true, true, true, true}));
}

TEST_F(study_plan_side_test, shows_the_units_in_force) {
    EXPECT_EQ(text_of_quantity("thick"), "thick [mm]");
    kavetta.app_state.drawing_units = INCHES;
    side.refresh();
    EXPECT_EQ(text_of_quantity("thick"), "thick [in]");
}

}  // namespace kvt
