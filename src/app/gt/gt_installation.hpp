// The installed simulation package: where it is, its tools, its library of fluids.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

namespace kvt {

/// The versions that a model can be made for.
inline constexpr int FIRST_GT_VERSION = 2018;
inline constexpr int LAST_GT_VERSION = 2021;

/// The folder of the tools, $GTIHOME/bin. Throws path_not_found without GTIHOME.
std::filesystem::path gt_tools_folder();

enum class gt_tool { converter, editor };

/// The converter or the model editor in the folder of the tools: the first of its names that can
/// be executed. Throws file_not_found without one.
std::filesystem::path find_gt_tool(gt_tool tool);

/// The library of objects of a version: the first .gto file, by name, of its folder. Nothing
/// without one, without the folder or without GTIHOME.
std::optional<std::filesystem::path> gt_fluids_file(int gt_version);

}  // namespace kvt
