// The calls of every routine of every package, as reviewed logs.
#include "support/cad/model_designs.hpp"
#include "support/cad/recorded_model.hpp"
#include "support/shortened_golden.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

struct logged_design {
    const char* unit;
    program (*design)();
};

class model_logs : public testing::TestWithParam<logged_design> {};

}  // namespace

TEST_P(model_logs, are_those_that_were_reviewed) {
    program kavetta = GetParam().design();
    for (const model_package& package : model_packages()) {
        for (const model_row& row : model_rows()) {
            automation::recorder_host programs;
            EXPECT_EQ(record_model(kavetta, programs, package.code, row.kind), std::nullopt);
            if (package.routine_of(row.kind) != nullptr) {
                expect_near_golden("models/" + std::string(package.code) + "_" +
                                       std::string(row.word) + "_" + GetParam().unit + ".log",
                                   programs.log());
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(designs, model_logs,
                         testing::Values(logged_design{"mm", double_sided_design},
                                         logged_design{"inch", inch_design_with_shadow_ports}),
                         [](const auto& instance) { return std::string(instance.param.unit); });

}  // namespace kvt
