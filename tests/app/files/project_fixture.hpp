// A program with a folder and settings of its own, and a user with a script, for tests of the
// project commands.
#pragma once

#include "app/program.hpp"
#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "support/scripted_user.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace kvt {

class project_test : public testing::Test {
  protected:
    project_test() {
        kavetta.folder = folder.path();
        std::filesystem::create_directories(folder.path() / "projects");
        write_settings_lines({"", "", "", "", "1", "manual", "##"});
    }

    void write_settings_lines(const std::vector<std::string>& lines) {
        write_file(folder.path() / "KVT.ini", joined(lines));
    }

    static std::string joined(const std::vector<std::string>& lines) {
        text_lines text;
        for (const std::string& line : lines) {
            text.line(line);
        }
        return text.bytes();
    }

    /// 59 lines of a valid project; change what the test is about.
    static std::vector<std::string> project_lines() {
        return {"C:\\p\\pump.KVT",
                "pump",
                "mm",
                "6",
                "18",
                "10",
                "52",
                "7",
                "0.12",
                "2.5",
                "2.85",
                "14.15",
                "7.5",
                "4",
                "1.5",
                "7.1234",
                " 1 ",
                "t.cnc",
                "i.cnc",
                "xyo.cnc",
                "ito.cnc",
                "oto.cnc",
                "o.cnc",
                "0.06",
                "14",
                "12",
                "150",
                "146",
                "16",
                "14.5",
                "148",
                "144",
                " 0 ",
                " 0 ",
                "1.25",
                "860",
                "12.6",
                "0.5",
                "600",
                "6000",
                "1.1",
                "6.1",
                "140",
                "141",
                "0.28",
                "0.29",
                "0.08",
                " 1 ",
                "1.4",
                " 1 ",
                "12.1",
                "1.6",
                "1.7",
                "14.6",
                "22.4",
                "14.7",
                "22.2",
                "22.9",
                "0.15"};
    }

    std::string project_file(const std::string& name, const std::vector<std::string>& lines) const {
        const std::string path = folder.file("projects/" + name);
        write_file(path_of_utf8(path), joined(lines));
        return path;
    }

    /// Line n (1-based) of a file, without its end; "(none)" behind the last line.
    static std::string line_of(const std::string& path, std::size_t n) {
        const std::vector<std::string> lines = split_lines(read_file(path_of_utf8(path)));
        return n <= lines.size() ? lines[n - 1] : "(none)";
    }

    temporary_folder folder;
    program kavetta;
    scripted_user person;
};

}  // namespace kvt
