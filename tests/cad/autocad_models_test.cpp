#include "cad/autocad_models.hpp"

#include "support/cad/model_designs.hpp"
#include "support/cad/recorded_model.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace kvt {
namespace {

using automation::recorded_call;
using automation::recorder_host;

std::vector<std::string> lines_of(const recorder_host& programs) {
    std::vector<std::string> lines;
    std::istringstream log(programs.log());
    for (std::string line; std::getline(log, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::size_t calls_of(const recorder_host& programs, const std::string& name) {
    return static_cast<std::size_t>(
        std::ranges::count(programs.calls(), name, &recorded_call::name));
}

}  // namespace

TEST(autocad_models, takes_the_open_drawing_or_a_new_one) {
    program kavetta = double_sided_design();
    recorder_host open;
    EXPECT_EQ(record_model(kavetta, open, "acad", model_kind::trochoid), std::nullopt);
    EXPECT_EQ(lines_of(open).at(3), "#2 = #1.ActiveDocument");
    recorder_host closed;
    closed.fail_call(4, 440);
    EXPECT_EQ(record_model(kavetta, closed, "acad", model_kind::trochoid), std::nullopt);
    EXPECT_EQ(lines_of(closed).at(5), "#3 = #2.Add");
    EXPECT_EQ(lines_of(closed).at(6), "#4 = #3.ModelSpace");
}

TEST(autocad_models, leave_the_trochoid_open) {
    program kavetta = double_sided_design();
    recorder_host programs;
    record_model(kavetta, programs, "acad", model_kind::trochoid);
    EXPECT_EQ(calls_of(programs, "Closed"), 0U);
    EXPECT_EQ(calls_of(programs, "ZoomExtents"), 1U);
    const auto& array = std::get<automation::number_array>(programs.calls().at(5).arguments.at(0));
    EXPECT_EQ(array.numbers.size(), 7202U);
}

TEST(autocad_models, make_a_tool_for_each_lobe) {
    program kavetta = double_sided_design();
    recorder_host programs;
    record_model(kavetta, programs, "acad", model_kind::outer);
    EXPECT_EQ(calls_of(programs, "ArrayPolar"), 1U);
    // wedge less two fillets, lobe and wedge, root less lobe, bore; the tool and its six copies
    EXPECT_EQ(calls_of(programs, "Boolean"), 5U + 7U);
    EXPECT_EQ(calls_of(programs, "AddCylinder"), 6U);
}

TEST(autocad_models, ask_by_two_boxes_whether_the_copies_were_turned) {
    program kavetta = double_sided_design();
    recorder_host programs;
    record_model(kavetta, programs, "acad", model_kind::outer);
    EXPECT_EQ(calls_of(programs, "GetBoundingBox"), 2U);
    EXPECT_EQ(calls_of(programs, "Copy"), 0U);
    EXPECT_EQ(calls_of(programs, "Rotate3D"), 0U);
}

TEST(autocad_models, leave_the_fillets_out_where_there_are_none) {
    program kavetta = double_sided_design();
    type_calculated(kavetta, &entries::fillet, "0");
    recorder_host programs;
    EXPECT_EQ(record_model(kavetta, programs, "acad", model_kind::outer), std::nullopt);
    EXPECT_EQ(calls_of(programs, "AddCylinder"), 4U);
    EXPECT_EQ(calls_of(programs, "AddExtrudedSolid"), 0U);
    EXPECT_EQ(calls_of(programs, "Boolean"), 2U + 7U);
}

TEST(autocad_models, follow_the_coarseness_of_the_inner_rotor) {
    program kavetta = double_sided_design();
    const std::size_t points = kavetta.rotor_profiles.inner_plot_xy.size();
    recorder_host programs;
    record_model(kavetta, programs, "acad", model_kind::inner);
    const auto& array = std::get<automation::number_array>(programs.calls().at(5).arguments.at(0));
    EXPECT_EQ(array.numbers.size(), points - 2);
}

TEST(autocad_models, delete_the_selection_set_also_when_a_solid_fails) {
    program kavetta = double_sided_design();
    recorder_host clean;
    record_model(kavetta, clean, "acad", model_kind::outer);
    const auto& calls = clean.calls();
    const auto last = std::find_if(calls.rbegin(), calls.rend(), [](const recorded_call& call) {
        return call.name == "Boolean";
    });
    recorder_host programs;
    programs.fail_call(static_cast<std::size_t>(calls.rend() - last), 440);
    EXPECT_NE(record_model(kavetta, programs, "acad", model_kind::outer), std::nullopt);
    EXPECT_EQ(programs.calls().back().name, "Delete");
    const std::size_t set = programs.calls().back().object;
    const auto added = std::ranges::find_if(programs.calls(), [set](const recorded_call& call) {
        return call.answered == std::vector<std::size_t>{set};
    });
    EXPECT_EQ(added->name, "Add");
    EXPECT_EQ(std::get<std::string>(added->arguments.at(0)), "KVT");
}

}  // namespace kvt
