#pragma once

#include <QString>

namespace session {

/// A place in the family's book: a record, and in it a field. It names what stands in the file; which window shows it,
/// and how one comes there, is found when somebody goes (Workspace::goTo).
struct Place {
    QString table;
    qint64 record = 0;  ///< its ID
    QString column{};   ///< whose box gets the focus; empty: none in particular
    /// The member under whom a file was attached to the record, and under whom alone it is counted there; 0 where any
    /// selection that shows the record will do.
    qint16 attachedUnder = 0;
};

}  // namespace session
