// The performance data files of whole designs against golden files, shortened.
#include "support/performed_design.hpp"
#include "support/shortened_golden.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

void expect_goldens(const program& kavetta, const std::string& folder) {
    for (const written_file& file : files_of(file_group::data)) {
        expect_shortened_golden(folder + file_name(file),
                                file_bytes(kavetta, file_group::data, file.name),
                                kavetta.decimal_mark);
    }
}

TEST(data_goldens, are_written_in_english_and_metric_units) {
    expect_goldens(performed_design("n07_engine_oil_groove"), "n07_engine_oil_groove/");
}

TEST(data_goldens, are_written_in_german_with_inches_and_commas) {
    program kavetta = performed_design("n07_inch_hydraulic");
    kavetta.app_state.language = GERMAN;
    kavetta.decimal_mark = ',';
    expect_goldens(kavetta, "n07_inch_hydraulic/german_");
}

}  // namespace
}  // namespace kvt
