#include "data/stored_row.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include "data/file_text.h"

namespace data {

namespace {

QVariant valueAt(const SQLite::Statement& statement, int column) {
    const SQLite::Column value = statement.getColumn(column);
    switch (value.getType()) {
        case SQLITE_INTEGER:
            return QVariant(static_cast<qlonglong>(value.getInt64()));
        case SQLITE_FLOAT:
            return QVariant(value.getDouble());
        case SQLITE_TEXT: {
            const char* text = value.getText();
            return QVariant(textFromFile({text, value.getBytes()}));
        }
        case SQLITE_BLOB: {
            const auto* bytes = static_cast<const char*>(value.getBlob());
            return QVariant(QByteArray(bytes, value.getBytes()));
        }
        default:
            return {};
    }
}

}  // namespace

StoredRow storedRow(const SQLite::Statement& statement) {
    const int columns = statement.getColumnCount();
    StoredRow row;
    row.reserve(static_cast<size_t>(columns));
    for (int column = 0; column < columns; ++column)
        row.push_back(valueAt(statement, column));
    return row;
}

void bindValue(SQLite::Statement& statement, int place, const QVariant& value) {
    switch (value.typeId()) {
        case QMetaType::UnknownType:
            return statement.bind(place);
        case QMetaType::LongLong:
            return statement.bind(place, static_cast<int64_t>(value.toLongLong()));
        case QMetaType::Double:
            return statement.bind(place, value.toDouble());
        case QMetaType::QByteArray: {
            const QByteArray bytes = value.toByteArray();
            return statement.bind(place, static_cast<const void*>(bytes.constData()), static_cast<int>(bytes.size()));
        }
        default:
            return statement.bind(place, textToFile(value.toString()).toStdString());
    }
}

}  // namespace data
