// Tests of the exact STEP files as texts: head, numbering, edges, sizes.
#include "output/step/exact_step_files.hpp"

#include "exact/pump_bodies.hpp"
#include "support/cnc_design.hpp"
#include "support/random_design.hpp"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <map>
#include <regex>

namespace kvt {
namespace {

std::string exact_bytes(const program& kavetta, std::string_view name) {
    return file_bytes(kavetta, file_group::step_exact, name, "/home/someone/R\xC3\xB6hre.stp");
}

/// Every entity has the next number and refers to earlier ones only.
void expect_reading_order(const std::string& bytes) {
    int last = 0;
    for (const std::string& line : split_lines(bytes)) {
        if (line.front() != '#') {
            continue;
        }
        const std::size_t equals = line.find('=');
        ASSERT_EQ(std::stoi(line.substr(1, equals)), ++last);
        for (std::size_t at = line.find('#', equals); at != std::string::npos;
             at = line.find('#', at + 1)) {
            ASSERT_LT(std::stoi(line.substr(at + 1)), last) << line;
        }
    }
    EXPECT_GT(last, 50);
}

/// Every edge is run through once forward and once backward.
void expect_edges_of_two_faces(const std::string& bytes) {
    const std::regex oriented(R"(ORIENTED_EDGE\('',\*,\*,#(\d+),\.([TF])\.\))");
    std::map<std::string, std::string> runs;
    for (std::sregex_iterator at(bytes.begin(), bytes.end(), oriented), end; at != end; ++at) {
        runs[(*at)[1]] += (*at)[2];
    }
    EXPECT_FALSE(runs.empty());
    for (const auto& [edge, directions] : runs) {
        EXPECT_TRUE(directions == "TF" || directions == "FT") << edge << directions;
    }
}

TEST(exact_step_files, have_a_head_without_a_path_in_ascii) {
    program kavetta = design_with_ports("n04_fuel");
    kavetta.date = "2026-11-22";
    const std::string bytes = exact_bytes(kavetta, "inner");
    EXPECT_EQ(bytes.substr(0, bytes.find("ENDSEC")),
              "ISO-10303-21;\r\n"
              "HEADER;\r\n"
              "FILE_DESCRIPTION(('Gerotor pump, true arcs and splines'),'2;1');\r\n"
              "FILE_NAME('R\\X2\\00F6\\X0\\hre.stp','2026-11-22',(''),(''),'',"
              "'Kavetta V2021.1.1','');\r\n"
              "FILE_SCHEMA(('AUTOMOTIVE_DESIGN { 1 0 10303 214 1 1 1 1 }'));\r\n");
    EXPECT_TRUE(
        std::ranges::all_of(bytes, [](char c) { return static_cast<unsigned char>(c) < 0x80; }));
    EXPECT_TRUE(bytes.ends_with("ENDSEC;\r\nEND-ISO-10303-21;\r\n"));
}

TEST(exact_step_files, are_in_reading_order_with_two_faces_an_edge) {
    const program kavetta = design_with_ports("n07_engine_oil_groove");
    for (const written_file& file : files_of(file_group::step_exact)) {
        SCOPED_TRACE(std::string(file.name));
        const std::string bytes = exact_bytes(kavetta, file.name);
        expect_reading_order(bytes);
        expect_edges_of_two_faces(bytes);
    }
}

TEST(exact_step_files, are_light) {
    random_values random;
    for (int i = 0; i < property_count(60); ++i) {
        const program kavetta = random_design(random);
        if (kavetta.design_params.numlobes <= 12) {
            EXPECT_LT(exact_bytes(kavetta, "inner").size(), 100'000U);
        }
        const std::size_t arcs = outer_rotor_body(kavetta.design_params).hole.size() + 2;
        EXPECT_LT(exact_bytes(kavetta, "outer").size(), 1500 * arcs + 5000);
    }
}

TEST(exact_step_files, name_and_colour_each_body) {
    const program kavetta = design_with_ports("n07_engine_oil_groove");
    const std::string bytes = exact_bytes(kavetta, "assembly");
    for (const char* part :
         {"MANIFOLD_SOLID_BREP('Inner Rotor',", "MANIFOLD_SOLID_BREP('Outer Rotor',",
          "COLOUR_RGB('',0.784,0.635,0.29)", "COLOUR_RGB('',0.435,0.576,0.659)",
          "NEXT_ASSEMBLY_USAGE_OCCURRENCE('Inner Rotor','Inner Rotor',''"}) {
        EXPECT_NE(bytes.find(part), std::string::npos) << part;
    }
}

TEST(exact_step_files, append_nothing_when_there_is_no_such_body) {
    program kavetta = design_with_ports("n04_fuel");
    kavetta.design_params.outer_root = 1000.0;
    text_lines text;
    EXPECT_THROW(write_exact_step_outer(source_of(kavetta), text), run_time_error);
    EXPECT_EQ(text.bytes(), "");
}

}  // namespace
}  // namespace kvt
