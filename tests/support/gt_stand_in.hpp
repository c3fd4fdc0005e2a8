// gt_stand_in: an installation of the simulation package in a temporary folder: a converter that
// checks what it gets, a model editor that notes how it was called, a library of fluids.
#pragma once

#include "base/path_text.hpp"
#include "support/environment_value.hpp"
#include "support/temporary_folder.hpp"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace kvt {

class gt_stand_in {
  public:
    gt_stand_in() {
        namespace fs = std::filesystem;
        const fs::path samples = fs::path(KVT_TEST_DATA) / "gtsuite";
        const fs::path library = home_ / "v2021/resrc/gtise";
        fs::create_directories(home_ / "bin");
        fs::create_directories(library);
        fs::copy_file(samples / "gemc", home_ / "bin/gemc");
        fs::copy_file(samples / "sample_fluids.gto", library / "b.gto");
        std::ofstream(library / "c.gto") << "later by its name";
        std::ofstream(home_ / "bin/gtise")
            << "#!/bin/sh\nprintf 'cwd=%s args=%s|%s\\n' \"$(pwd)\" \"$1\" \"$2\" > '"
            << home_.file("editor.new") << "'\nmv '" << home_.file("editor.new") << "' '"
            << home_.file("editor.log") << "'\n";
        for (const char* tool : {"bin/gemc", "bin/gtise"}) {
            fs::permissions(home_ / tool, fs::perms::owner_all);
        }
    }

    const std::filesystem::path& home() const { return home_.path(); }
    environment_value& home_variable() { return variable_; }
    /// What the converter does: "1" fails, "txt" leaves the model alone, "" works.
    void fail(const std::string& how) { fail_.set(how); }
    void delay(const std::string& seconds) { delay_.set(seconds); }

    /// The calls of the converter, a line each.
    std::string converter_log() const { return text_of("converter.log"); }
    /// The call of the model editor; waits a little for it, since nobody else does.
    std::string editor_log() const {
        for (int i = 0; i < 500 && !std::filesystem::exists(home_ / "editor.log"); ++i) {
            static_cast<void>(std::system("sleep 0.02"));
        }
        return text_of("editor.log");
    }
    bool has_opened_a_model() const { return std::filesystem::exists(home_ / "editor.log"); }

  private:
    std::string text_of(const std::string& name) const {
        std::ifstream file(home_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    temporary_folder home_;
    environment_value variable_{"GTIHOME", utf8_of_path(home_.path())};
    environment_value sample_{"GEMC_SAMPLE",
                              utf8_of_path(std::filesystem::path(KVT_TEST_DATA) / "gtsuite")};
    environment_value log_{"GEMC_LOG", home_.file("converter.log")};
    environment_value fail_{"GEMC_FAIL", ""};
    environment_value delay_{"GEMC_DELAY", ""};
};

}  // namespace kvt
