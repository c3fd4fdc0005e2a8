// model_files: what the built-in modeller made, as files and as lines of a summary.
#pragma once

#include "app/export/export_folder.hpp"
#include "cad/model_store.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace kvt {

/// Writes the bodies as one file a word of SOLID_FILES: "<stem>.stp". A format that holds solids
/// only is left out for bodies that are curves all, with a note.
void write_model_files(model_store& store, const std::vector<model_body>& bodies,
                       const std::string& stem, const std::vector<std::string>& formats,
                       std::int16_t language, export_folder& folder);

/// "Inner Rotor: area 1021.530 mm^2, height 12.000 mm, volume 12258.360 mm^3, from (..) to (..)
/// mm", always mm, as in the files. A curve has its box alone.
std::string body_line(const model_body& body, std::int16_t language);

}  // namespace kvt
