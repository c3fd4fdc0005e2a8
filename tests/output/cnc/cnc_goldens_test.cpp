// The CNC files of whole designs, byte by byte: four decimals, cutters that fit the corners, every
// file.
#include "base/text_file.hpp"
#include "support/cnc_design.hpp"
#include "support/golden_files.hpp"

#include <gtest/gtest.h>
#include <ostream>

namespace kvt {

namespace {

struct golden_design {
    const char* name;
    double tool_diameter, groove_tool_diameter;
    const char* what;
};

constexpr golden_design DESIGNS[] = {
    {"n07_engine_oil_groove", 2.0, 1.0, "mm, odd, fillets, groove, shadow ports"},
    {"n04_fuel", 1.0, 0.0, "mm, even"},
    {"n03_transfer_sharp", 1.0, 0.0, "mm, no fillets, sharp ports"},
    {"n07_inch_hydraulic", 0.08, 0.0, "inches"},
};

void PrintTo(const golden_design& design, std::ostream* out) {
    *out << design.what;
}

program calculated(const golden_design& design) {
    program kavetta = design_with_ports(design.name);
    kavetta.cnc_choices = {4, design.tool_diameter, design.groove_tool_diameter};
    return kavetta;
}

/// The lines that begin with "//", or the others.
std::string lines_of(const std::string& bytes, bool comments) {
    std::string lines;
    for (const std::string& line : split_lines(bytes)) {
        if (line.starts_with("//") == comments) {
            lines += line + "\r\n";
        }
    }
    return lines;
}

class cnc_goldens : public testing::TestWithParam<golden_design> {};

}  // namespace

TEST_P(cnc_goldens, are_written_byte_by_byte) {
    const program kavetta = calculated(GetParam());
    for (const written_file& file : files_of(file_group::cnc)) {
        expect_golden(std::string(GetParam().name) + "/" + std::string(file.name) + ".cnc",
                      cnc_bytes(kavetta, file.name));
    }
}

TEST_P(cnc_goldens, have_the_same_numbers_below_german_heads) {
    program kavetta = calculated(GetParam());
    std::string heads;
    for (const written_file& file : files_of(file_group::cnc)) {
        kavetta.app_state.language = ENGLISH;
        const std::string english = cnc_bytes(kavetta, file.name);
        kavetta.app_state.language = GERMAN;
        const std::string german = cnc_bytes(kavetta, file.name);
        EXPECT_EQ(lines_of(german, false), lines_of(english, false)) << file.name;
        heads += std::string(file.name) + ":\r\n" + lines_of(german, true);
    }
    expect_golden(std::string(GetParam().name) + "/german_heads.txt", heads);
}

INSTANTIATE_TEST_SUITE_P(designs, cnc_goldens, testing::ValuesIn(DESIGNS),
                         [](const auto& design) { return std::string(design.param.name); });

}  // namespace kvt
