// drawn_document: a document of the built-in modeller as the objects of a package hold it. It may
// be closed at any time; what is drawn into it then is refused. Lengths mm.
#pragma once

#include "cad/builtin/document_store.hpp"

#include <memory>
#include <string>

namespace kvt::builtin {

/// What the applications of one process share, for as long as one of their objects is held.
struct modeller_desk {
    document_store store;
    double drawing_unit_mm = 1.0;  ///< one unit of a drawing
    int parts_made = 0;
};
using desk_ref = std::shared_ptr<modeller_desk>;

/// Copies are the same document. What refuses throws automation_error.
class drawn_document {
  public:
    drawn_document(desk_ref desk, const std::string& name);

    bool is_open() const;
    /// Refuses when it is closed.
    void expect_open() const;

    /// A solid or curve as its last one. Refuses when it is closed.
    body_number add(const solid_or_curve& one) const;
    /// Refuses for one that is gone.
    void replace(body_number number, const solid_or_curve& one) const;
    void remove(body_number number) const;
    bool has(body_number number) const;
    /// Refuses for one that is gone, and for a curve.
    const body& solid(body_number number) const;

    double unit_mm() const { return desk_->drawing_unit_mm; }

  private:
    desk_ref desk_;
    document_number number_;
};

/// "Part1", "Part2", .. whichever package makes them.
drawn_document new_part(const desk_ref& desk);

}  // namespace kvt::builtin
