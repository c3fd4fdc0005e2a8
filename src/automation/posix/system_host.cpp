#include "automation/system_host.hpp"

namespace kvt::automation {

std::unique_ptr<host> system_host() {
    return nullptr;
}

}  // namespace kvt::automation
