#include "cad/builtin/kernel_files.hpp"

#include "cad/builtin/kernel_shapes.hpp"

#include <Quantity_Color.hxx>

#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <STEPControl_Writer.hxx>
#include <StepAP214.hxx>
#include <StepAP214_Protocol.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_StepWriter.hxx>
#include <TCollection_ExtendedString.hxx>
#include <TDF_Label.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopoDS_Compound.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <cstdint>
#include <limits>
#include <sstream>

namespace kvt::builtin {

namespace {

const TopoDS_Shape& kernel_shape(const saved_body& one) {
    if (const body* solid = std::get_if<body>(&one.shape)) {
        return solid->shape().kernel;
    }
    return std::get<wire>(one.shape).shape().kernel.get();
}

Quantity_Color kernel_colour(body_role role) {
    const std::uint32_t colour = saved_colour(role);
    const auto part = [colour](int shift) { return ((colour >> shift) & 0xFF) / 255.0; };
    return {part(16), part(8), part(0), Quantity_TOC_sRGB};
}

/// A document of the kernel's own with names and colours, for one file.
class coloured_document {
  public:
    coloured_document() {
        XCAFApp_Application::GetApplication()->NewDocument("MDTV-XCAF", document_);
    }
    ~coloured_document() { XCAFApp_Application::GetApplication()->Close(document_); }
    coloured_document(const coloured_document&) = delete;
    coloured_document& operator=(const coloured_document&) = delete;

    void add(const saved_body& one) {
        const TDF_Label shape = XCAFDoc_DocumentTool::ShapeTool(document_->Main())
                                    ->AddShape(kernel_shape(one), Standard_False);
        TDataStd_Name::Set(shape, TCollection_ExtendedString(one.name.c_str(), Standard_True));
        const bool is_solid = std::holds_alternative<body>(one.shape);
        XCAFDoc_DocumentTool::ColorTool(document_->Main())
            ->SetColor(shape, kernel_colour(one.role),
                       is_solid ? XCAFDoc_ColorSurf : XCAFDoc_ColorCurv);
    }
    const Handle(TDocStd_Document) & kernel() const { return document_; }

  private:
    Handle(TDocStd_Document) document_;
};

/// The kernel tells its steps on standard output.
void quiet_kernel() {
    Message::DefaultMessenger()->RemovePrinters(STANDARD_TYPE(Message_Printer));
}

std::string text_of(const Handle(StepData_StepModel) & model) {
    StepData_StepWriter text(model);
    text.SendModel(StepAP214::Protocol());
    std::ostringstream out;
    text.Print(out);
    return out.str();
}

}  // namespace

std::string step_bytes(const std::vector<saved_body>& bodies) {
    return through_kernel([&] {
        quiet_kernel();
        coloured_document document;
        for (const saved_body& one : bodies) {
            document.add(one);
        }
        STEPCAFControl_Writer writer;
        // Unknown, and ignored, before the first writer is there.
        Interface_Static::SetCVal("write.step.schema", "AP214IS");
        Interface_Static::SetCVal("write.step.unit", "MM");
        writer.SetColorMode(true);
        writer.SetNameMode(true);
        if (!writer.Transfer(document.kernel(), STEPControl_AsIs)) {
            refuse("bodies that STEP can't hold");
        }
        return text_of(writer.ChangeWriter().Model());
    });
}

std::string brep_bytes(const std::vector<saved_body>& bodies) {
    return through_kernel([&] {
        TopoDS_Compound all;
        const BRep_Builder builder;
        builder.MakeCompound(all);
        for (const saved_body& one : bodies) {
            builder.Add(all, kernel_shape(one));
        }
        std::ostringstream out;
        // Into a text of one's own the kernel writes as many digits as that asks for.
        out.precision(std::numeric_limits<double>::max_digits10);
        BRepTools::Write(all, out, Standard_False, Standard_False, TopTools_FormatVersion_CURRENT);
        return out.str();
    });
}

}  // namespace kvt::builtin
