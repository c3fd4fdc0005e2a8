// A design with a performance whose files are asked for, and a folder for them.
#pragma once

#include "app/files/performance_files.hpp"
#include "support/performed_design.hpp"
#include "support/temporary_folder.hpp"

#include <deque>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

using texts = std::vector<std::string>;

inline const std::string NOT_POSSIBLE =
    "An error has occurred, it is possible Excel is not installed on this PC. Would you like to "
    "create a text file of the data instead?";

struct performance_files : testing::Test {
    program kavetta = performed_design("n07_engine_oil_groove");
    scripted_user person;
    temporary_folder folder;

    void cancel_all() { person.files = std::deque<std::optional<std::string>>(5); }
    texts titles() const {
        texts all;
        for (const file_dialog& dialog : person.dialogs) {
            all.push_back(dialog.title);
        }
        return all;
    }
    std::size_t files_there() const {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(folder.path()), {}));
    }
};

}  // namespace kvt
