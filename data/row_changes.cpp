#include "data/row_changes.h"

#include <sqlite3.h>

#include "data/file_text.h"
#include "data/keyed_rows.h"
#include "data/open_file.h"

namespace data {

namespace {

QVariant oldValue(sqlite3* database, int column) {
    sqlite3_value* value = nullptr;
    if (sqlite3_preupdate_old(database, column, &value) != SQLITE_OK) return {};
    switch (sqlite3_value_type(value)) {
        case SQLITE_INTEGER:
            return QVariant(static_cast<qlonglong>(sqlite3_value_int64(value)));
        case SQLITE_FLOAT:
            return QVariant(sqlite3_value_double(value));
        case SQLITE_TEXT: {
            const auto* text = sqlite3_value_text(value);
            return QVariant(textFromFile({text, sqlite3_value_bytes(value)}));
        }
        case SQLITE_BLOB: {
            const auto* bytes = static_cast<const char*>(sqlite3_value_blob(value));
            return QVariant(QByteArray(bytes, sqlite3_value_bytes(value)));
        }
        default:
            return {};
    }
}

void beforeChange(void* context, sqlite3* database, int operation, const char*, const char* table, sqlite3_int64 oldKey,
                  sqlite3_int64 newKey) {
    const auto* file = static_cast<OpenFile*>(context);
    for (auto* snapshot : file->snapshots) {
        if (operation == SQLITE_INSERT)
            snapshot->retire(table, newKey);
        else
            snapshot->keep(table, oldKey, [database](int column) { return oldValue(database, column); });
    }
}

}  // namespace

void watchRowChanges(OpenFile& file) {
    sqlite3_preupdate_hook(file.database->getHandle(), beforeChange, &file);
}

}  // namespace data
