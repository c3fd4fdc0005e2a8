// STEP and BREP files, read again by the kernel.
#include "cad/builtin/kernel_files.hpp"

#include "base/whole_file.hpp"
#include "cad/builtin/kernel_shapes.hpp"
#include "support/cad/built_bodies.hpp"
#include "support/cad/kernel_counts.hpp"
#include "support/cad/model_designs.hpp"
#include "support/temporary_folder.hpp"

#include <Quantity_Color.hxx>

#include <BRepCheck_Analyzer.hxx>
#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <IFSelect_ReturnStatus.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <TCollection_AsciiString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

namespace kvt::builtin {
namespace {

struct read_product {
    std::string name;
    std::uint32_t colour = 0;
    TopoDS_Shape shape;
};

std::string name_of(const TDF_Label& label) {
    Handle(TDataStd_Name) name;
    return label.FindAttribute(TDataStd_Name::GetID(), name)
               ? std::string(TCollection_AsciiString(name->Get()).ToCString())
               : std::string();
}

std::uint32_t colour_of(const TDF_Label& label, const Handle(XCAFDoc_ColorTool) & colours) {
    Quantity_Color colour;
    std::uint32_t number = 0;
    if (colours->GetColor(label, XCAFDoc_ColorSurf, colour) ||
        colours->GetColor(label, XCAFDoc_ColorGen, colour)) {
        double red = 0.0, green = 0.0, blue = 0.0;
        colour.Values(red, green, blue, Quantity_TOC_sRGB);
        for (const double part : {red, green, blue}) {
            number = number * 256 + static_cast<std::uint32_t>(std::lround(part * 255.0));
        }
    }
    return number;
}

std::vector<read_product> products_in(const std::string& step) {
    const temporary_folder folder;
    const std::string path = folder.file("bodies.stp");
    write_file(path, step);
    Handle(TDocStd_Document) document;
    XCAFApp_Application::GetApplication()->NewDocument("MDTV-XCAF", document);
    STEPCAFControl_Reader reader;
    reader.SetNameMode(true);
    reader.SetColorMode(true);
    EXPECT_EQ(reader.ReadFile(path.c_str()), IFSelect_RetDone);
    EXPECT_TRUE(reader.Transfer(document));
    TDF_LabelSequence labels;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(labels);
    std::vector<read_product> products;
    for (const TDF_Label& label : labels) {
        products.push_back({name_of(label),
                            colour_of(label, XCAFDoc_DocumentTool::ColorTool(document->Main())),
                            XCAFDoc_ShapeTool::GetShape(label)});
    }
    XCAFApp_Application::GetApplication()->Close(document);
    return products;
}

void expect_same_body(const body& read, const body& written) {
    EXPECT_NEAR(read.contour_area() / written.contour_area(), 1.0, 1e-9);
    EXPECT_NEAR(read.height(), written.height(), 1e-6);
    const model_box a = read.box(), b = written.box();
    for (const double off :
         {a.lowest.x - b.lowest.x, a.lowest.y - b.lowest.y, a.lowest.z - b.lowest.z,
          a.highest.x - b.highest.x, a.highest.y - b.highest.y, a.highest.z - b.highest.z}) {
        EXPECT_NEAR(off, 0.0, 1e-6);
    }
}

class step_of : public testing::TestWithParam<program (*)()> {};

TEST_P(step_of, a_design_is_read_again_body_by_body) {
    const std::vector<saved_body> bodies = saved_bodies(built_assembly(GetParam()()));
    const std::vector<read_product> products = products_in(step_bytes(bodies));
    ASSERT_EQ(products.size(), bodies.size());
    for (std::size_t i = 0; i < bodies.size(); ++i) {
        SCOPED_TRACE(bodies[i].name);
        EXPECT_EQ(products[i].name, bodies[i].name);
        EXPECT_EQ(products[i].colour, saved_colour(bodies[i].role));
        EXPECT_EQ(count_of(products[i].shape, TopAbs_SOLID), 1);
        EXPECT_EQ(count_of(products[i].shape, TopAbs_SHELL), 1);
        EXPECT_TRUE(BRepCheck_Analyzer(products[i].shape).IsValid());
        expect_same_body(body_of(products[i].shape), std::get<body>(bodies[i].shape));
    }
}
INSTANTIATE_TEST_SUITE_P(of, step_of,
                         testing::Values(&double_sided_design, &inch_design_with_shadow_ports));

TEST(step_bytes, are_ap214_in_millimetres) {
    const std::string step =
        step_bytes({{"Pin", body_role::other, cylinder({0.0, 0.0, 0.0}, 1.0, 2.0)}});
    EXPECT_TRUE(step.starts_with("ISO-10303-21;"));
    EXPECT_NE(step.find("AUTOMOTIVE_DESIGN"), std::string::npos);
    EXPECT_NE(step.find("SI_UNIT(.MILLI.,.METRE.)"), std::string::npos);
    EXPECT_NE(step.find("PRODUCT('Pin'"), std::string::npos);
    EXPECT_TRUE(step.ends_with("END-ISO-10303-21;\n"));
}

TEST(step_bytes, print_nothing) {
    testing::internal::CaptureStdout();
    step_bytes({{"Pin", body_role::other, cylinder({0.0, 0.0, 0.0}, 1.0, 2.0)}});
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(step_bytes, hold_curves_too) {
    const std::vector<read_product> products = products_in(
        step_bytes({{"Trochoid", body_role::other,
                     closed_spline_wire({{0.0, 0.0}, {2.0, 0.0}, {2.0, 1.0}, {0.0, 1.0}})}}));
    ASSERT_EQ(products.size(), 1u);
    EXPECT_EQ(count_of(products[0].shape, TopAbs_SOLID), 0);
    EXPECT_EQ(count_of(products[0].shape, TopAbs_EDGE), 1);
}

TEST(brep_bytes, are_read_again_in_their_order) {
    const std::vector<saved_body> bodies = saved_bodies(built_assembly(double_sided_design()));
    std::istringstream text(brep_bytes(bodies));
    TopoDS_Shape all;
    BRepTools::Read(all, text, BRep_Builder());
    ASSERT_EQ(count_of(all, TopAbs_SOLID), static_cast<int>(bodies.size()));
    std::size_t i = 0;
    for (TopExp_Explorer at(all, TopAbs_SOLID); at.More(); at.Next(), ++i) {
        EXPECT_TRUE(BRepCheck_Analyzer(at.Current()).IsValid());
        expect_same_body(body_of(at.Current()), std::get<body>(bodies[i].shape));
    }
}

}  // namespace
}  // namespace kvt::builtin
