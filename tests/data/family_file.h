#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QVariant>
#include <functional>

#include "data/connection.h"
#include "data/recordset.h"
#include "platform/base/runtime_error.h"
#include "tests/support/database_file.h"

using namespace Qt::StringLiterals;

/// A database file of its own for each test, open.
class FamilyFile : public testing::Test {
protected:
    FamilyFile() : path_(folder_.filePath(u"family.mdb"_s)) {
        sql("CREATE TABLE Person (ID INTEGER PRIMARY KEY AUTOINCREMENT, Seq SMALLINT, LegalName TEXT(20) COLLATE "
            "NOCASE,"
            " Born DATE, Comment LONGTEXT, IsMinor BOOLEAN DEFAULT 0, Worth DOUBLE, \"Order\" TEXT(5));"
            "CREATE TABLE Pet (ID INTEGER PRIMARY KEY AUTOINCREMENT, PersonID INTEGER, Name TEXT(20), Legs INTEGER "
            "DEFAULT 4);"
            "INSERT INTO Person(Seq, LegalName) VALUES (1, 'A'), (2, 'B'), (3, 'C');"
            "INSERT INTO Pet(PersonID, Name) VALUES (2, 'Rex'), (1, 'Tom'), (1, 'Ada'), (9, 'Stray');");
        connection_.open(path_);
    }

    /// Carries statements out by another connection, as another program would.
    void sql(const char* statements) const {
        SQLite::Database(path_.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE).exec(statements);
    }

    /// First value of the first row, as the file holds it, read by another connection.
    [[nodiscard]] QString stored(const char* select) const { return support::cell(path_, QString::fromUtf8(select)); }

    void open(data::Recordset& rows, const char* statement) { rows.open(QString::fromUtf8(statement), connection_); }

    QTemporaryDir folder_;
    QString path_;
    data::Connection connection_;
};

/// Number of the error that an operation throws, 0 when it throws none.
inline int errorOf(const std::function<void()>& operation, QString* words = nullptr) {
    try {
        operation();
        return 0;
    } catch (const platform::RuntimeError& error) {
        if (words != nullptr) *words = error.description();
        return error.number();
    }
}
