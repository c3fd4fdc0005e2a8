#include "output/step/exact_step_files.hpp"

#include "exact/pump_bodies.hpp"
#include "output/step/exact_step_solid.hpp"

#include <string>
#include <vector>

namespace kvt {

namespace {

/// The name behind the last slash or backslash.
std::string name_without_folder(const std::string& path) {
    const std::size_t slash = path.find_last_of("/\\");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

void write_head(const file_source& source, text_lines& out) {
    out.raw_line("ISO-10303-21;");
    out.raw_line("HEADER;");
    out.raw_line("FILE_DESCRIPTION(('Gerotor pump, true arcs and splines'),'2;1');");
    out.raw_line("FILE_NAME(" + step_string(name_without_folder(source.path)) + "," +
                 step_string(source.date) + ",(''),(''),''," +
                 step_string("Kavetta V" + source.version) + ",'');");
    out.raw_line("FILE_SCHEMA(('AUTOMOTIVE_DESIGN { 1 0 10303 214 1 1 1 1 }'));");
    out.raw_line("ENDSEC;");
    out.raw_line("DATA;");
}

/// Entity numbers of a product: its definition and its representation.
struct step_product {
    int definition = 0, representation = 0;
};

/// The body of one file.
class file_body {
  public:
    file_body(const file_source& source, text_lines& out) : source_(source), entities_(out) {
        write_contexts();
        frame_ = write_step_frame(entities_);
    }

    step_product part(const pump_body& body) {
        const int solid = write_step_solid(entities_, frame_, body);
        write_colour(solid, body.colour);
        const std::string name = step_string(body.name);
        const int shape = add("ADVANCED_BREP_SHAPE_REPRESENTATION(" + name + "," +
                              step_refs({frame_.placement, solid}) + "," + step_ref(units_) + ")");
        return product(name, shape);
    }

    void assembly(std::string_view kind, const std::vector<pump_body>& bodies) {
        std::vector<step_product> parts;
        parts.reserve(bodies.size());
        for (const pump_body& body : bodies) {
            parts.push_back(part(body));
        }
        const std::string project(source_.project_name);
        const std::string name =
            step_string(project.empty() ? std::string(kind) : project + " " + std::string(kind));
        const int shape = add("SHAPE_REPRESENTATION(" + name + "," + step_refs({frame_.placement}) +
                              "," + step_ref(units_) + ")");
        const step_product whole = product(name, shape);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            place(parts[i], whole, step_string(bodies[i].name));
        }
    }

    void end() {
        if (!styled_.empty()) {
            add("MECHANICAL_DESIGN_GEOMETRIC_PRESENTATION_REPRESENTATION(''," + step_refs(styled_) +
                "," + step_ref(units_) + ")");
        }
    }

  private:
    int add(const std::string& entity) { return entities_.add(entity); }

    void write_contexts() {
        const int application = add("APPLICATION_CONTEXT('automotive design')");
        add("APPLICATION_PROTOCOL_DEFINITION('international standard','automotive_design',2000," +
            step_ref(application) + ")");
        product_context_ = add("PRODUCT_CONTEXT(''," + step_ref(application) + ",'mechanical')");
        definition_context_ = add("PRODUCT_DEFINITION_CONTEXT('part definition'," +
                                  step_ref(application) + ",'design')");
        const int length = add("(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.))");
        const int angle = add("(NAMED_UNIT(*)PLANE_ANGLE_UNIT()SI_UNIT($,.RADIAN.))");
        const int solid_angle = add("(NAMED_UNIT(*)SI_UNIT($,.STERADIAN.)SOLID_ANGLE_UNIT())");
        const int accuracy = add("UNCERTAINTY_MEASURE_WITH_UNIT(LENGTH_MEASURE(1.E-06)," +
                                 step_ref(length) + ",'distance_accuracy_value','')");
        units_ = add("(GEOMETRIC_REPRESENTATION_CONTEXT(3)GLOBAL_UNCERTAINTY_ASSIGNED_CONTEXT(" +
                     step_refs({accuracy}) + ")GLOBAL_UNIT_ASSIGNED_CONTEXT(" +
                     step_refs({length, angle, solid_angle}) + ")REPRESENTATION_CONTEXT('',''))");
    }

    step_product product(const std::string& name, int shape) {
        const int made =
            add("PRODUCT(" + name + "," + name + ",''," + step_refs({product_context_}) + ")");
        add("PRODUCT_RELATED_PRODUCT_CATEGORY('part',''," + step_refs({made}) + ")");
        const int formation = add("PRODUCT_DEFINITION_FORMATION('',''," + step_ref(made) + ")");
        const int definition = add("PRODUCT_DEFINITION('design',''," + step_ref(formation) + "," +
                                   step_ref(definition_context_) + ")");
        const int defined = add("PRODUCT_DEFINITION_SHAPE('',''," + step_ref(definition) + ")");
        add("SHAPE_DEFINITION_REPRESENTATION(" + step_ref(defined) + "," + step_ref(shape) + ")");
        return {definition, shape};
    }

    /// A part where it was modelled.
    void place(const step_product& part, const step_product& whole, const std::string& name) {
        const int usage = add("NEXT_ASSEMBLY_USAGE_OCCURRENCE(" + name + "," + name + ",''," +
                              step_ref(whole.definition) + "," + step_ref(part.definition) + ",$)");
        const int placed = add("PRODUCT_DEFINITION_SHAPE('',''," + step_ref(usage) + ")");
        const std::string placement = step_ref(frame_.placement);
        const int way =
            add("ITEM_DEFINED_TRANSFORMATION('',''," + placement + "," + placement + ")");
        const int relation = add(
            "(REPRESENTATION_RELATIONSHIP('',''," + step_ref(part.representation) + "," +
            step_ref(whole.representation) + ")REPRESENTATION_RELATIONSHIP_WITH_TRANSFORMATION(" +
            step_ref(way) + ")SHAPE_REPRESENTATION_RELATIONSHIP())");
        add("CONTEXT_DEPENDENT_SHAPE_REPRESENTATION(" + step_ref(relation) + "," +
            step_ref(placed) + ")");
    }

    void write_colour(int solid, const colour_shares& colour) {
        const int rgb = add("COLOUR_RGB(''," + step_real(colour.red) + "," +
                            step_real(colour.green) + "," + step_real(colour.blue) + ")");
        const int area_colour = add("FILL_AREA_STYLE_COLOUR(''," + step_ref(rgb) + ")");
        const int area = add("FILL_AREA_STYLE(''," + step_refs({area_colour}) + ")");
        const int fill = add("SURFACE_STYLE_FILL_AREA(" + step_ref(area) + ")");
        const int side = add("SURFACE_SIDE_STYLE(''," + step_refs({fill}) + ")");
        const int usage = add("SURFACE_STYLE_USAGE(.BOTH.," + step_ref(side) + ")");
        const int style = add("PRESENTATION_STYLE_ASSIGNMENT(" + step_refs({usage}) + ")");
        styled_.push_back(
            add("STYLED_ITEM(''," + step_refs({style}) + "," + step_ref(solid) + ")"));
    }

    const file_source& source_;
    exact_step_entities entities_;
    int product_context_ = 0, definition_context_ = 0, units_ = 0;
    step_frame frame_;
    std::vector<int> styled_;
};

void write_end(text_lines& out) {
    out.raw_line("ENDSEC;");
    out.raw_line("END-ISO-10303-21;");
}

void write_part(const file_source& source, const pump_body& body, text_lines& out) {
    write_head(source, out);
    file_body file(source, out);
    file.part(body);
    file.end();
    write_end(out);
}

void write_assembly(const file_source& source, std::string_view kind,
                    const std::vector<pump_body>& bodies, text_lines& out) {
    write_head(source, out);
    file_body file(source, out);
    file.assembly(kind, bodies);
    file.end();
    write_end(out);
}

}  // namespace

void write_exact_step_inner(const file_source& source, text_lines& out) {
    write_part(source, inner_rotor_body(source.design), out);
}

void write_exact_step_outer(const file_source& source, text_lines& out) {
    write_part(source, outer_rotor_body(source.design), out);
}

void write_exact_step_assembly(const file_source& source, text_lines& out) {
    write_assembly(source, "Rotors",
                   {inner_rotor_body(source.design), outer_rotor_body(source.design)}, out);
}

void write_exact_step_ports(const file_source& source, text_lines& out) {
    write_assembly(source, "Ports", porting_bodies(source.design, source.ports, source.boxes), out);
}

}  // namespace kvt
