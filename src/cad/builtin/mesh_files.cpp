#include "cad/builtin/mesh_files.hpp"

#include "base/fixed_number.hpp"
#include "cad/builtin/body_mesher.hpp"
#include "cad/builtin/zip_package.hpp"
#include "geometry/binary_stl.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>

namespace kvt::builtin {

namespace {

constexpr int DECIMALS = 6;

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
    std::vector<std::reference_wrapper<const body_mesh>> surfaces;
    for (const saved_mesh& one : meshes) {
        surfaces.emplace_back(one.mesh);
    }
    return binary_stl("Rotors and porting, millimetres", surfaces);
}

std::string three_mf_bytes(const std::vector<saved_mesh>& meshes) {
    return zip_package({{"[Content_Types].xml", content_types_xml()},
                        {"_rels/.rels", relationships_xml()},
                        {"3D/3dmodel.model", model_xml(meshes)}});
}

}  // namespace kvt::builtin
