// The rights of an ordinary user, also for a test run by root.
#pragma once

#include <unistd.h>

#include <cstdlib>

namespace posix_adapter {

constexpr uid_t kNobody = 65534;

/// As long as it lives.
class AsOrdinaryUser {
public:
    AsOrdinaryUser() : root_(geteuid() == 0) { done_ = !root_ || seteuid(kNobody) == 0; }
    ~AsOrdinaryUser() {
        if (root_ && seteuid(0) != 0) {
            abort();
        }
    }
    AsOrdinaryUser(const AsOrdinaryUser&) = delete;
    AsOrdinaryUser& operator=(const AsOrdinaryUser&) = delete;
    bool Done() const { return done_; }

private:
    bool root_;
    bool done_ = false;
};

}  // namespace posix_adapter
