// study_problem: what is wrong with what a study was asked to do.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// Thrown before anything is calculated. what() is the text in English.
class study_problem : public std::runtime_error {
  public:
    /// A row of the texts of "study", in which %1, %2 .. stand for the parts.
    explicit study_problem(std::string_view row, std::vector<std::string> parts = {});

    std::string text(std::int16_t language) const;

  private:
    std::string row_;
    std::vector<std::string> parts_;
};

}  // namespace kvt
