#include "app/gt/gt_model.hpp"

#include "app/gt/gt_folders.hpp"
#include "app/program.hpp"
#include "base/whole_file.hpp"
#include "gtsuite/chamber_profile.hpp"

namespace kvt {

pump_values model_values(const program& kavetta, const model_inputs& inputs) {
    pump_values pump = pump_values_of(kavetta.design_params, kavetta.port_params,
                                      kavetta.perf_inputs, kavetta.perf_results);
    const chamber_volumes chambers = read_chamber_volumes(read_file(inputs.profile));
    pump.biggest_chamber_mm3 = chambers.biggest_mm3;
    pump.smallest_chamber_mm3 = chambers.smallest_mm3;
    pump.fluid = inputs.fluid;
    pump.bearing_length = inputs.bearing_length_mm.value_or(pump.bearing_length);
    pump.bearing_clearance_um = inputs.bearing_clearance_um.value_or(pump.bearing_clearance_um);
    return pump;
}

std::vector<pass_count> change_model_file(const std::filesystem::path& model,
                                          const std::filesystem::path& scratch,
                                          const pump_values& pump) {
    std::vector<pass_count> counts;
    model_ids ids;
    for (const model_pass pass : model_passes()) {
        model_text text = read_model_text(read_file(model));
        pass_work work{pump, text.encoding, ids};
        counts.push_back(pass(text.lines, work));
        ids = work.ids;
        write_file(scratch, model_bytes(text), disk_write::left_to_the_system);
        remove_file(model);
        copy_over(scratch, model);
        remove_file(scratch);
    }
    return counts;
}

std::vector<pass_count> write_changed_model(const std::filesystem::path& from,
                                            const std::filesystem::path& to,
                                            const pump_values& pump) {
    model_text text = read_model_text(read_file(from));
    const std::vector<pass_count> counts = run_model_passes(text, pump);
    write_file(to, model_bytes(text));
    return counts;
}

}  // namespace kvt
