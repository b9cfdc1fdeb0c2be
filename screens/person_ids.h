#pragma once

#include <QtGlobal>

namespace data {
class Connection;
}

namespace screens {

// The family's members by the order of their IDs, whatever order the screen shows them in. Each throws RuntimeError 6
// for an ID beyond 16 bits.

/// The lowest ID; 0 without a member.
[[nodiscard]] qint16 getFirstPersonID(data::Connection& connection);
/// The highest ID. Throws RuntimeError 94 without a member.
[[nodiscard]] qint16 getLastPersonID(data::Connection& connection);
/// The next higher ID, or the highest.
[[nodiscard]] qint16 getNextPersonID(data::Connection& connection, qint16 personID);
/// The next lower ID, or the lowest.
[[nodiscard]] qint16 getPrevPersonID(data::Connection& connection, qint16 personID);

}  // namespace screens
