#pragma once

#include <QString>
#include <QVariant>
#include <map>
#include <vector>

namespace SQLite {
class Statement;
}

namespace data {

/// The values of a row as the file holds them: null as the invalid QVariant, qint64, double, QString or QByteArray.
using StoredRow = std::vector<QVariant>;
/// New values of a row by the number of their column in the select list.
using StoredChanges = std::map<int, QVariant>;

[[nodiscard]] StoredRow storedRow(const SQLite::Statement& statement);
/// @param place number of the statement's parameter, from 1
void bindValue(SQLite::Statement& statement, int place, const QVariant& value);

}  // namespace data
