#pragma once

#include <QString>
#include <stdexcept>

namespace support {

/// A gesture that no user could make: what it aims at isn't there, or is hidden, disabled or covered.
class Refused : public std::runtime_error {
public:
    explicit Refused(const QString& reason) : std::runtime_error(reason.toStdString()) {}
};

}  // namespace support
