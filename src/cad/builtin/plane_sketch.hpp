// plane_sketch: the curves of a sketch on a horizontal plane, and the solids of a part that are
// made of them.
#pragma once

#include "cad/builtin/drawn_document.hpp"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace kvt::builtin {

/// Through distinct points; a closed one is periodic.
wire spline_wire(const std::vector<point2>& points, bool closed);

/// The curves lie in the document until a solid is made of them. Lengths mm.
class plane_sketch {
  public:
    plane_sketch(drawn_document in, double z) : in_(std::move(in)), z_(z) {}

    double z() const { return z_; }
    /// The number of a new curve, from 0.
    std::size_t add(const wire& curve);
    /// In the document too, while it is there.
    void replace(std::size_t number, const wire& curve);
    std::size_t count() const { return curves_.size(); }
    bool is_closed() const;
    /// Its curve, when it has but one.
    std::optional<wire> only_curve() const;

    /// Between the largest curve and the others, which lie in it. Refuses a sketch that is empty or
    /// has an open curve.
    face region() const;
    /// The region between two heights above the plane; the curves leave the document.
    body extruded(const face& region, double start, double height);

  private:
    drawn_document in_;
    double z_;
    std::vector<wire> curves_;
    std::vector<body_number> numbers_;
};

/// The solids of a part, each with the one contour that it stands on, where it stands on one.
class part_solids {
  public:
    explicit part_solids(drawn_document in) : in_(std::move(in)) {}

    void add(const body& solid, const std::optional<wire>& contour = std::nullopt);
    /// Together with every solid whose box it meets one solid, else one of its own.
    void join(const body& solid, const std::optional<wire>& contour = std::nullopt);
    /// Taken from every solid whose box it meets. Refuses when there are no solids. What goes
    /// through a solid inside of its contour makes a ring of the two contours, which takes a
    /// hundredth of the time of a Boolean.
    void cut(const body& tool, const std::optional<wire>& contour = std::nullopt);

  private:
    struct kept_solid {
        body_number number;
        std::optional<wire> contour;
    };
    void forget_deleted();
    void cut_one(kept_solid& from, const body& tool, const std::optional<wire>& contour);

    drawn_document in_;
    std::vector<kept_solid> solids_;
};

}  // namespace kvt::builtin
