#include "output/dxf/exact_dxf_files.hpp"

#include "exact/inner_curve.hpp"
#include "exact/pump_contours.hpp"
#include "output/dxf/exact_dxf_entities.hpp"

#include <set>
#include <string>
#include <vector>

namespace kvt {

namespace {

constexpr double POLYLINE_ERROR_MM = 1e-3;
constexpr int WHITE = 7, RED = 1, GREEN = 3, CYAN = 4, BLUE = 5, MAGENTA = 6;

/// "outer-rotor" as "OUTER_ROTOR": the letters that every version takes.
std::string layer_name(pump_part part) {
    std::string name;
    for (const char c : name_of(part)) {
        name += c == '-' ? '_' : static_cast<char>(c - 'a' + 'A');
    }
    return name;
}

constexpr std::string_view CENTRES = "CENTRES";

int colour_of(pump_part part) {
    switch (part) {
        case pump_part::inner_rotor:
            return GREEN;
        case pump_part::outer_rotor:
        case pump_part::rim:
            return CYAN;
        case pump_part::inlet:
            return BLUE;
        case pump_part::outlet:
            return RED;
        case pump_part::groove:
            break;
    }
    return MAGENTA;
}

/// What stands in a file.
struct dxf_sheet {
    std::vector<pump_contour> contours;
    std::vector<point2> marks;
    double mark_half_mm = 0.0;
};

/// The tables that readers of this version ask for, the layers among them.
class file_frame {
  public:
    file_frame(dxf_groups& out, const dxf_sheet& sheet) : out_(out), sheet_(sheet) {}

    /// Everything before the entities; answers the handle of the model space.
    std::string write_tables_and_blocks() {
        begin_section("TABLES");
        table("VPORT", 0, [] {});
        table("LTYPE", 3, [this] { line_types(); });
        table("LAYER", layer_count(), [this] { layers(); });
        table("STYLE", 1, [this] { text_style(); });
        table("VIEW", 0, [] {});
        table("UCS", 0, [] {});
        table("APPID", 1, [this] { record("APPID", "AcDbRegAppTableRecord", "ACAD"); });
        table("DIMSTYLE", 0, [] {});
        table("BLOCK_RECORD", 2, [this] { block_records(); });
        end_section();
        begin_section("BLOCKS");
        block("*Model_Space", model_space_);
        block("*Paper_Space", paper_space_);
        end_section();
        return model_space_;
    }

    void begin_section(std::string_view name) {
        out_.group(0, "SECTION");
        out_.group(2, name);
    }
    void end_section() { out_.group(0, "ENDSEC"); }

    void write_objects() {
        begin_section("OBJECTS");
        out_.group(0, "DICTIONARY");
        const std::string root = out_.handle();
        out_.group(330, "0");
        out_.group(100, "AcDbDictionary");
        out_.whole(281, 1);
        out_.group(3, "ACAD_GROUP");
        out_.group(350, out_.next_handle());
        out_.group(0, "DICTIONARY");
        out_.handle();
        out_.group(330, root);
        out_.group(100, "AcDbDictionary");
        out_.whole(281, 1);
        end_section();
    }

  private:
    template <typename rows>
    void table(std::string_view name, int count, const rows& write_rows) {
        out_.group(0, "TABLE");
        out_.group(2, name);
        table_ = out_.handle();
        out_.group(330, "0");
        out_.group(100, "AcDbSymbolTable");
        out_.whole(70, count);
        if (name == "DIMSTYLE") {
            out_.group(100, "AcDbDimStyleTable");
        }
        write_rows();
        out_.group(0, "ENDTAB");
    }

    /// The head of a row; its flags are 0.
    std::string record(std::string_view type, std::string_view subclass, std::string_view name) {
        out_.group(0, type);
        const std::string handle = out_.handle();
        out_.group(330, table_);
        out_.group(100, "AcDbSymbolTableRecord");
        out_.group(100, subclass);
        out_.group(2, name);
        if (type != "BLOCK_RECORD") {
            out_.whole(70, 0);
        }
        return handle;
    }

    void line_types() {
        for (const std::string_view name : {"ByBlock", "ByLayer", "Continuous"}) {
            record("LTYPE", "AcDbLinetypeTableRecord", name);
            out_.group(3, "");
            out_.whole(72, 65);  // alignment: always this
            out_.whole(73, 0);   // no dashes
            out_.real(40, 0.0);
        }
    }

    std::set<pump_part> parts() const {
        std::set<pump_part> found;
        for (const pump_contour& drawn : sheet_.contours) {
            found.insert(drawn.part);
        }
        return found;
    }

    int layer_count() const {
        return 1 + static_cast<int>(parts().size()) + (sheet_.marks.empty() ? 0 : 1);
    }

    void layer(std::string_view name, int colour) {
        record("LAYER", "AcDbLayerTableRecord", name);
        out_.whole(62, colour);
        out_.group(6, "Continuous");
    }

    void layers() {
        layer("0", WHITE);
        for (const pump_part part : parts()) {
            layer(layer_name(part), colour_of(part));
        }
        if (!sheet_.marks.empty()) {
            layer(CENTRES, WHITE);
        }
    }

