#include "cad/builtin/mesh_files.hpp"

#include "base/fixed_number.hpp"
#include "cad/builtin/body_mesher.hpp"
#include "cad/builtin/zip_package.hpp"

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace kvt::builtin {

namespace {

constexpr std::size_t STL_HEAD = 80;
constexpr int DECIMALS = 6;

void put_uint32(std::string& bytes, std::uint32_t number) {
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(static_cast<unsigned char>(number >> shift));
    }
}

void put_vector(std::string& bytes, const point3& at) {
    for (const double number : {at.x, at.y, at.z}) {
        put_uint32(bytes, std::bit_cast<std::uint32_t>(static_cast<float>(number)));
    }
}

/// Of length 1; 0 for a triangle without area.
point3 normal_of(const point3& a, const point3& b, const point3& c) {
    const point3 normal = cross(b - a, c - a);
    const double length = std::sqrt(dot(normal, normal));
    return length > 0.0 ? point3{normal.x / length, normal.y / length, normal.z / length}
                        : point3{};
}

void put_triangle(std::string& bytes, const std::array<point3, 3>& corners) {
    put_vector(bytes, normal_of(corners[0], corners[1], corners[2]));
    for (const point3& corner : corners) {
        put_vector(bytes, corner);
    }
    bytes.append(2, '\0');  // attributes: none
}

std::string quoted(const std::string& text) {
    std::string escaped;
    for (const char c : text) {
        switch (c) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            case '"':
                escaped += "&quot;";
                break;
            default:
                escaped += c;
        }
    }
    return '"' + escaped + '"';
}

std::string quoted(std::size_t number) {
    return '"' + std::to_string(number) + '"';
}

/// "#RRGGBB".
std::string colour_text(std::uint32_t colour) {
    constexpr const char* DIGITS = "0123456789ABCDEF";
    std::string text = "#";
    for (int shift = 20; shift >= 0; shift -= 4) {
        text += DIGITS[(colour >> shift) & 0xF];
    }
    return text;
}

/// Number 1 is the list of colours, so body i is object i + 2.
constexpr std::size_t COLOURS = 1;
std::size_t object_number(std::size_t body) {
    return COLOURS + 1 + body;
}

void put_colours(std::string& xml, const std::vector<saved_mesh>& meshes) {
    xml += "  <basematerials id=" + quoted(COLOURS) + ">\n";
    for (const saved_mesh& one : meshes) {
        xml += "   <base name=" + quoted(one.name) +
               " displaycolor=" + quoted(colour_text(saved_colour(one.role))) + "/>\n";
    }
    xml += "  </basematerials>\n";
}

void put_vertices(std::string& xml, const body_mesh& mesh) {
    xml += "    <vertices>\n";
    for (const point3& at : mesh.points) {
        xml += "     <vertex x=" + quoted(fixed_number(at.x, DECIMALS)) +
               " y=" + quoted(fixed_number(at.y, DECIMALS)) +
               " z=" + quoted(fixed_number(at.z, DECIMALS)) + "/>\n";
    }
    xml += "    </vertices>\n";
}

void put_triangles(std::string& xml, const body_mesh& mesh) {
    xml += "    <triangles>\n";
    for (const std::array<std::uint32_t, 3>& corner : mesh.triangles) {
        xml += "     <triangle v1=" + quoted(corner[0]) + " v2=" + quoted(corner[1]) +
               " v3=" + quoted(corner[2]) + "/>\n";
    }
    xml += "    </triangles>\n";
}

void put_object(std::string& xml, const saved_mesh& one, std::size_t body) {
    xml += "  <object id=" + quoted(object_number(body)) +
           " type=\"model\" name=" + quoted(one.name) + " pid=" + quoted(COLOURS) +
           " pindex=" + quoted(body) + ">\n   <mesh>\n";
    put_vertices(xml, one.mesh);
    put_triangles(xml, one.mesh);
    xml += "   </mesh>\n  </object>\n";
}

constexpr const char* XML_HEAD = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

std::string model_xml(const std::vector<saved_mesh>& meshes) {
    std::string xml = XML_HEAD;
    xml +=
        "<model unit=\"millimeter\" xml:lang=\"en-US\" "
        "xmlns=\"http://schemas.microsoft.com/3dmanufacturing/core/2015/02\">\n <resources>\n";
    put_colours(xml, meshes);
    for (std::size_t body = 0; body < meshes.size(); ++body) {
        put_object(xml, meshes[body], body);
    }
    xml += " </resources>\n <build>\n";
    for (std::size_t body = 0; body < meshes.size(); ++body) {
        xml += "  <item objectid=" + quoted(object_number(body)) + "/>\n";
    }
    return xml + " </build>\n</model>\n";
}

std::string content_types_xml() {
    return std::string(XML_HEAD) +
           "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">\n"
           " <Default Extension=\"rels\" "
           "ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>\n"
           " <Default Extension=\"model\" "
           "ContentType=\"application/vnd.ms-package.3dmanufacturing-3dmodel+xml\"/>\n"
           "</Types>\n";
}

std::string relationships_xml() {
    return std::string(XML_HEAD) +
           "<Relationships "
           "xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">\n"
           " <Relationship Id=\"rel0\" Target=\"/3D/3dmodel.model\" "
           "Type=\"http://schemas.microsoft.com/3dmanufacturing/2013/01/3dmodel\"/>\n"
           "</Relationships>\n";
}

}  // namespace

std::vector<saved_mesh> printed_meshes(const std::vector<saved_body>& bodies) {
    std::vector<saved_mesh> meshes;
    for (const saved_body& one : bodies) {
        if (const body* solid = std::get_if<body>(&one.shape)) {
            meshes.push_back({one.name, one.role, mesh_of(*solid, PRINTED)});
        }
    }
    return meshes;
}

std::string stl_bytes(const std::vector<saved_mesh>& meshes) {
    std::string bytes = "Rotors and porting, millimetres";
    bytes.resize(STL_HEAD, ' ');
    std::size_t count = 0;
    for (const saved_mesh& one : meshes) {
        count += one.mesh.triangles.size();
    }
    put_uint32(bytes, static_cast<std::uint32_t>(count));
    for (const saved_mesh& one : meshes) {
        for (const std::array<std::uint32_t, 3>& corner : one.mesh.triangles) {
            put_triangle(bytes, {one.mesh.points.at(corner[0]), one.mesh.points.at(corner[1]),
                                 one.mesh.points.at(corner[2])});
        }
    }
    return bytes;
}

std::string three_mf_bytes(const std::vector<saved_mesh>& meshes) {
    return zip_package({{"[Content_Types].xml", content_types_xml()},
                        {"_rels/.rels", relationships_xml()},
                        {"3D/3dmodel.model", model_xml(meshes)}});
}

}  // namespace kvt::builtin
