#include "gtsuite/model_name.hpp"

#include <gtest/gtest.h>
#include <vector>

namespace kvt {
namespace {

std::string name_among(const std::vector<std::string>& files, const std::string& project = "Pump") {
    return gt_model_name(project, files);
}

TEST(gt_model_name, is_the_projects_while_no_model_of_it_stands_there) {
    EXPECT_EQ(name_among({}), "Pump.gtm");
    EXPECT_EQ(name_among({"Other.gtm", "Pump.txt", "Pump2.gtm"}), "Pump.gtm");
    EXPECT_EQ(name_among({}, ""), ".gtm");
}

TEST(gt_model_name, is_numbered_behind_the_highest) {
    EXPECT_EQ(name_among({"Pump.gtm"}), "Pump-1.gtm");
    EXPECT_EQ(name_among({"Pump.gtm", "Pump-1.gtm"}), "Pump-2.gtm");
    EXPECT_EQ(name_among({"Pump-9.gtm", "Pump-10.gtm", "Pump.gtm"}), "Pump-11.gtm");
    EXPECT_EQ(name_among({"Pump-0.gtm"}), "Pump-1.gtm");
}

TEST(gt_model_name, ignores_letter_case) {
    EXPECT_EQ(name_among({"PUMP.GTM", "pump-4.Gtm"}), "Pump-5.gtm");
}

TEST(gt_model_name, counts_no_file_that_only_begins_with_the_name) {
    EXPECT_EQ(name_among({"Pump-2-old.gtm", "Pump-x.gtm", "Pump-.gtm", "Pump--3.gtm", "Pump-+3.gtm",
                          "Pump-99999999999999999999999.gtm"}),
              "Pump.gtm");
    EXPECT_EQ(name_among({"Pump-2.gtm"}, "Pump-2"), "Pump-2-1.gtm");
}

}  // namespace
}  // namespace kvt
