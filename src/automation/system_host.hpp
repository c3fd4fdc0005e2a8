// system_host: the programs of this machine.
#pragma once

#include "automation/host.hpp"

#include <memory>

namespace kvt::automation {

/// com_host on Windows; null on a system whose programs can't be driven.
std::unique_ptr<host> system_host();

}  // namespace kvt::automation
