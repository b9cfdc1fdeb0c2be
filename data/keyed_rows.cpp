#include "data/keyed_rows.h"

#include <sqlite3.h>

#include <QScopeGuard>
#include <QStringList>
#include <algorithm>
#include <limits>

#include "data/file_text.h"
#include "data/open_file.h"
#include "data/select_shape.h"
#include "data/sql_tokens.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

/// A statement that the file doesn't understand gives nothing; other failures go on.
std::unique_ptr<SQLite::Statement> prepareIfUnderstood(SQLite::Database& database, const QString& statement) {
    try {
        return std::make_unique<SQLite::Statement>(database, textToFile(statement).toStdString());
    } catch (const SQLite::Exception& cause) {
        if (cause.getErrorCode() != SQLITE_ERROR) throw;
        return nullptr;
    }
}

}  // namespace

std::unique_ptr<KeyedRows> KeyedRows::select(OpenFile& file, const QString& statement) {
    return file.run(statement, [&](SQLite::Database& database) -> std::unique_ptr<KeyedRows> {
        const auto shape = selectShape(database, statement);
        if (!shape) return nullptr;
        auto table = baseTable(database, shape->table);
        if (!table) return nullptr;
        std::unique_ptr<KeyedRows> rows(new KeyedRows(file, std::move(*table)));
        const auto& keys = shape->keyStatements;
        const bool isKeyed = rows->showColumns(*shape) && std::any_of(keys.begin(), keys.end(), [&](const auto& key) {
                                 return rows->takeKeys(key);
                             });
        if (!isKeyed) return nullptr;
        if (!shape->isOrdered) std::sort(rows->keys_.begin(), rows->keys_.end());
        rows->prepareReading();
        return rows;
    });
}

KeyedRows::KeyedRows(OpenFile& file, BaseTable table)
    : file_(file), table_(std::move(table)), tableName_(table_.name.toUtf8()) {
    file_.snapshots.push_back(this);
}

KeyedRows::~KeyedRows() {
    std::erase(file_.snapshots, this);
}

bool KeyedRows::showColumns(const SelectShape& shape) {
    for (const auto& term : shape.terms) {
        const int column = table_.indexOf(term.column);
        if (column < 0) return false;
        columns_.push_back({term.shown, table_.columns[static_cast<size_t>(column)].type});
        tableColumns_.push_back(column);
    }
    return true;
}

bool KeyedRows::takeKeys(const QString& statement) {
    const auto rows = prepareIfUnderstood(*file_.database, statement);
    if (!rows) return false;
    keys_.clear();
    const int key = rows->getColumnCount() - 1;
    while (rows->executeStep()) {
        const SQLite::Column column = rows->getColumn(key);
        if (column.isNull())  // an outer join's row without a partner in this table
            return false;
        keys_.push_back(column.getInt64());
    }
    keys_.shrink_to_fit();
    return true;
}

QString KeyedRows::columnName(int column) const {
    return quotedName(table_.columns[static_cast<size_t>(tableColumns_[static_cast<size_t>(column)])].name);
}

void KeyedRows::prepareReading() {
    QStringList names;
    for (int column = 0; column < static_cast<int>(columns_.size()); ++column)
        names.push_back(columnName(column));
    const QString statement = u"SELECT %1 FROM %2 WHERE rowid = ?"_s.arg(names.join(u", "_s), quotedName(table_.name));
    reading_ = std::make_unique<SQLite::Statement>(*file_.database, statement.toStdString());
}

std::optional<StoredRow> KeyedRows::read(int row) {
    const qint64 key = keys_[static_cast<size_t>(row)];
    if (const auto kept = aside_.find(key); kept != aside_.end()) return kept->second;
    // A statement left behind its row would hold a lock on the file.
    const auto release = qScopeGuard([this] { reading_->tryReset(); });
    return file_.run({}, [&](SQLite::Database&) {
        reading_->bind(1, static_cast<int64_t>(key));
        return reading_->executeStep() ? std::optional(storedRow(*reading_)) : std::nullopt;
    });
}

std::optional<int> KeyedRows::find(qint64 id) const {
    const auto found = std::ranges::find(keys_, id);
    if (found == keys_.end()) return {};
    return static_cast<int>(found - keys_.begin());
}

