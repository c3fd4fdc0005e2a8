// Tests of the tables of the design sheet and of the texts beside its dimension lines.
#include "views/sheet/sheet_rows.hpp"

#include "support/performed_design.hpp"
#include "views/port_explanation.hpp"
#include "views/rotor_explanation.hpp"
#include "views/sheet/sheet_source.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

using rows = std::vector<page_row>;

const page_row* find_row(const rows& table, std::string_view name) {
    const auto found =
        std::ranges::find_if(table, [&](const page_row& row) { return row.front() == name; });
    return found == table.end() ? nullptr : &*found;
}

class sheet_rows : public testing::Test {
  protected:
    static page_row row(const rows& table, std::string_view name) {
        const page_row* found = find_row(table, name);
        return found == nullptr ? page_row{"no row", std::string(name)} : *found;
    }

    program kavetta = performed_design("n07_engine_oil_groove");
};

TEST_F(sheet_rows, entries_have_their_unit) {
    const rows table = rotor_entry_rows(source_of_sheet(kavetta));
    EXPECT_EQ(row(table, "Eccentricity"), (page_row{"Eccentricity", kavetta.entries.ecc + " mm"}));
    EXPECT_EQ(row(table, "No. Outer Lobes").at(1), "7");
    EXPECT_EQ(row(table, "Outer Rotor Root Radius").at(1), kavetta.entries.outer_root + " mm");
    EXPECT_EQ(table.size(), 14U);
}

TEST_F(sheet_rows, empty_entries_have_no_unit) {
    kavetta.entries.port_radii = "";
    EXPECT_EQ(row(port_rows(source_of_sheet(kavetta)), "Port Fillet Radii"),
              (page_row{"Port Fillet Radii", "", ""}));
}

TEST_F(sheet_rows, results_are_those_of_the_forms) {
    const rows table = rotor_result_rows(source_of_sheet(kavetta));
    EXPECT_EQ(row(table, "Approx. Capacity").at(1),
              kavetta.labels.capacity + " " + kavetta.labels.units_label);
    EXPECT_EQ(row(table, "Area Ratio").at(1), kavetta.labels.area_ratio);
    EXPECT_EQ(row(table, "Max Chamber Volume").at(1), kavetta.labels.max_chamb_vol);
    EXPECT_EQ(row(table, "Trochoid Ratio").size(), 2U);
}

TEST_F(sheet_rows, ports_stand_side_by_side) {
    const rows table = port_rows(source_of_sheet(kavetta));
    EXPECT_EQ(table.front(), (page_row{"", "Inlet Port", "Outlet Port"}));
    EXPECT_EQ(row(table, "Start Angle Inner Radius"),
              (page_row{"Start Angle Inner Radius", kavetta.entries.inlet_start_inner + "°",
                        kavetta.entries.outlet_start_inner + "°"}));
    EXPECT_EQ(row(table, "End Angle Outer Radius").at(2), kavetta.entries.outlet_end_outer + "°");
    EXPECT_EQ(row(table, "Outer Radius").at(1), kavetta.entries.inlet_outer_radius + " mm");
    EXPECT_EQ(row(table, "Length (°)").at(2), kavetta.entries.groove_length);
}

TEST_F(sheet_rows, a_port_says_its_type) {
    kavetta.entries.inlet_double_sided = "1";
    kavetta.entries.outlet_double_sided = "0";
    kavetta.entries.shadow_ports = "1";
    EXPECT_EQ(row(port_rows(source_of_sheet(kavetta)), "Porting Type"),
              (page_row{"Porting Type", "double sided", "with shadow port"}));
    kavetta.entries.shadow_ports = "0";
    EXPECT_EQ(row(port_rows(source_of_sheet(kavetta)), "Porting Type").at(2), "single sided");
}

TEST_F(sheet_rows, without_a_groove_there_are_no_rows_of_it) {
    sheet_source source = source_of_sheet(kavetta);
    source.outlines.groove = false;
    EXPECT_EQ(find_row(port_rows(source), "Metering Groove"), nullptr);
    EXPECT_NE(find_row(port_rows(source_of_sheet(kavetta)), "Metering Groove"), nullptr);
}

