#pragma once

#include <functional>
#include <memory>
#include <unordered_map>

#include "data/base_table.h"
#include "data/row_set.h"

namespace SQLite {
class Statement;
}

namespace data {

struct OpenFile;
struct SelectShape;

/// The rows of a select over one table's columns, held as keys alone: a row is read when it is reached and written by
/// its key.
///
/// Which rows there are and what they hold is settled when the keys are taken: before another statement of the
/// connection changes or deletes a row, its values are put aside here.
class KeyedRows : public RowSet {
public:
    /// Nothing for a select whose rows aren't each a row of one table. Throws the provider's errors.
    static std::unique_ptr<KeyedRows> select(OpenFile& file, const QString& statement);
    ~KeyedRows() override;

    [[nodiscard]] const std::vector<ShownColumn>& columns() const override { return columns_; }
    [[nodiscard]] int count() const override { return static_cast<int>(keys_.size()); }
    [[nodiscard]] std::optional<StoredRow> read(int row) override;
    /// The ID is the key that the rows are held by.
    [[nodiscard]] std::optional<int> find(qint64 id) const override;

    /// What a new row holds before anything is set: the defaults of its columns.
    [[nodiscard]] StoredRow defaults();
    /// Writes a new row behind the others; columns without a change get their defaults.
    void insert(const StoredChanges& changes);
    /// Writes changes over the values read before. Throws RuntimeError -2147217864 when the row has gone or one of the
    /// changed columns no longer holds its old value.
    void update(int row, const StoredChanges& changes, const StoredRow& old);
    /// Puts a row's number in the file into its values.
    void fillInKey(int row, StoredRow& values) const;
    /// Throws RuntimeError -2147217864 when the row has gone already.
    void remove(int row);

    /// Puts the values of a row aside that is about to be changed or deleted by another statement.
    /// @param oldValue gives the value of a column of the table, by the column's number there
    void keep(const char* table, qint64 key, const std::function<QVariant(int)>& oldValue);

    /// A row whose number is given to a new one is known by that number no longer.
    void retire(const char* table, qint64 key);

private:
    KeyedRows(OpenFile& file, BaseTable table);
    bool showColumns(const SelectShape& shape);
    bool takeKeys(const QString& statement);
    void prepareReading();
    int write(const QString& statement, const std::vector<QVariant>& values);
    [[nodiscard]] QString columnName(int column) const;
    void followKey(int row, const StoredChanges& changes);

    OpenFile& file_;
    BaseTable table_;
    QByteArray tableName_;
    std::vector<ShownColumn> columns_;
    std::vector<int> tableColumns_;  ///< for each shown column its number in the table
    std::vector<qint64> keys_;
    std::unordered_map<qint64, StoredRow> aside_;
    std::unique_ptr<SQLite::Statement> reading_;
    std::optional<StoredRow> defaults_;
    int retired_ = 0;
    bool isWriting_ = false;
};

}  // namespace data
