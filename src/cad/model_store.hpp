// model_store: the documents and bodies that the built-in modeller holds, told without its kernel.
// It is a host too: behind the class names of the CAD packages it builds solids of its own.
#pragma once

#include "automation/host.hpp"
#include "cad/housing.hpp"
#include "geometry/body_mesh.hpp"

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// What a body is, which decides its colour and with which rotor it turns.
enum class body_role { other, inner_rotor, outer_rotor, inlet, outlet, groove, housing };

/// Bodies and documents have numbers that are not used again in the same store.
using body_number = std::uint32_t;
using document_number = std::uint32_t;

struct model_box {
    point3 lowest, highest;
};

/// A solid, or a curve that became none. Lengths mm, whatever the unit of the drawing.
struct model_body {
    body_number number = 0;
    std::string name;
    body_role role = body_role::other;
    bool is_curve = false;      ///< without area, height and volume
    double contour_area = 0.0;  ///< of its upper face, mm^2
    double height = 0.0;        ///< along z
    model_box box;

    /// mm^3: every body is as wide above as below.
    double volume() const { return contour_area * height; }
};

inline std::vector<body_number> numbers_of(const std::vector<model_body>& bodies) {
    std::vector<body_number> numbers;
    for (const model_body& body : bodies) {
        numbers.push_back(body.number);
    }
    return numbers;
}

/// "Drawing1", "Part1", .. as its package would name it.
struct model_document {
    document_number number = 0;
    std::string name;
    std::vector<model_body> bodies;  ///< in order of birth
};

enum class solid_format { step, stl, three_mf, brep };
/// A kind of solid file.
struct solid_file_row {
    solid_format format;
    std::string_view word;    ///< which a command line has for it: "step"
    std::string_view ending;  ///< ".stp"
};
inline constexpr std::array SOLID_FILES = {solid_file_row{solid_format::step, "step", ".stp"},
                                           solid_file_row{solid_format::stl, "stl", ".stl"},
                                           solid_file_row{solid_format::three_mf, "3mf", ".3mf"},
                                           solid_file_row{solid_format::brep, "brep", ".brep"}};
/// The other formats hold solids only.
inline bool holds_curves(solid_format format) {
    return format == solid_format::step || format == solid_format::brep;
}

class model_store : public automation::host {
  public:
    /// In order of birth. A package that draws into an open document has one and adds to it.
    virtual std::vector<model_document> documents() const = 0;
    /// Millimetres in one unit of the drawings that follow, for the package that knows no unit: 1,
    /// or 25.4 for a design in inches.
    virtual void set_drawing_unit(double mm) = 0;
    /// Without effect for a body that is gone.
    virtual void label(body_number body, const std::string& name, body_role role) = 0;
    /// The surface within 0.001 of the largest extent and 0.2 rad. Made once. Empty for a body that
    /// is gone.
    virtual const body_mesh& mesh_of(body_number body) = 0;
    /// The bodies, and a housing when there is a plan of it, as one file, in mm; curves go into
    /// STEP and BREP only. Writes a temporary file and renames it. Throws run_time_error.
    virtual void save(const std::filesystem::path& file, solid_format format,
                      const std::vector<body_number>& bodies,
                      const std::optional<housing_plan>& housing) = 0;
    /// Its bodies are gone; a package that keeps one document has a new empty one.
    virtual void close_document(document_number document) = 0;
};

}  // namespace kvt
