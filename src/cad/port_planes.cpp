#include "cad/port_planes.hpp"

#include <utility>

namespace kvt {

port_planes::port_planes(automation::object_ref base, plane_maker make_plane)
    : base_(std::move(base)), make_plane_(std::move(make_plane)) {}

const automation::object_ref& port_planes::of(const port_body& body) {
    if (body.is_lower()) {
        return base_;
    }
    if (upper_ == nullptr) {
        upper_ = make_plane_(body.from_z);
    }
    return upper_;
}

}  // namespace kvt
