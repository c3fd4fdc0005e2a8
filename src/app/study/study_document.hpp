// study_document: a study as its window holds it and as it is kept in a file beside the project
// (.KVTstudy, JSON): what is varied, calculated and recorded, and the rows that came of it.
#pragma once

#include "app/study/design_search.hpp"
#include "app/study/study.hpp"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace kvt {

/// As it is written by its user; texts as kvt study takes them. A text that is none is told when
/// the study is made.
struct study_document {
    std::vector<std::string> varied;  ///< "ecc=2:3:0.05"
    bool searches = false;            ///< for the best designs, in place of a sample
    std::string sample = "latin:200";
    std::uint32_t seed = 0;
    std::vector<std::string> recorded;
    std::vector<std::string> conditions;  ///< of a search its limits
    std::vector<std::string> aims;        ///< "ripple:min"; a sample marks its front
    std::vector<std::string> targets;     ///< "capacity=7.5", of a search
    bool begins_with_assist = false;      ///< a search, with what the assist finds
    double step = 0.01;                   ///< of a search
    std::uint64_t budget = 1000;          ///< of a search
    std::vector<study_row> rows;

    friend bool operator==(const study_document& a, const study_document& b);
};

/// What is to be run. Throw study_problem for texts that are none.
study_plan plan_of_sample(const study_document& document);
search_plan plan_of_search(const study_document& document);
/// What the Design assist finds for the entries of a project, as texts of the variables; nothing
/// where it finds nothing.
std::optional<std::vector<std::string>> assisted_texts(
    const program& base, const std::vector<study_variable>& variables);
/// Of either kind: the quantities of its rows stand in the order of its recorded ones.
study study_of(const program& base, const study_document& document);

/// Throws run_time_error when the file can't be written.
void write_study(const std::filesystem::path& path, const program& base,
                 const study_document& document);
/// Throws run_time_error when the file can't be read, study_problem when it holds no study, or one
/// whose rows are not those of its quantities.
study_document read_study(const std::filesystem::path& path, const program& base);

/// Types the texts of a design into the entries of the variables, as its user would: one step of
/// the history.
void take_over_design(program& kavetta, user& person, const std::vector<study_variable>& variables,
                      const std::vector<std::string>& texts);

}  // namespace kvt
