#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <vector>

namespace platform {

/// How the values of a column convert and show.
///
/// A QVariant that holds a value of the kind: Text and Memo a QString, Number a qint64 or a double, Date a QDateTime
/// (UTC, so that no hour is ever missing), YesNo a bool, Counter a qint64. Null is the invalid QVariant.
enum class ColumnKind { Text, Memo, Number, Date, YesNo, Counter };

/// What a bound control needs of a recordset: the current row's values by column, and word of their changes.
class RecordSource : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// False before the first row, behind the last one, on an empty set and on a closed one.
    [[nodiscard]] virtual bool hasCurrentRow() const = 0;
    /// Value of the current row; throws RuntimeError 3021 without one, 3265 for a name that it doesn't have.
    [[nodiscard]] virtual QVariant value(const QString& column) const = 0;
    /// Sets a column of the current row, converted to the column's kind; pending until the row is written.
    virtual void setValue(const QString& column, const QVariant& value) = 0;
    /// Text for a closed set.
    [[nodiscard]] virtual ColumnKind columnKind(const QString& column) const = 0;

Q_SIGNALS:
    /// Another row, or the same one anew, is current: every bound control shows it and forgets what was typed.
    void rowShown();
    /// Code set one column of the current row.
    void valueSet(const QString& column);
    /// The row is about to be written: every bound control hands over what was changed in it.
    void collecting();
    /// What was handed over stands in the file.
    void written();
};

/// A recordset as a whole, for a grid: besides the current row any row can be looked at without a move.
class RowSource : public RecordSource {
    Q_OBJECT

public:
    using RecordSource::RecordSource;

    [[nodiscard]] virtual QStringList columnNames() const = 0;
    [[nodiscard]] virtual int rowCount() const = 0;
    /// Values of a row, from 0, by columns; empty for a row that has gone from the file.
    [[nodiscard]] virtual std::vector<QVariant> rowAt(int row) const = 0;
    /// The current row, from 0; -1 for none.
    [[nodiscard]] virtual int currentRow() const = 0;
};

}  // namespace platform