    void text_style() {
        record("STYLE", "AcDbTextStyleTableRecord", "Standard");
        out_.real(40, 0.0);
        out_.real(41, 1.0);
        out_.real(50, 0.0);
        out_.whole(71, 0);
        out_.real(42, 2.5);
        out_.group(3, "txt");
        out_.group(4, "");
    }

    void block_records() {
        model_space_ = record("BLOCK_RECORD", "AcDbBlockTableRecord", "*Model_Space");
        paper_space_ = record("BLOCK_RECORD", "AcDbBlockTableRecord", "*Paper_Space");
    }

    void block(std::string_view name, const std::string& owner) {
        out_.group(0, "BLOCK");
        out_.handle();
        out_.group(330, owner);
        out_.group(100, "AcDbEntity");
        out_.group(8, "0");
        out_.group(100, "AcDbBlockBegin");
        out_.group(2, name);
        out_.whole(70, 0);
        out_.real(10, 0.0);
        out_.real(20, 0.0);
        out_.real(30, 0.0);
        out_.group(3, name);
        out_.group(1, "");
        out_.group(0, "ENDBLK");
        out_.handle();
        out_.group(330, owner);
        out_.group(100, "AcDbEntity");
        out_.group(8, "0");
        out_.group(100, "AcDbBlockEnd");
    }

    dxf_groups& out_;
    const dxf_sheet& sheet_;
    std::string table_, model_space_, paper_space_;
};

bool is_spline(const exact_contour& contour) {
    return !contour.empty() && contour.front().kind == piece_kind::spline;
}

void draw(dxf_drawing& drawing, const pump_contour& drawn) {
    const std::string layer = layer_name(drawn.part);
    if (drawn.part == pump_part::rim) {
        const true_arc& arc = drawn.contour.front().arc;
        drawing.circle(layer, arc.centre, arc.radius);
    } else if (is_spline(drawn.contour)) {
        drawing.spline(layer, drawn.contour);
    } else {
        drawing.polyline(layer, drawn.contour);
    }
}

/// The section HEADER, which names the handle behind the last one.
void write_header(dxf_groups& out, const length_unit& unit, const std::string& handle_seed) {
    const bool is_metric = unit.system == unit_system::metric;
    out.group(0, "SECTION");
    out.group(2, "HEADER");
    out.group(9, "$ACADVER");
    out.group(1, "AC1015");
    out.group(9, "$DWGCODEPAGE");
    out.group(3, "ANSI_1252");
    out.group(9, "$HANDSEED");
    out.group(5, handle_seed);
    out.group(9, "$INSUNITS");
    out.whole(70, is_metric ? 4 : 1);
    out.group(9, "$MEASUREMENT");
    out.whole(70, is_metric ? 1 : 0);
    out.group(0, "ENDSEC");
    out.group(0, "SECTION");
    out.group(2, "CLASSES");
    out.group(0, "ENDSEC");
}

void write_sheet(const file_source& source, const dxf_sheet& sheet, text_lines& out) {
    check_that_there_are(sheet.contours);
    dxf_groups body;
    file_frame frame(body, sheet);
    const std::string model_space = frame.write_tables_and_blocks();
    frame.begin_section("ENTITIES");
    dxf_drawing drawing(body, model_space, source.unit.mm);
    for (const pump_contour& drawn : sheet.contours) {
        draw(drawing, drawn);
    }
    for (const point2& mark : sheet.marks) {
        drawing.centre_mark(CENTRES, mark, sheet.mark_half_mm);
    }
    frame.end_section();
    frame.write_objects();
    body.group(0, "EOF");
    dxf_groups header;
    write_header(header, source.unit, body.next_handle());
    out.raw_block(header.lines().bytes());
    out.raw_block(body.lines().bytes());
}

}  // namespace

void write_exact_dxf_inner(const file_source& source, text_lines& out) {
    write_sheet(source, {inner_rotor_contours(source.design), {}}, out);
}

void write_exact_dxf_inner_polyline(const file_source& source, text_lines& out) {
    const exact_contour lines = inner_rotor_lines(source.design, POLYLINE_ERROR_MM);
    write_sheet(source, {{{pump_part::inner_rotor, lines}}, {}}, out);
}

void write_exact_dxf_outer(const file_source& source, text_lines& out) {
    write_sheet(source, {outer_rotor_contours(source.design), {}}, out);
}

void write_exact_dxf_inlet(const file_source& source, text_lines& out) {
    write_sheet(source, {port_contours(source.ports, port_side::inlet), {}}, out);
}

void write_exact_dxf_outlet(const file_source& source, text_lines& out) {
    write_sheet(source, {port_contours(source.ports, port_side::outlet), {}}, out);
}

void write_exact_dxf_groove(const file_source& source, text_lines& out) {
    write_sheet(source, {groove_contours(source.ports, source.boxes), {}}, out);
}

void write_exact_dxf_pair(const file_source& source, text_lines& out) {
    // Arms of half the eccentricity: the crosses of both axes touch and don't overlap.
    write_sheet(source,
                {pair_contours(source.design),
                 {{0.0, 0.0}, {-source.design.ecc, 0.0}},
                 source.design.ecc / 2.0},
                out);
}

}  // namespace kvt
