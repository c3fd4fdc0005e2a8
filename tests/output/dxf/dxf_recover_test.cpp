// DXF files through an independent reader: no errors, nothing to fix, one polyline with the right
// vertices.
#include "base/constants.hpp"
#include "support/cnc_design.hpp"
#include "support/dxf_reader.hpp"
#include "support/random_design.hpp"
#include "support/step_reader.hpp"
#include "support/temporary_folder.hpp"

#include <cstdlib>
#include <gtest/gtest.h>
#include <sstream>

namespace kvt {
namespace {

/// What tests/output/read_dxf.py prints about a file.
struct recovered_file {
    int errors = -1, fixes = -1, polylines = -1;
    std::size_t vertices = 0;
    point2 first, last;
    double area = 0.0;
};

std::vector<recovered_file> recovered(const std::vector<std::string>& paths,
                                      const temporary_folder& folder) {
    std::string command = std::string(KVT_PYTHON) + " " + KVT_SCRIPT;
    for (const std::string& path : paths) {
        command += " '" + path + "'";
    }
    const std::string printed = folder.file("printed.txt");
    EXPECT_EQ(std::system((command + " > '" + printed + "'").c_str()), 0);
    std::istringstream lines(read_file(printed));
    std::vector<recovered_file> files;
    recovered_file file;
    while (lines >> file.errors >> file.fixes >> file.polylines >> file.vertices >> file.first.x >>
           file.first.y >> file.last.x >> file.last.y >> file.area) {
        files.push_back(file);
    }
    return files;
}

class dxf_recover : public testing::TestWithParam<const char*> {};

TEST_P(dxf_recover, finds_no_errors_and_the_polyline_of_each_file) {
    random_values random(20211103);
    const std::string name = GetParam();
    const program kavetta = name == "random" ? random_design(random) : design_with_ports(name);
    const temporary_folder folder;
    std::vector<std::string> paths;
    std::vector<dxf_content> written;
    for (const written_file& file : files_of(file_group::dxf)) {
        const std::string bytes = dxf_bytes(kavetta, file.name);
        paths.push_back(folder.file(file_name(file)));
        write_file(paths.back(), bytes);
        written.push_back(read_dxf(bytes));
    }
    const std::vector<recovered_file> files = recovered(paths, folder);
    ASSERT_EQ(files.size(), paths.size());
    for (std::size_t i = 0; i < files.size(); ++i) {
        SCOPED_TRACE(paths[i]);
        const std::vector<point2>& vertices = written[i].vertices;
        EXPECT_EQ(files[i].errors, 0);
        EXPECT_EQ(files[i].fixes, 0);
        EXPECT_EQ(files[i].polylines, 1);
        EXPECT_EQ(files[i].vertices, vertices.size());
        EXPECT_EQ(files[i].first, vertices.front());
        EXPECT_EQ(files[i].last, vertices.back());
        EXPECT_NEAR(files[i].area, signed_area(vertices), 1e-9 * std::abs(files[i].area));
    }
}

INSTANTIATE_TEST_SUITE_P(designs, dxf_recover,
                         testing::Values("n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                                         "n07_inch_hydraulic", "n09_crank_oil", "random"),
                         [](const auto& design) { return std::string(design.param); });

}  // namespace
}  // namespace kvt
