// The STEP and DXF files of whole designs against golden files, shortened.
#include "support/cnc_design.hpp"
#include "support/shortened_golden.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class drawing_goldens : public testing::TestWithParam<const char*> {
  protected:
    program kavetta = design_with_ports(GetParam());
    std::string folder = std::string(GetParam()) + "/";
};

TEST_P(drawing_goldens, are_written_as_they_stand) {
    kavetta.date = "11/03/21";
    for (const file_group group : {file_group::step, file_group::dxf}) {
        for (const written_file& file : files_of(group)) {
            const std::string name = file_name(file);
            expect_shortened_golden(folder + name,
                                    file_bytes(kavetta, group, file.name, "C:\\pumps\\" + name));
        }
    }
}

/// Odd N with fillets, groove and shadow ports; even N; no fillets and sharp ports; inches.
INSTANTIATE_TEST_SUITE_P(designs, drawing_goldens,
                         testing::Values("n07_engine_oil_groove", "n04_fuel", "n03_transfer_sharp",
                                         "n07_inch_hydraulic"),
                         [](const auto& design) { return std::string(design.param); });

TEST(shortened, keeps_the_ends_of_runs_and_of_long_lines) {
    std::string bytes = "head\r\n";
    for (int i = 0; i < 9; ++i) {
        bytes += "X" + std::to_string(i) + ".5 #1\r\n";
    }
    // Weights 1 to 9; behind "#" stands no number: 0.5 + 2 * 1.5 + 3 * 2.5 + ... + 9 * 8.5 = 262.5.
    EXPECT_EQ(
        shortened(bytes + "tail\r\n"),
        "head\r\nX0.5 #1\r\nX1.5 #1\r\n... 5 lines like these ...\r\nX7.5 #1\r\nX8.5 #1\r\ntail\r\n"
        "... 11 lines, 9 numbers, weighted sum 262.5000\r\n");
    EXPECT_EQ(shortened(std::string(500, 'a') + "\r\n"),
              std::string(150, 'a') + " ... " + std::string(150, 'a') +
                  "\r\n... 1 lines, 0 numbers, weighted sum 0.0000\r\n");
}

}  // namespace
}  // namespace kvt
