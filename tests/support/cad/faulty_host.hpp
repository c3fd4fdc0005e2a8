// A host in front of another one, which answers an error to one call of a member, once.
#pragma once

#include "automation/host.hpp"

#include <cstdint>
#include <memory>
#include <set>
#include <string>

namespace kvt {

/// What the objects of the host behind it were asked, and what is to fail.
struct watched_calls {
    std::string failing;  ///< a member; empty: none
    std::int32_t error = 0;
    int calls_before = 0;  ///< of that member that don't fail
    bool has_failed = false;
    std::set<std::string> members;

    /// Notes a call; throws automation_error for the first one of the failing member, or for that
    /// after calls_before of them.
    void pass(const std::string& member);
};

class faulty_host : public automation::host {
  public:
    explicit faulty_host(automation::host& behind) : behind_(behind) {}

    automation::object_ref running(std::string_view class_name) override;
    automation::object_ref create(std::string_view class_name) override;

    std::shared_ptr<watched_calls> calls = std::make_shared<watched_calls>();

  private:
    automation::host& behind_;
};

}  // namespace kvt
