#pragma once

#include <sys/types.h>
#include <unistd.h>
#include <QString>

namespace support {

/// While it lives, a folder belongs to a user without the administrator's powers, and the program runs as his.
class OrdinaryFamily {
public:
    explicit OrdinaryFamily(const QString& folder);
    ~OrdinaryFamily();
    OrdinaryFamily(const OrdinaryFamily&) = delete;
    OrdinaryFamily& operator=(const OrdinaryFamily&) = delete;

private:
    uid_t before_ = ::geteuid();
};

}  // namespace support
