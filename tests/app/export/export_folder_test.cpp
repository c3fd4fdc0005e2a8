// Tests of what is told about the files of a folder.
#include "app/export/export_folder.hpp"

#include "core/app_state.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>
#include <sstream>

namespace kvt {
namespace {

struct export_folder_test : testing::Test {
    temporary_folder place;
    std::ostringstream out, err;

    void write(export_folder& folder, const char* name) {
        folder.write(name, [](text_lines& text) {
            text.line("one");
            throw run_time_error(failure::division_by_zero);
        });
    }
};

TEST_F(export_folder_test, calls_a_file_incomplete_that_ends_where_its_writer_failed) {
    export_folder folder(place.path(), ENGLISH, out, err);
    write(folder, "pump.dxf");
    EXPECT_EQ(err.str(),
              "Incomplete: " + place.file("pump.dxf") + ": Run-time error 11: Division by zero\n");
    EXPECT_EQ(read_file(place.file("pump.dxf")), "one\r\n");
    EXPECT_EQ(out.str(), "");
    EXPECT_FALSE(folder.complete());
}

TEST_F(export_folder_test, tells_and_keeps_the_paths_of_written_files) {
    export_folder folder(place.path(), ENGLISH, out, err);
    folder.write("pump.dxf", [](text_lines& text) { text.line("one"); });
    write(folder, "rest.dxf");
    EXPECT_EQ(folder.written(), std::vector<std::string>{place.file("pump.dxf")});
    EXPECT_EQ(out.str(), place.file("pump.dxf") + "\n");
}

TEST_F(export_folder_test, calls_it_so_in_german) {
    export_folder folder(place.path(), GERMAN, out, err);
    write(folder, "pump.dxf");
    EXPECT_EQ(err.str(), "Unvollständig: " + place.file("pump.dxf") +
                             ": Laufzeitfehler 11: Division durch Null\n");
}

TEST_F(export_folder_test, a_file_that_could_not_be_saved_is_none) {
    export_folder folder(place.path() / "none", ENGLISH, out, err);
    write(folder, "pump.dxf");
    EXPECT_EQ(err.str(), place.file("none/pump.dxf") + ": Run-time error 76: Path not found\n");
    EXPECT_FALSE(folder.complete());
}

}  // namespace
}  // namespace kvt
