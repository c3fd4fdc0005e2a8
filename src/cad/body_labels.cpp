#include "cad/body_labels.hpp"

#include "cad/model_outlines.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kvt {

namespace {

struct part {
    std::string_view name;
    body_role role;
};

constexpr part TROCHOID = {"Trochoid", body_role::other};
constexpr part INNER_ROTOR = {"Inner Rotor", body_role::inner_rotor};
constexpr part OUTER_ROTOR = {"Outer Rotor", body_role::outer_rotor};

part part_of(port_body_kind kind) {
    switch (kind) {
        case port_body_kind::inlet_lower:
            return {"Inlet Port Lower", body_role::inlet};
        case port_body_kind::outlet_lower:
            return {"Outlet Port Lower", body_role::outlet};
        case port_body_kind::groove:
            return {"Metering Groove", body_role::groove};
        case port_body_kind::outlet_upper:
            return {"Outlet Port Upper", body_role::outlet};
        case port_body_kind::inlet_upper:
            break;
    }
    return {"Inlet Port Upper", body_role::inlet};
}

double width(const model_body& body) {
    return body.box.highest.x - body.box.lowest.x;
}

model_box box_of(const port_body& body) {
    constexpr double far = std::numeric_limits<double>::infinity();
    model_box box{{far, far, body.from_z}, {-far, -far, body.to_z}};
    for (const point2& point : body.outline) {
        box.lowest.x = std::min(box.lowest.x, point.x);
        box.lowest.y = std::min(box.lowest.y, point.y);
        box.highest.x = std::max(box.highest.x, point.x);
        box.highest.y = std::max(box.highest.y, point.y);
    }
    return box;
}

double difference_of(const model_box& a, const model_box& b) {
    double sum = 0.0;
    for (const point3& corner : {a.lowest - b.lowest, a.highest - b.highest}) {
        sum += std::abs(corner.x) + std::abs(corner.y) + std::abs(corner.z);
    }
    return sum;
}

/// What a body is among the bodies that a porting has.
part nearest_part(const model_body& body, const std::vector<port_body>& expected) {
    part nearest = {"Port", body_role::other};
    double least = std::numeric_limits<double>::infinity();
    for (const port_body& one : expected) {
        const double apart = difference_of(body.box, box_of(one));
        if (apart < least) {
            least = apart;
            nearest = part_of(one.kind);
        }
    }
    return nearest;
}

/// The parts of the bodies of one model.
class part_finder {
  public:
    part_finder(const std::vector<model_body>& built, model_kind kind, const model_source& source)
        : kind_(kind) {
        if (kind == model_kind::porting) {
            ports_ = port_bodies(source.design, source.ports, source.boxes);
        }
        for (const model_body& body : built) {
            widest_ = std::max(widest_, width(body));
        }
    }

    part part_of_body(const model_body& body) const {
        if (body.is_curve) {
            return TROCHOID;
        }
        switch (kind_) {
            case model_kind::porting:
                return nearest_part(body, ports_);
            case model_kind::outer:
                return OUTER_ROTOR;
            case model_kind::assembly:
                return width(body) == widest_ ? OUTER_ROTOR : INNER_ROTOR;
            case model_kind::inner:
            case model_kind::trochoid:
                break;
        }
        return INNER_ROTOR;
    }

  private:
    model_kind kind_;
    std::vector<port_body> ports_;
    double widest_ = 0.0;
};

}  // namespace

std::vector<body_label> labels_of(const std::vector<model_body>& built, model_kind kind,
                                  const model_source& source) {
    const part_finder parts(built, kind, source);
    std::vector<body_label> labels;
    for (const model_body& body : built) {
        const part found = parts.part_of_body(body);
        labels.push_back({body.number, found.name, found.role});
    }
    return labels;
}

}  // namespace kvt
