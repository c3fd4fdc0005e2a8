// A program that has gone the road of a sample design up to Calculate Performance.
#pragma once

#include "app/files/project_commands.hpp"
#include "app/files/project_fixture.hpp"
#include "app/stages/calculate_performance.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "support/expect_performance.hpp"

#include <filesystem>
#include <string>

namespace kvt {

class performance_test : public project_test {
  protected:
    /// Opens a sample design, calculates its profiles, designs its ports.
    void prepare(const std::string& name) {
        const std::filesystem::path design =
            std::filesystem::path(KVT_TEST_DATA) / "designs" / (name + ".KVT");
        const std::string path = folder.file("projects/" + name + ".KVT");
        std::filesystem::copy_file(design, path);
        load_project(kavetta, person, path);
        ASSERT_EQ(calculate_profiles(kavetta, person), run_end::ok);
        const ports_designed done = design_ports(kavetta, person);
        ASSERT_TRUE(done.inlet && done.outlet);
        ASSERT_TRUE(person.messages.empty());
        person.log.clear();
    }
};

}  // namespace kvt
