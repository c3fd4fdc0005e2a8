// The contact stress of the model against that of a textbook line contact: the table of the page
// how-sure is made of the exact figures.
#include "base/fixed_number.hpp"
#include "base/whole_file.hpp"
#include "exact/exact_figures.hpp"
#include "support/performance_case.hpp"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace kvt {
namespace {

/// The textbook's largest pressure at the largest torque of the model, friction included.
double at_drive_torque(const performance_case& sample) {
    const perf_results& results = sample.perf_results;
    const contact_materials materials{
        sample.perf_inputs.young_inner_mpa, sample.perf_inputs.young_outer_mpa,
        sample.perf_inputs.poisson_inner, sample.perf_inputs.poisson_outer};
    return pushed_side(nominal_pair(sample.design_params))
        .largest_pressure(contact_modulus(materials), results.drive_torque.back().back() * 1000.0)
        .pressure;
}

class contact_of_samples : public testing::TestWithParam<const char*> {};

TEST_P(contact_of_samples, has_the_share_of_the_textbook_that_the_page_says) {
    performance_case sample = load_performance_case(GetParam());
    sample.run();
    const exact_performance exact =
        exact_performance_of(sample.design_params, sample.perf_inputs, sample.perf_results);
    const double textbook = exact.contact.back().pressure;
    const std::string line =
        "| " + std::string(GetParam()) + " | " + fixed_number(textbook, 0) + " | " +
        fixed_number(sample.perf_results.hertz_max / textbook, 3) + " | " +
        fixed_number(sample.perf_results.hertz_max / at_drive_torque(sample), 3) + " |";
    const std::string page =
        read_file(std::filesystem::path(KVT_TEST_DATA) / "../../docs/formulas/how-sure.md");
    EXPECT_NE(page.find("\n" + line + "\n"), std::string::npos) << line;
}

INSTANTIATE_TEST_SUITE_P(samples, contact_of_samples, testing::ValuesIn(SAMPLES),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace
}  // namespace kvt
