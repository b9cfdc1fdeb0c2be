#pragma once

#include <SQLiteCpp/SQLiteCpp.h>

#include <QString>

namespace support {

/// Changes a database file from outside the program, which waits for the disk; nobody does here.
inline void exec(const QString& path, const QString& statements) {
    SQLite::Database file(path.toStdString(), SQLite::OPEN_READWRITE, 2000);
    file.exec("PRAGMA synchronous = OFF");
    file.exec(statements.toStdString());
}

/// First column of the statement's first row as text; "null" for a null and for no row.
[[nodiscard]] inline QString cell(const QString& path, const QString& statement) {
    const SQLite::Database file(path.toStdString(), SQLite::OPEN_READONLY, 2000);
    SQLite::Statement query(file, statement.toStdString());
    if (!query.executeStep() || query.getColumn(0).isNull()) return QStringLiteral("null");
    return QString::fromStdString(query.getColumn(0).getString());
}

}  // namespace support
