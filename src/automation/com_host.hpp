// com_host: the programs of this machine, called by late binding with names only. Windows only.
#pragma once

#include "automation/host.hpp"

#include <memory>

namespace kvt::automation {

/// Every call of its objects must come from the thread that made the host. A program that is busy
/// is asked again for 30 seconds. Objects may outlive the host.
std::unique_ptr<host> com_host();

}  // namespace kvt::automation
