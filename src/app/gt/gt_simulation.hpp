// GT_Sim_Button: from the calculated design to its model in the simulation package.
#pragma once

#include "app/gt/conversion.hpp"
#include "gtsuite/model_text.hpp"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

class user;
struct program;

/// What a model is made with.
struct gt_request {
    std::filesystem::path folder;               ///< the program's
    std::filesystem::path conversion_template;  ///< KVT_GT_conv.gem
    int gt_version = 0;                         ///< 0: none was chosen
    std::string fluid;                          ///< empty: none was chosen
    bool opens_model = true;                    ///< in the model editor
    std::optional<double> bearing_length_mm, bearing_clearance_um;
    conversion_limits limits;
};

/// What the Performance form was told, in the program's folder.
gt_request gt_request_of(const program& kavetta);

struct gt_result {
    std::filesystem::path model;     ///< where it stays
    std::vector<pass_count> passes;  ///< what each pass did
};

/// Makes the model of a design whose performance is calculated, and opens it. A version or fluid
/// that was not chosen is told; any failure behind that ends in the questions about the conversion.
/// Nothing then. gt_temp_dir is empty in the end. Throws the failure of GT_form.
std::optional<gt_result> simulate_in_gt(program& kavetta, user& person, const gt_request& request);

/// A tick of tim_gemc: once the converter's model stands in gt_temp_dir, the timer stops, and the
/// project's next model is told and opened. Kept: nothing starts this timer, the model opens at the
/// end of simulate_in_gt; gt_simulation_test holds it. Throws the failure of starting the editor.
void look_for_converted_model(program& kavetta, user& person);

/// The entries mnustepports_inlet_GT and mnustepport_outlet_GT, which no menu shows: a port's STEP
/// file in gt_temp_dir. Throws the failure of a folder or of the writer.
void write_gt_inlet_file(program& kavetta, user& person);
void write_gt_outlet_file(program& kavetta, user& person);

}  // namespace kvt
