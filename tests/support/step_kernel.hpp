// STEP files read by a solid-modelling kernel that may repair nothing.
#pragma once

#include "base/whole_file.hpp"
#include "support/temporary_folder.hpp"

#include <BRepCheck_Analyzer.hxx>
#include <BRep_Tool.hxx>
#include <IFSelect_ReturnStatus.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <STEPControl_Reader.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedDataMapOfShapeListOfShape.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Solid.hxx>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace kvt {

/// The reader runs a sequence of repairs over what it read, a default one where the settings name
/// none. So they name one whose only step is unknown.
inline void switch_repair_off() {
    Interface_Static::SetCVal("read.step.resource.name", "");  // take the settings, not a file
    Interface_Static::Init("XSTEP", "norepair.exec.op", 't', "nothing");
    Interface_Static::SetCVal("read.step.sequence", "norepair");
}

/// Reads the bodies of a file as they stand.
inline std::vector<TopoDS_Solid> solids_of(const std::string& bytes) {
    const temporary_folder folder;
    const std::string path = folder.file("body.stp");
    write_file(path, bytes);
    Message::DefaultMessenger()->ChangePrinters().Clear();  // it prints to standard output
    STEPControl_Reader reader;
    switch_repair_off();
    EXPECT_EQ(reader.ReadFile(path.c_str()), IFSelect_RetDone);
    EXPECT_GT(reader.TransferRoots(), 0);
    std::vector<TopoDS_Solid> solids;
    for (TopExp_Explorer at(reader.OneShape(), TopAbs_SOLID); at.More(); at.Next()) {
        solids.push_back(TopoDS::Solid(at.Current()));
    }
    return solids;
}

/// Every edge of a closed solid belongs to two faces.
inline void expect_closed(const TopoDS_Solid& solid, int faces) {
    EXPECT_TRUE(BRepCheck_Analyzer(solid).IsValid());
    TopExp_Explorer shells(solid, TopAbs_SHELL);
    ASSERT_TRUE(shells.More());
    EXPECT_TRUE(BRep_Tool::IsClosed(shells.Current()));
    shells.Next();
    EXPECT_FALSE(shells.More());
    TopTools_IndexedDataMapOfShapeListOfShape owners;
    TopExp::MapShapesAndAncestors(solid, TopAbs_EDGE, TopAbs_FACE, owners);
    for (int i = 1; i <= owners.Extent(); ++i) {
        EXPECT_EQ(owners(i).Extent(), 2);
    }
    TopTools_IndexedMapOfShape found;
    TopExp::MapShapes(solid, TopAbs_FACE, found);
    EXPECT_EQ(found.Extent(), faces);
}

}  // namespace kvt