TEST_F(sheet_rows, two_entries_of_a_line_stand_together) {
    const rows table = performance_entry_rows(source_of_sheet(kavetta));
    EXPECT_EQ(row(table, "Speed Range (RPM)").at(1),
              kavetta.entries.speed_lo + " – " + kavetta.entries.speed_hi);
    EXPECT_EQ(row(table, "Face Area").at(1), "100 %");
    EXPECT_EQ(row(table, "Poissons Ratio").at(1),
              kavetta.entries.poissons_inner + " / " + kavetta.entries.poissons_outer);
}

TEST_F(sheet_rows, performance_results_have_value_and_unit) {
    kavetta.perf_results.flow_max = 1.0 / 60000.0;
    kavetta.perf_results.hertz_max = 689.44;
    kavetta.perf_results.vol_eff_min = 0.91234;
    kavetta.perf_results.max_speed_rpm = 7403.9;
    kavetta.perf_results.ripple_percent = 12.5;
    const rows table = performance_result_rows(source_of_sheet(kavetta));
    EXPECT_EQ(row(table, "Largest flow").at(1), "1 Lit/min");
    EXPECT_EQ(row(table, "Largest contact stress").at(1), "689.4 MPa");
    EXPECT_EQ(row(table, "Smallest volumetric efficiency").at(1), "91.2 %");
    EXPECT_EQ(row(table, "Highest speed without cavitation").at(1), "7403 RPM");
    EXPECT_EQ(row(table, "Pressure ripple").at(1), "12.5 %");
    EXPECT_EQ(table.back().size(), 1U) << "what limits the speed has the whole line";
}

TEST_F(sheet_rows, inches_go_with_gallons_horsepower_and_a_true_ksi) {
    kavetta.app_state.drawing_units = INCHES;
    kavetta.perf_results.flow_max = 1.0 / 60000.0;
    kavetta.perf_results.power_max = 746.0;
    kavetta.perf_results.hertz_max = 1000.0;
    const rows table = performance_result_rows(source_of_sheet(kavetta));
    EXPECT_EQ(row(table, "Largest flow").at(1), "0.264 USGall/min");
    EXPECT_EQ(row(table, "Largest drive power").at(1), "1 hp");
    EXPECT_EQ(row(table, "Largest contact stress").at(1), "145 ksi");
}

TEST_F(sheet_rows, speak_german) {
    kavetta.app_state.language = GERMAN;
    const sheet_source source = source_of_sheet(kavetta);
    EXPECT_NE(find_row(rotor_entry_rows(source), "Exzentrizität"), nullptr);
    EXPECT_NE(find_row(performance_result_rows(source), "Größter Förderstrom"), nullptr);
    EXPECT_EQ(port_rows(source).front().at(1), "Einlasshafen");
}

TEST_F(sheet_rows, every_dimension_of_the_drawings_has_its_value) {
    const sheet_source source = source_of_sheet(kavetta);
    const auto value = [&](const explanation& drawing, std::string_view label) {
        const auto found =
            std::ranges::find(drawing.parameters, label, &explained_parameter::label);
        return dimension_of(*found, source);
    };
    const explanation pair = explain_pair(source.design, source.rotors);
    EXPECT_EQ(value(pair, "Label9").value, "Ø " + kavetta.entries.maxdiameter + " mm");
    EXPECT_EQ(value(pair, "Label5").value, "R " + kavetta.entries.radouter + " mm");
    EXPECT_EQ(value(pair, "Label3").value, kavetta.entries.ecc + " mm");
    EXPECT_EQ(value(pair, "Label3").name, "Eccentricity");
    const explanation face =
        explain_face(source.design, source.rotors, source.ports, source.outlines);
    EXPECT_EQ(value(face, "Label9").value, kavetta.entries.outlet_start_inner + "°");
    EXPECT_EQ(value(face, "Label15").value, "R " + kavetta.entries.Outlet_inner_radius + " mm");
    EXPECT_EQ(value(face, "Frame2").value, "") << "a name alone";
    for (const explanation& drawing :
         {pair, explain_side_view(source.design, source.rotors), face}) {
        for (const explained_parameter& parameter : drawing.parameters) {
            EXPECT_TRUE(parameter.label.starts_with("Frame") ||
                        !dimension_of(parameter, source).value.empty())
                << parameter.label;
        }
    }
}

}  // namespace
}  // namespace kvt
