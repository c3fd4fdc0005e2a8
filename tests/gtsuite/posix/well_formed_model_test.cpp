// The model as a program that reads such documents sees it.
#include "gtsuite/model_passes.hpp"
#include "gtsuite/pass_case.hpp"
#include "support/temporary_folder.hpp"

#include <cstdlib>

namespace kvt {
namespace {

/// Whether an independent reader takes the bytes for an XML document.
bool is_well_formed(const std::string& bytes) {
    const temporary_folder folder;
    std::ofstream(folder / "model.gtm", std::ios::binary) << bytes;
    const std::string command = std::string(KVT_PYTHON) +
                                " -c 'import sys, xml.dom.minidom as m; m.parse(sys.argv[1])' '" +
                                folder.file("model.gtm") + "' 2>/dev/null";
    return std::system(command.c_str()) == 0;
}

std::string passed_bytes(const std::string& bytes, const std::string& fluid) {
    pump_values pump = hand_made_pump();
    pump.fluid = fluid;
    model_text text = read_model_text(bytes);
    run_model_passes(text, pump);
    return model_bytes(text);
}

TEST(model_passes, leave_a_well_formed_document) {
    const std::string sample = gt_sample("sample_KVT_GT_conv.gtm");
    EXPECT_TRUE(is_well_formed(sample));
    EXPECT_TRUE(is_well_formed(passed_bytes(sample, "oil_A")));
    EXPECT_TRUE(is_well_formed(passed_bytes("\xEF\xBB\xBF" + sample, "oil_A")));
    EXPECT_FALSE(is_well_formed("<gtm><a></gtm>")) << "the reader reads";
}

TEST(model_passes, leave_one_with_any_name_of_a_fluid_in_any_encoding) {
    std::string sample = gt_sample("sample_KVT_GT_conv.gtm");
    const std::string fluid = "Öl \"5 & 6\"";
    EXPECT_TRUE(is_well_formed(passed_bytes(sample, fluid)));
    sample.replace(sample.find("UTF-8"), 5, "ISO-8859-1");
    EXPECT_TRUE(is_well_formed(passed_bytes(sample, fluid)));
}

}  // namespace
}  // namespace kvt
