#pragma once

#include <QString>

namespace session {

/// The files in the application folder that hold the family's book, or bring it up. Nothing that the user saves or
/// copies may take their place.
struct BookFiles {
    /// Without a closing separator.
    QString applicationFolder;

    /// Throws error 70 for a target that is one of them: the live database and its journal, the empty database, the
    /// definition file, the program, and whatever lies in the folder of attached files. They are known by what a path
    /// leads to and not by its spelling; where none is there yet its place counts.
    void refuse(const QString& target) const;

private:
    [[nodiscard]] bool isOurs(const QString& target) const;
    [[nodiscard]] bool isAttached(const QString& target) const;
};

}  // namespace session
