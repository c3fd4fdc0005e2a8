// The tables behind the performance data files: which number stands where, headers and titles in
// both languages and units.
#include "output/data/data_tables.hpp"

#include "support/data_records.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

using numbers = std::vector<double>;
using texts = std::vector<std::string>;

numbers row_of(const data_block& block, std::size_t index) {
    const std::span<const double> row = block.row(index);
    return {row.begin(), row.end()};
}

TEST(data_tables, run_over_the_speeds_and_for_each_over_the_pressures) {
    data_records records;
    for (std::size_t i = 0; i < GRID_SIZE; ++i) {
        for (std::size_t j = 0; j < GRID_SIZE; ++j) {
            records.results.drive_torque[i][j] = static_cast<double>(10 * i + j);
            records.results.drive_power[i][j] = static_cast<double>(100 * i + j);
        }
    }
    const data_table table = make_data_table(data_file::torque, records.source());
    ASSERT_EQ(table.blocks.size(), 1U);
    const data_block& block = table.blocks[0];
    ASSERT_EQ(block.row_count(), 36U);
    EXPECT_EQ(row_of(block, 0), (numbers{100, 101300, 0, 0}));
    EXPECT_EQ(row_of(block, 1), (numbers{100, 202600, 1, 1}));
    EXPECT_EQ(row_of(block, 6), (numbers{200, 101300, 10, 100}));
    EXPECT_EQ(row_of(block, 35), (numbers{600, 607800, 55, 505}));
}

TEST(data_tables, say_flow_efficiencies_and_pressure_in_the_units_of_the_header) {
    data_records records;
    records.results.flow_m3s[0][0] = 0.5;
    records.results.vol_eff[0][0] = 0.25;
    records.results.mech_eff[0][0] = 0.5;
    records.results.overall_eff[0][0] = 0.125;
    EXPECT_EQ(row_of(make_data_table(data_file::flow, records.source()).blocks[0], 0),
              (numbers{100, 101300, 30000}));
    EXPECT_EQ(row_of(make_data_table(data_file::efficiency, records.source()).blocks[0], 0),
              (numbers{100, 101300, 25, 50, 12.5}));
    records.unit = INCHES;
    EXPECT_EQ(row_of(make_data_table(data_file::flow, records.source()).blocks[0], 0),
              (numbers{100, 14.5, 0.5 * 60000.0 * 0.26417}));
    EXPECT_EQ(row_of(make_data_table(data_file::efficiency, records.source()).blocks[0], 0),
              (numbers{100, 14.5, 25, 50, 12.5}));
}

TEST(data_tables, take_every_tenth_step_of_a_turn) {
    data_records records;
    records.results.chamber_rate[0] = 1e-4;
    records.results.chamber_rate[5] = 7.0;
    records.results.chamber_rate[3590] = 2e-4;
    records.results.ripple_pressure[3590] = 202600.0;
    records.results.ripple_percent = 12.5;
    const data_table table = make_data_table(data_file::volumetric, records.source());
    EXPECT_EQ(table.ripple_caption, "Pressure Ripple: ");
    EXPECT_EQ(table.ripple_percent, 12.5);
    ASSERT_EQ(table.blocks.size(), 1U);
    ASSERT_EQ(table.blocks[0].row_count(), 360U);
    EXPECT_EQ(row_of(table.blocks[0], 0), (numbers{0, 1, 0}));
    EXPECT_EQ(row_of(table.blocks[0], 1), (numbers{1, 0, 0}));
    EXPECT_EQ(row_of(table.blocks[0], 359), (numbers{359, 2, 2}));
}

TEST(data_tables, of_the_contact_have_two_blocks) {
    data_records records;
    records.results.sliding_velocity[5][360] = 4000.0;
    records.results.contact_force[5][4][179] = 98.1;
    records.results.hertz_stress[5][4][179] = 1000.0;
    const data_table table = make_data_table(data_file::contact, records.source());
    ASSERT_EQ(table.blocks.size(), 2U);
    const data_block& sliding = table.blocks[0];
    const data_block& stress = table.blocks[1];
    EXPECT_EQ(sliding.heading, "SLIDING VELOCITIES");
    EXPECT_EQ(stress.heading, "CONTACT FORCE & HERTZIAN STRESS");
    ASSERT_EQ(sliding.row_count(), 6U * 361U);
    ASSERT_EQ(stress.row_count(), 36U * 180U);
    EXPECT_EQ(row_of(sliding, 0), (numbers{100, 0, 0}));
    EXPECT_EQ(row_of(sliding, 6 * 361 - 1), (numbers{600, 360, 4}));
    EXPECT_EQ(row_of(stress, 0), (numbers{100, 101300, 0, 0, 0}));
    EXPECT_EQ(row_of(stress, 5 * 1080 + 4 * 180 + 179), (numbers{600, 506500, 179, 98.1, 1000}));
    EXPECT_EQ(table.remarks.size(), 3U);
    records.unit = INCHES;
    const data_table inches = make_data_table(data_file::contact, records.source());
    EXPECT_EQ(row_of(inches.blocks[0], 6 * 361 - 1), (numbers{600, 360, 4000.0 / 304.8}));
    EXPECT_EQ(row_of(inches.blocks[1], 5 * 1080 + 4 * 180 + 179)[4], 145.04);
}

