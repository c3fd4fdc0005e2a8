#include "output/dxf/dxf_polyline.hpp"

#include <array>
#include <initializer_list>

namespace kvt {

namespace {

struct dxf_layer {
    std::string_view name, colour;
};

/// Only LINELAYER is used; drawing programs that know the set find the others empty.
constexpr auto LAYERS = std::to_array<dxf_layer>({{"0", "7"},
                                                  {"POINTLAYER", "30"},
                                                  {"LINELAYER", "30"},
                                                  {"CODELAYER", "30"},
                                                  {"DESCSLAYER", "30"},
                                                  {"COORDSLAYER", "30"}});

constexpr std::string_view ZERO = "0.000000";

// About so long are the lines around the vertices, and those of one vertex.
constexpr std::size_t HEAD_BYTES = 1000;
constexpr std::size_t BYTES_PER_VERTEX = 80;

void write_lines(text_lines& out, std::initializer_list<std::string_view> lines) {
    for (const std::string_view line : lines) {
        out.raw_line(line);
    }
}

// A group code keeps its one leading blank; its value is the next line.

void write_layer_table(text_lines& out) {
    write_lines(out, {" 0", "SECTION", " 2", "TABLES", " 0", "TABLE", " 2", "LAYER", " 70", "6"});
    for (const dxf_layer& layer : LAYERS) {
        write_lines(out, {" 0", "LAYER", " 2", layer.name, " 70", "64", " 62", layer.colour, " 6",
                          "CONTINUOUS"});
    }
    write_lines(out, {" 0", "ENDTAB", " 0", "ENDSEC"});
}

}  // namespace

dxf_polyline::dxf_polyline(text_lines& out, std::size_t vertex_count) : out_(out) {
    out.reserve(out.bytes().size() + HEAD_BYTES + BYTES_PER_VERTEX * vertex_count);
    write_lines(out, {" 0", "SECTION", " 2", "HEADER", " 0", "ENDSEC"});
    write_layer_table(out);
    write_lines(out, {" 0", "SECTION", " 2", "BLOCKS", " 0", "ENDSEC"});
    write_lines(out, {" 0", "SECTION", " 2", "ENTITIES"});
    write_lines(out, {" 0", "POLYLINE", " 8", "LINELAYER"});
    write_lines(out, {" 70", "0"});  // open
    write_lines(out, {" 66", "1"});  // vertices follow
    write_lines(out, {" 10", ZERO, " 20", ZERO, " 30", ZERO, " 0"});
}

void dxf_polyline::vertex(std::string_view x, std::string_view y) {
    out_.raw_block("VERTEX\r\n 8\r\nLINELAYER\r\n 10\r\n");
    out_.raw_line(x);
    out_.raw_block(" 20\r\n");
    out_.raw_line(y);
    // The " 0" behind a vertex begins the next one, or the end of the sequence.
    out_.raw_block(" 30\r\n0.000000\r\n 0\r\n");
}

void dxf_polyline::end() {
    write_lines(out_, {"SEQEND", " 0", "ENDSEC", " 0", "EOF"});
}

}  // namespace kvt
