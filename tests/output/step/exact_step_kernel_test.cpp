// Exact STEP files through a solid-modelling kernel with its repair switched off: valid closed
// solids of the exact size, the inner rotor's edges along the exact profile, names and colours.
#include "exact/exact_pair.hpp"
#include "exact/pump_bodies.hpp"
#include "support/cnc_design.hpp"
#include "support/random_design.hpp"
#include "support/step_kernel.hpp"
#include "support/undercut_design.hpp"

#include <Quantity_Color.hxx>

#include <BRepAdaptor_Curve.hxx>
#include <BRepClass3d_SolidClassifier.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <algorithm>
#include <cmath>
#include <numbers>

namespace kvt {
namespace {

/// KVT_PROPERTY_SCALE=5 takes 200.
constexpr int DESIGNS = 40;
constexpr int PROFILE_PLACES = 20000;
constexpr double PROFILE_TOLERANCE_MM = 2e-4;
/// Of the volume of a body of arcs, relative.
constexpr double ARC_TOLERANCE = 1e-6;

std::string exact_bytes(const program& kavetta, std::string_view name) {
    return file_bytes(kavetta, file_group::step_exact, name, "pump.stp");
}

/// By adaptive integration; the ordinary one misses splines by parts of a thousand.
double volume_of(const TopoDS_Solid& solid) {
    GProp_GProps properties;
    BRepGProp::VolumePropertiesGK(solid, properties, 1e-7);
    return properties.Mass();
}

double volume_of(const pump_body& body) {
    return (enclosed_area(body.outline) + enclosed_area(body.hole)) * (body.top - body.bottom);
}

int faces_of(const pump_body& body) {
    return static_cast<int>(body.outline.size() + body.hole.size()) + 2;
}

/// Beyond the bodies there is no material, and the volume is positive: right side out.
void expect_right_side_out(const TopoDS_Solid& solid) {
    BRepClass3d_SolidClassifier classifier(solid);
    classifier.PerformInfinitePoint(1e-7);
    EXPECT_EQ(classifier.State(), TopAbs_OUT);
    EXPECT_GT(volume_of(solid), 0.0);
}

void expect_body(const TopoDS_Solid& solid, const pump_body& body) {
    SCOPED_TRACE(std::string(body.name));
    expect_closed(solid, faces_of(body));
    expect_right_side_out(solid);
    const double volume = volume_of(body);
    EXPECT_NEAR(volume_of(solid), volume, ARC_TOLERANCE * volume);
}

/// The splines at z = 0, in the order of the file.
std::vector<BRepAdaptor_Curve> bottom_splines(const TopoDS_Solid& solid) {
    std::vector<BRepAdaptor_Curve> splines;
    TopTools_IndexedMapOfShape edges;
    TopExp::MapShapes(solid, TopAbs_EDGE, edges);
    for (int i = 1; i <= edges.Extent(); ++i) {
        const BRepAdaptor_Curve curve(TopoDS::Edge(edges(i)));
        if (curve.GetType() == GeomAbs_BSplineCurve &&
            std::abs(curve.Value(curve.FirstParameter()).Z()) < 1e-9) {
            splines.push_back(curve);
        }
    }
    return splines;
}

/// The distance of a point from a curve near a parameter, which steps to the foot of the distance.
double distance_near(const BRepAdaptor_Curve& curve, double& t, const point2& place) {
    double least = 1e9;
    for (int step = 0; step < 4; ++step) {
        gp_Pnt point;
        gp_Vec along;
        t = std::clamp(t, curve.FirstParameter(), curve.LastParameter());
        curve.D1(t, point, along);
        const gp_Vec off(point, gp_Pnt(place.x, place.y, point.Z()));
        least = std::min(least, off.Magnitude());
        t += off.Dot(along) / along.SquareMagnitude();
    }
    return least;
}

/// The spline of lobe k begins at the root that stands at k times the angle of a lobe.
std::size_t lobe_of(const BRepAdaptor_Curve& curve, double lobe_angle) {
    const gp_Pnt start = curve.Value(curve.FirstParameter());
    const double angle = std::atan2(start.Y(), start.X());
    const auto count = static_cast<long>(std::round(2.0 * std::numbers::pi / lobe_angle));
    return static_cast<std::size_t>((std::lround(angle / lobe_angle) + count) % count);
}

/// Points of the exact profile lie on the kernel's edges. They come from the contacts of the pair,
/// not from the curve that the file was made of.
void expect_profile(const TopoDS_Solid& solid, const design_params& design) {
    const exact_pair pair = pair_of_inner_rotor(design);
    const double inner_lobes = pair.lobes - 1;
    const double lobe_angle = 2.0 * std::numbers::pi / inner_lobes;
    const std::vector<BRepAdaptor_Curve> splines = bottom_splines(solid);
    ASSERT_EQ(splines.size(), static_cast<std::size_t>(pair.lobes - 1));
    std::vector<const BRepAdaptor_Curve*> of_lobe(splines.size());
    for (const BRepAdaptor_Curve& spline : splines) {
        of_lobe.at(lobe_of(spline, lobe_angle)) = &spline;
    }
    double largest = 0.0;
    double foot = 0.0;
    std::size_t lobe_before = 0;
    for (int i = 0; i < PROFILE_PLACES; ++i) {
        const double t = 2.0 * std::numbers::pi * (i + 0.5) / PROFILE_PLACES;
        const auto lobe = static_cast<std::size_t>(t / lobe_angle);
        foot = lobe == lobe_before ? foot : 0.0;
        lobe_before = lobe;
        // The lobe's contact runs backwards along the profile, N - 1 times as fast.
        const point2 place = inner_profile_point(pair, -t * inner_lobes);
        largest = std::max(largest, distance_near(*of_lobe.at(lobe), foot, place));
    }
    EXPECT_LT(largest, PROFILE_TOLERANCE_MM);
}

void expect_files(const program& kavetta) {
    const design_params& design = kavetta.design_params;
    const auto inner = solids_of(exact_bytes(kavetta, "inner"));
    ASSERT_EQ(inner.size(), 1U);
    expect_body(inner[0], inner_rotor_body(design));
    expect_profile(inner[0], design);
    const auto outer = solids_of(exact_bytes(kavetta, "outer"));
    ASSERT_EQ(outer.size(), 1U);
    expect_body(outer[0], outer_rotor_body(design));
    const auto assembly = solids_of(exact_bytes(kavetta, "assembly"));
    EXPECT_EQ(assembly.size(), 2U);
    const auto ports = solids_of(exact_bytes(kavetta, "ports"));
    const auto bodies = porting_bodies(design, kavetta.port_params, kavetta.entries);
    ASSERT_EQ(ports.size(), bodies.size());
    for (std::size_t i = 0; i < ports.size(); ++i) {
        expect_body(ports[i], bodies[i]);
    }
}

TEST(exact_step_in_the_kernel, has_sound_bodies_of_the_exact_size_for_random_designs) {
    random_values random;
    for (int i = 0; i < property_count(DESIGNS); ++i) {
        SCOPED_TRACE(i);
        expect_files(random_design(random));
        if (HasFatalFailure() || HasNonfatalFailure()) {
            return;
        }
    }
}

class exact_step_of : public testing::TestWithParam<const char*> {};

TEST_P(exact_step_of, a_design_is_sound) {
    expect_files(design_with_ports(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(designs, exact_step_of,
                         testing::Values("n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                                         "n07_inch_hydraulic", "n09_crank_oil"),
                         [](const auto& design) { return std::string(design.param); });

TEST(exact_step_in_the_kernel, joins_lobes_of_more_than_half_a_turn) {
    program kavetta = opened_design("n07_engine_oil_groove");
    scripted_user person;
    type_undercut_rotors(kavetta.entries);
    calculate_profiles(kavetta, person);
    const pump_body body = outer_rotor_body(kavetta.design_params);
    EXPECT_TRUE(std::ranges::any_of(body.hole, [](const exact_piece& piece) {
        return std::abs(piece.sweep()) > std::numbers::pi;
    }));
    const auto solids = solids_of(exact_bytes(kavetta, "outer"));
    ASSERT_EQ(solids.size(), 1U);
    expect_body(solids[0], body);
}

std::string name_at(const TDF_Label& label) {
    Handle(TDataStd_Name) name;
    if (!label.FindAttribute(TDataStd_Name::GetID(), name)) {
        return "";
    }
    const TCollection_ExtendedString& text = name->Get();
    std::string result(static_cast<std::size_t>(text.LengthOfCString()), '\0');
    Standard_PCharacter bytes = result.data();
    text.ToUTF8CString(bytes);
    return result;
}

TEST(exact_step_in_the_kernel, carries_names_and_colours_as_an_assembly) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    kavetta.app_state.project_name = "\xC3\x96lpumpe 'A'";
    const temporary_folder folder;
    write_file(folder.file("assembly.stp"), exact_bytes(kavetta, "assembly"));
    Handle(TDocStd_Document) document = new TDocStd_Document("XmlXCAF");
    STEPCAFControl_Reader reader;
    ASSERT_EQ(reader.ReadFile(folder.file("assembly.stp").c_str()), IFSelect_RetDone);
    ASSERT_TRUE(reader.Transfer(document));
    const Handle(XCAFDoc_ShapeTool) shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    TDF_LabelSequence roots, parts;
    shapes->GetFreeShapes(roots);
    ASSERT_EQ(roots.Length(), 1);
    EXPECT_EQ(name_at(roots.Value(1)), "\xC3\x96lpumpe 'A' Rotors");
    ASSERT_TRUE(XCAFDoc_ShapeTool::GetComponents(roots.Value(1), parts));
    ASSERT_EQ(parts.Length(), 2);
    const Handle(XCAFDoc_ColorTool) colours = XCAFDoc_DocumentTool::ColorTool(document->Main());
    for (int i = 1; i <= 2; ++i) {
        EXPECT_EQ(name_at(parts.Value(i)), i == 1 ? "Inner Rotor" : "Outer Rotor");
        TDF_Label part;
        ASSERT_TRUE(XCAFDoc_ShapeTool::GetReferredShape(parts.Value(i), part));
        EXPECT_EQ(name_at(part), i == 1 ? "Inner Rotor" : "Outer Rotor");
        Quantity_Color colour;
        EXPECT_TRUE(
            colours->GetColor(XCAFDoc_ShapeTool::GetShape(part), XCAFDoc_ColorSurf, colour) ||
            colours->GetColor(XCAFDoc_ShapeTool::GetShape(part), XCAFDoc_ColorGen, colour));
    }
}

}  // namespace
}  // namespace kvt
