// plane_sketch: the curves of a sketch on a horizontal plane, and the solids of a part that are
// made of them.
#pragma once

#include "cad/builtin/drawn_document.hpp"

#include <cstddef>
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

/// The solids of a part.
class part_solids {
  public:
    explicit part_solids(drawn_document in) : in_(std::move(in)) {}

    void add(const body& solid);
    /// Together with every solid whose box it meets one solid, else one of its own.
    void join(const body& solid);
    /// Taken from every solid whose box it meets. Refuses when there are no solids.
    void cut(const body& tool);

  private:
    void forget_deleted();

    drawn_document in_;
    std::vector<body_number> numbers_;
};

}  // namespace kvt::builtin