StoredRow KeyedRows::defaults() {
    if (defaults_) return *defaults_;
    QStringList expressions;
    for (const int column : tableColumns_) {
        const QString expression = table_.columns[static_cast<size_t>(column)].defaultExpression;
        expressions.push_back(expression.isEmpty() ? u"NULL"_s : u'(' + expression + u')');
    }
    const QString statement = u"SELECT "_s + expressions.join(u", "_s);
    defaults_ = file_.run(statement, [&](SQLite::Database& database) {
        SQLite::Statement row(database, statement.toStdString());
        row.executeStep();
        return storedRow(row);
    });
    return *defaults_;
}

/// Number of rows that the statement changed. Its own changes are no reason to put a row aside.
int KeyedRows::write(const QString& statement, const std::vector<QVariant>& values) {
    isWriting_ = true;
    const auto done = qScopeGuard([this] { isWriting_ = false; });
    return file_.run(statement, [&](SQLite::Database& database) {
        SQLite::Statement writing(database, statement.toStdString());
        int place = 0;
        for (const auto& value : values)
            bindValue(writing, ++place, value);
        return writing.exec();
    });
}

void KeyedRows::insert(const StoredChanges& changes) {
    QStringList names;
    QStringList places;
    std::vector<QVariant> values;
    for (const auto& [column, value] : changes) {
        names.push_back(columnName(column));
        places.push_back(u"?"_s);
        values.push_back(value);
    }
    const QString what =
        names.isEmpty() ? u"DEFAULT VALUES"_s : u"(%1) VALUES (%2)"_s.arg(names.join(u", "_s), places.join(u", "_s));
    write(u"INSERT INTO %1 "_s.arg(quotedName(table_.name)) + what, values);
    keys_.push_back(file_.database->getLastInsertRowid());
}

void KeyedRows::update(int row, const StoredChanges& changes, const StoredRow& old) {
    QStringList settings;
    QStringList conditions{u"rowid = ?"_s};
    std::vector<QVariant> values;
    std::vector<QVariant> oldValues{keys_[static_cast<size_t>(row)]};
    for (const auto& [column, value] : changes) {
        settings.push_back(columnName(column) + u" = ?"_s);
        // Texts compare without case otherwise, and a change of case alone is one.
        conditions.push_back(columnName(column) + u" IS ? COLLATE BINARY"_s);
        values.push_back(value);
        oldValues.push_back(old[static_cast<size_t>(column)]);
    }
    values.insert(values.end(), oldValues.begin(), oldValues.end());
    const QString statement = u"UPDATE %1 SET "_s.arg(quotedName(table_.name)) + settings.join(u", "_s) + u" WHERE "_s +
                              conditions.join(u" AND "_s);
    if (write(statement, values) == 0) throw platform::RuntimeError(platform::Error::RowChanged);
    if (const auto kept = aside_.find(keys_[static_cast<size_t>(row)]); kept != aside_.end())
        for (const auto& [column, value] : changes)
            kept->second[static_cast<size_t>(column)] = value;
    followKey(row, changes);
}

/// A whole-number key set by code is the row's new place in the file.
void KeyedRows::followKey(int row, const StoredChanges& changes) {
    for (const auto& [column, value] : changes)
        if (table_.columns[static_cast<size_t>(tableColumns_[static_cast<size_t>(column)])].isRowId)
            keys_[static_cast<size_t>(row)] = value.toLongLong();
}

void KeyedRows::fillInKey(int row, StoredRow& values) const {
    for (size_t column = 0; column < tableColumns_.size(); ++column)
        if (table_.columns[static_cast<size_t>(tableColumns_[column])].isRowId)
            values[column] = keys_[static_cast<size_t>(row)];
}

void KeyedRows::remove(int row) {
    const QString statement = u"DELETE FROM %1 WHERE rowid = ?"_s.arg(quotedName(table_.name));
    if (write(statement, {keys_[static_cast<size_t>(row)]}) == 0)
        throw platform::RuntimeError(platform::Error::RowChanged);
}

void KeyedRows::keep(const char* table, qint64 key, const std::function<QVariant(int)>& oldValue) {
    if (isWriting_ || tableName_ != table || aside_.contains(key)) return;
    StoredRow row;
    row.reserve(tableColumns_.size());
    for (const int column : tableColumns_)
        row.push_back(oldValue(column));
    aside_.emplace(key, std::move(row));
}

/// Tables without a counter give the number of a deleted row again.
void KeyedRows::retire(const char* table, qint64 key) {
    if (tableName_ != table || !aside_.contains(key)) return;
    const qint64 nobodys = std::numeric_limits<qint64>::min() + retired_++;
    std::replace(keys_.begin(), keys_.end(), key, nobodys);
    auto kept = aside_.extract(key);
    kept.key() = nobodys;
    aside_.insert(std::move(kept));
}

}  // namespace data
