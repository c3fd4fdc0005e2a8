// unprivileged: file permissions count in a test also where it runs as root.
#pragma once

#include <unistd.h>

namespace kvt {

/// While it lives, files are opened as a user who may not do everything.
class unprivileged {
  public:
    unprivileged() : was_root_(geteuid() == 0) {
        if (was_root_ && seteuid(NOBODY) != 0) {
            was_root_ = false;
        }
    }
    ~unprivileged() {
        if (was_root_ && seteuid(0) != 0) {
            _exit(1);
        }
    }
    unprivileged(const unprivileged&) = delete;
    unprivileged& operator=(const unprivileged&) = delete;

  private:
    static constexpr uid_t NOBODY = 65534;
    bool was_root_;
};

}  // namespace kvt
