#include "ports/build_ports.hpp"

#include "base/number_text.hpp"
#include "ports/port_entries.hpp"
#include "ports/port_fields.hpp"
#include "ports/port_outline.hpp"
#include "ports/port_sides.hpp"

#include <algorithm>
#include <string>

namespace kvt {

namespace {

/// How one pass of a routine ended; radius_too_large: the entries go back and the next pass
/// follows.
enum class pass_end { finished, refused, radius_too_large };

port_shape shape_of(const port_fields& port, const port_work& work) {
    const port_params& ports = work.ports;
    const port_record& record = port.record(ports);
    port_shape shape = {record.inner_r,  record.outer_r,         ports.port_radius,
                        work.design.ecc, ports.side_angle_start, {}};
    std::ranges::copy(record.corners, shape.corners.begin());
    return shape;
}

/// Stores the outline together with what it was built with; a failure leaves both as they were.
void store_outline(const port_fields& port, port_work& work) {
    const port_shape shape = shape_of(port, work);
    port_outline built = outline_of_port(shape);
    if (port.mirrored) {
        built.outline.mirror();
    }
    port_record& record = port.record(work.ports);
    built.outline.store(record.x, record.y, record.last);
    record.marks = built.marks;
    record.built = shape;
}

pass_end one_pass(const port_fields& port, port_work& work) {
    read_port_radii(port, work.boxes, work.unit, work.ports);
    reread_design(work.boxes, work.unit, work.design, work.rotors);
    set_side_lines(port, work.design, work.ports);
    if (set_start_corners(port, work) == port_end::refused) {
        return pass_end::refused;
    }
    if (start_fillets_cross(port, work.ports)) {
        return pass_end::radius_too_large;
    }
    if (set_end_corners(port, work) == port_end::refused) {
        return pass_end::refused;
    }
    store_outline(port, work);
    return pass_end::finished;
}

pass_end inlet_pass(port_work& work) {
    read_port_angles(inlet_fields(), work.rotors, work.boxes, work.ports);
    fill_port_radii(inlet_fields(), work.design, work.unit, work.boxes);
    fill_port_radii(outlet_fields(), work.design, work.unit, work.boxes);
    return one_pass(inlet_fields(), work);
}

pass_end outlet_pass(port_work& work) {
    read_port_angles(outlet_fields(), work.rotors, work.boxes, work.ports);
    fill_port_radii(outlet_fields(), work.design, work.unit, work.boxes);
    return one_pass(outlet_fields(), work);
}

void tell_radius_too_large(const port_fields& port, const port_work& work) {
    work.person.show_message(
        std::string(message_text(port.radius_too_large, work.language)) + "\r" +
        std::string(message_text(message::smaller_port_radius, work.language)));
}

/// Writes a text to an entry. False when it stood there already.
bool write_back(std::string& box, const std::string& text) {
    const bool differs = box != text;
    box = text;
    return differs;
}

/// port_radii goes back to last_good_port_radius, and that to 0 when the entry says it already.
/// False when the entry keeps its text.
bool take_back_port_radius(const port_work& work) {
    if (val(work.boxes.port_radii) == work.ports.last_good_port_radius) {
        work.ports.last_good_port_radius = 0.0;
    }
    return write_back(work.boxes.port_radii,
                      cut_length_text(work.ports.last_good_port_radius, work.unit));
}

/// Also the two radii go back, to those of the rotors. False when all three entries keep their
/// texts.
bool take_back_all_radii(const port_fields& port, const port_work& work) {
    if (val(work.boxes.port_radii) == work.ports.last_good_port_radius) {
        port.record(work.ports).inner_r = work.design.radinnroot;
        port.record(work.ports).outer_r = work.design.outer_root;
    }
    const bool radius = take_back_port_radius(work);
    const bool inner = write_back(work.boxes.*port.inner_radius_box,
                                  cut_length_text(work.design.radinnroot, work.unit));
    const bool outer = write_back(work.boxes.*port.outer_radius_box,
                                  cut_length_text(work.design.outer_root, work.unit));
    return radius || inner || outer;
}

/// What stands in the entries of a port whose radius is too large: told, and taken back as far as
/// it goes. False when the entries keep their texts, so that another pass would end alike.
bool can_try_again(const port_fields& port, const port_work& work, bool takes_back_all) {
    tell_radius_too_large(port, work);
    return takes_back_all ? take_back_all_radii(port, work) : take_back_port_radius(work);
}

}  // namespace

port_end build_inlet_port(port_work& work) {
    pass_end end = inlet_pass(work);
    while (end == pass_end::radius_too_large && can_try_again(inlet_fields(), work, true)) {
        end = inlet_pass(work);
    }
    return end == pass_end::finished ? port_end::finished : port_end::refused;
}

port_end build_outlet_port(port_work& work) {
    pass_end end = outlet_pass(work);
    while (end == pass_end::radius_too_large) {
        const bool shares_radius = work.ports.side_angle_start < 0.0;
        if (!can_try_again(outlet_fields(), work, !shares_radius)) {
            return port_end::refused;
        }
        if (shares_radius && build_inlet_port(work) == port_end::finished) {
            work.inlet_rebuilt = true;
        }
        end = outlet_pass(work);
    }
    if (end == pass_end::refused) {
        return port_end::refused;
    }
    work.ports.last_good_port_radius = work.ports.port_radius;
    return port_end::finished;
}

}  // namespace kvt
