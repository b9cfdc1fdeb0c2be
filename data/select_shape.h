#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace SQLite {
class Database;
}

namespace data {

/// A select that shows the columns of a single table, so that each of its rows is known by that table's key:
/// `SELECT * FROM T ..`, `SELECT a, T.b AS c FROM T ..` or `SELECT X.* FROM P INNER JOIN X ON ..`.
struct SelectShape {
    struct Term {
        QString column;  ///< as the table has it
        QString shown;   ///< the name under which it is shown
    };

    QString table;
    std::vector<Term> terms;
    /// Statements that give the row keys in the same order, the key in their last column; the first that the file
    /// accepts is the leanest. An order told by a shown column alone is understood only by the last.
    QStringList keyStatements;
    /// Without an order of its own the rows come by key.
    bool isOrdered = false;
};

/// Nothing for a select of another shape: of several tables' columns, of a table that stands in it twice, of
/// expressions, groups, unions or distinct rows; nor for a statement that the file doesn't understand.
[[nodiscard]] std::optional<SelectShape> selectShape(SQLite::Database& database, const QString& statement);

}  // namespace data
