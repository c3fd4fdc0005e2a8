#include "automation/system_host.hpp"

#include "automation/com_host.hpp"

namespace kvt::automation {

std::unique_ptr<host> system_host() {
    return com_host();
}

}  // namespace kvt::automation
