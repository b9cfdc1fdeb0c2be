#pragma once

#include <QString>

namespace data {
class Connection;
}

namespace security {

/// The password of a member's PIN list, as its protected row has it.
struct ListPassword {
    /// Without the row the list has no password: the empty text opens it.
    bool hasRow = false;
    QString password{};
    /// What the row's mark is while it is enciphered.
    QString encipheredMark{};
};

/// Throws the provider's errors.
[[nodiscard]] ListPassword readListPassword(data::Connection& connection, qint16 personID);

}  // namespace security