TEST(data_tables, have_their_headers_in_both_languages_and_units) {
    data_records records;
    const auto headers = [&](data_file file, std::size_t block) {
        return make_data_table(file, records.source()).blocks.at(block).headers;
    };
    EXPECT_EQ(headers(data_file::torque, 0),
              (texts{"Pump Speed (rpm)", "Pump Delivery Pressure (Pa)", "Torque to Turn (Nm)",
                     " Power to Turn (W)"}));
    EXPECT_EQ(headers(data_file::contact, 1)[1], " Pump Delivery Pressure (Pa)");
    records.unit = INCHES;
    EXPECT_EQ(headers(data_file::flow, 0),
              (texts{"Pump Speed (rpm)", "Pump Delivery Pressure (psi)", "Flow (USGall/min)"}));
    EXPECT_EQ(headers(data_file::contact, 0),
              (texts{"Pump Speed (rpm)", "Pump Inner Rotor Rotation Angle (degrees)",
                     "Sliding Velocity (ft/s)"}));
    records.language = GERMAN;
    EXPECT_EQ(headers(data_file::volumetric, 0),
              (texts{"Pumpen Sie Inneren Rotor Drehungswinkel (Grad)",
                     "Volumetric Änderungsrate (USGall/Grad)", "Druck Kleine Welle (psi)"}));
    EXPECT_EQ(headers(data_file::contact, 1),
              (texts{"Pumpengeschwindigkeit (rpm)", " Pumpenlieferungsdruck (psi)",
                     "Pumpen Sie Inneren Rotor Drehungswinkel (Grad)", "Kontaktkraft (lbsf)",
                     "Hertz Spannung (Ksi)"}));
}

/// Kept: flow and efficiency share a German title; torque and volumetric end in English.
TEST(data_tables, have_titles_and_last_lines_of_their_own) {
    struct expected_texts {
        data_file file;
        std::string english, german, german_end;
    };
    const expected_texts rows[] = {
        {data_file::flow, "Flow vs Pressure Data For Project: 'pump'",
         "Wirkungsgraddaten Für Projekt: 'pump'", "Ende der Datei"},
        {data_file::torque, "Torque and Power Data For Project: 'pump'",
         "Drehmoment- und Kraftdaten Für Projekt: 'pump'", "End of File"},
        {data_file::contact, "Lobe Contact & Stress Data For Project: 'pump'",
         "Läppchenkontakt- & Spannungsdaten Für Projekt: 'pump'", "Ende der Datei"},
        {data_file::efficiency, "Efficiency Data For Project: 'pump'",
         "Wirkungsgraddaten Für Projekt: 'pump'", "Ende der Datei"},
        {data_file::volumetric, "Volumetric Data For Project: 'pump'",
         "Volumetrische Daten Für Projekt: 'pump'", "End of File"}};
    data_records records;
    for (const expected_texts& row : rows) {
        records.language = ENGLISH;
        EXPECT_EQ(make_data_table(row.file, records.source()).title, row.english);
        EXPECT_EQ(make_data_table(row.file, records.source()).end, "End of File");
        records.language = GERMAN;
        EXPECT_EQ(make_data_table(row.file, records.source()).title, row.german);
        EXPECT_EQ(make_data_table(row.file, records.source()).end, row.german_end);
    }
}

TEST(data_tables, are_zeros_before_any_run) {
    data_records records;
    records.results = {};
    for (const data_file file : {data_file::flow, data_file::torque, data_file::efficiency}) {
        for (const data_block& block : make_data_table(file, records.source()).blocks) {
            EXPECT_EQ(block.values, numbers(block.row_count() * block.headers.size(), 0.0));
        }
    }
}

}  // namespace
}  // namespace kvt
