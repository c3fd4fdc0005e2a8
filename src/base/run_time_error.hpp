// A run-time failure: a number, a text, thrown by the checked helpers and caught exactly where a
// command says so.
#pragma once

#include <stdexcept>
#include <string>

namespace kvt {

/// The numbers under which a run-time failure is reported to the user.
enum class failure : int {
    invalid_procedure_call = 5,
    overflow = 6,
    out_of_memory = 7,
    subscript_out_of_range = 9,
    division_by_zero = 11,
    type_mismatch = 13,
    bad_file_name = 52,
    file_not_found = 53,
    input_past_end = 62,
    path_file_access = 75,
    path_not_found = 76,
    invalid_property_value = 380,
    no_connection = 35754,
    request_failed = 35756,
    request_timed_out = 35761
};

/// What is the matter with a file, beyond the kind of failure.
struct file_fault {
    enum class reason {
        unknown,
        system,     ///< the system refused it; system_error says why
        too_large,  ///< more bytes than a file of its kind can have
        not_plain   ///< a device or a pipe in place of a file
    };
    reason why = reason::unknown;
    int system_error = 0;  ///< errno of reason::system
};

/// Thrown when a run fails: division by zero, root of a negative number, index past a bound,
/// overflow of a 16-bit counter, a text that is no number, a file that cannot be read or written.
class run_time_error : public std::runtime_error {
  public:
    /// detail is for developers: what failed and with which value; what() is "failure 11: detail".
    /// The user sees the number and failure_text.
    explicit run_time_error(failure kind, const std::string& detail = "", file_fault fault = {});

    failure kind() const { return kind_; }
    int number() const { return static_cast<int>(kind_); }
    const std::string& detail() const { return detail_; }
    file_fault fault() const { return fault_; }

  private:
    failure kind_;
    std::string detail_;
    file_fault fault_;
};

}  // namespace kvt
