// recorder_host: a host behind which no program stands. It answers every call and writes it down,
// one line a call. Source: docs/file-formats.md, "Automation log".
#pragma once

#include "automation/host.hpp"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kvt::automation {

enum class call_kind { running, create, get, run, put };

/// A call as it was made. Objects have the numbers of the log, from 1 in order of birth.
struct recorded_call {
    call_kind kind = call_kind::get;
    std::size_t object = 0;             ///< whose member was called; 0 for running and create
    std::string name;                   ///< of the member, or of the class
    values arguments;                   ///< of a put: the new value
    std::vector<std::size_t> answered;  ///< the object, or the elements of an array
    bool answers_array = false;
    std::int32_t error = 0;  ///< number of the error that was answered instead
};

enum class log_length { shortened, full };

class recorder_host : public host {
  public:
    recorder_host();
    ~recorder_host() override;

    /// No program runs; create answers.
    object_ref running(std::string_view class_name) override;
    object_ref create(std::string_view class_name) override;

    /// The call of this number, counted from 1, answers an error instead, once.
    void fail_call(std::size_t call, std::int32_t number);

    const std::vector<recorded_call>& calls() const;
    /// The lines of all calls, each with "\n". Shortened: of arrays with more than 12 elements and
    /// of more than 12 like calls one after the other the first, the last, their count and sum.
    std::string log(log_length length = log_length::shortened) const;

    /// The number of one of this host's objects; 0 for null or another host's.
    static std::size_t number_of(const object_ref& one);

    class record;

  private:
    std::shared_ptr<record> record_;
};

}  // namespace kvt::automation
