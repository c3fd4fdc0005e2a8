// The common clearing of results when another project takes the place of the present one.
#pragma once

namespace kvt {

class user;
struct program;

/// New and Open unload and disable slightly different sets.
enum class reset_kind { new_project, open_project };

void project_reset(program& kavetta, user& person, reset_kind kind);

}  // namespace kvt
