// Writes project files of random designs for the tests of the Python module: sound ones, and hard
// ones with entries as nobody should type them. Usage: kvt_random_projects FOLDER COUNT
#include "app/files/project_entries.hpp"
#include "base/number_text.hpp"
#include "support/random_performance.hpp"
#include "support/undercut_design.hpp"

#include <array>
#include <string>

namespace kvt {
namespace {

constexpr std::array<const char*, 12> HARD_TEXTS = {
    "", "0", "-1", "1e300", "12,5", "abc", "0.01", "90", "179.9", "3.00001", " 7", "1e-9"};

/// Some boxes of a design get texts that a command refuses or stumbles over. Eccentricity and inner
/// root stay, as Open would not read the file.
void type_hard_texts(random_values& random, entries& boxes) {
    for (const entry_field& field : entry_fields()) {
        const bool is_typed =
            field.form == "Form1" || field.form == "portdes" || field.form == "Perffrm";
        const bool stays = field.kind == entry_kind::check || field.name == "ecc" ||
                           field.name == "radinnroot" || field.name == "volumereqd";
        if (is_typed && !stays && random.whole(0, 19) == 0) {
            boxes.*field.member =
                HARD_TEXTS[static_cast<std::size_t>(random.whole(0, HARD_TEXTS.size() - 1))];
        }
    }
}

void write_projects(const std::string& folder, int count) {
    random_values random;
    for (int i = 0; i < count; ++i) {
        const program sound = random_performance(random);
        write_entries(sound, folder + "/sound" + number_text(i) + ".KVT");
        program hard = sound;
        type_hard_texts(random, hard.entries);
        write_entries(hard, folder + "/hard" + number_text(i) + ".KVT");
    }
    program undercut = random_performance(random);
    type_undercut_rotors(undercut.entries);
    write_entries(undercut, folder + "/undercut.KVT");
}

}  // namespace
}  // namespace kvt

int main(int argc, char** argv) {
    if (argc != 3) {
        return 2;
    }
    kvt::write_projects(argv[1], static_cast<int>(kvt::number_of_text(argv[2])));
    return 0;
}
