// The STEP file of an inner rotor, written by Kavetta and by a solid-modelling kernel's own writer
// from a solid with the same two splines. Both write to a file; the kernel's solid is built
// beforehand.
#include "output/step/step_rotors.hpp"
#include "support/cnc_design.hpp"
#include "support/temporary_folder.hpp"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <Geom_BSplineCurve.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <STEPControl_Writer.hxx>
#include <TColStd_Array1OfInteger.hxx>
#include <TColStd_Array1OfReal.hxx>
#include <TColgp_Array1OfPnt.hxx>
#include <benchmark/benchmark.h>

namespace {

/// The clamped uniform cubic spline over points first .. last of a contour, where the point behind
/// the last is point 0.
TopoDS_Edge spline_edge(const std::vector<kvt::point2>& contour, std::size_t first,
                        std::size_t last) {
    const int count = static_cast<int>(last - first) + 1;
    TColgp_Array1OfPnt poles(1, count);
    for (int i = 0; i < count; ++i) {
        const kvt::point2& point = contour[(first + static_cast<std::size_t>(i)) % contour.size()];
        poles(i + 1) = gp_Pnt(point.x, point.y, 0.0);
    }
    TColStd_Array1OfReal knots(1, count - 2);
    TColStd_Array1OfInteger multiplicities(1, count - 2);
    for (int k = 1; k <= count - 2; ++k) {
        knots(k) = k;
        multiplicities(k) = k == 1 || k == count - 2 ? 4 : 1;
    }
    return BRepBuilderAPI_MakeEdge(new Geom_BSplineCurve(poles, knots, multiplicities, 3));
}

TopoDS_Shape rotor_solid(const kvt::program& kavetta) {
    const std::vector<kvt::point2> contour = kvt::inner_rotor_contour(kavetta.rotor_profiles);
    const std::size_t middle = contour.size() / 2;
    BRepBuilderAPI_MakeWire wire(spline_edge(contour, 0, middle),
                                 spline_edge(contour, middle, contour.size()));
    const gp_Vec up(0.0, 0.0, kavetta.design_params.thick);
    return BRepPrimAPI_MakePrism(BRepBuilderAPI_MakeFace(wire.Wire()), up).Shape();
}

void kavetta_writes_inner_rotor(benchmark::State& state) {
    const kvt::program kavetta = kvt::design_with_ports("n07_engine_oil_groove");
    const kvt::temporary_folder folder;
    const std::string path = folder.file("inner.stp");
    for (auto _ : state) {
        kvt::save_text(path, [&](kvt::text_lines& text) {
            kvt::find_file(kvt::file_group::step, "inner")
                ->write(kvt::source_of(kavetta, path), text);
        });
    }
}
BENCHMARK(kavetta_writes_inner_rotor)->Unit(benchmark::kMillisecond);

void kernel_writes_inner_rotor(benchmark::State& state) {
    const TopoDS_Shape solid = rotor_solid(kvt::design_with_ports("n07_engine_oil_groove"));
    const kvt::temporary_folder folder;
    const std::string path = folder.file("inner.stp");
    Message::DefaultMessenger()->ChangePrinters().Clear();  // it prints to standard output
    for (auto _ : state) {
        STEPControl_Writer writer;
        if (writer.Transfer(solid, STEPControl_AsIs) != IFSelect_RetDone ||
            writer.Write(path.c_str()) != IFSelect_RetDone) {
            state.SkipWithError("the kernel did not write the file");
        }
    }
}
BENCHMARK(kernel_writes_inner_rotor)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
