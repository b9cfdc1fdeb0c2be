#pragma once

#include <QStringList>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "data/connection.h"
#include "platform/base/record_source.h"

namespace data {

class RowPosition;

/// The ways in which rows are opened.
enum class Opening {
    LookUp,  ///< a server cursor, forward-only and read-only: for look-ups, counts, and statements without rows
    Screen,  ///< a client cursor, static, with an optimistic lock: for the rows of a record screen
    List,  ///< a client cursor, by keyset, with an optimistic lock: for the rows of a list, and rows written beside it
};
enum class EditMode { None = 0, InProgress = 1, Add = 2, Deleted = 4 };

/// The rows of one statement, one of them current.
///
/// A look-up streams and can't be written. Every other recordset takes the keys of its rows at open()
/// and reads a row when it is reached; which rows there are and what they hold stays as it was then, whatever other
/// statements of the connection do, until requery(). Only selects over one table, or over the columns of one table of
/// a join (`SELECT X.* FROM ..`), can be written; the rows of any other select are fetched whole at open().
///
/// A move, requery or close never asks bound controls for what stands in them, but a move writes what code has set.
/// After rowShown() comes moveComplete(), whose handlers may read, but get 3219 when they move.
class Recordset : public platform::RowSource {
    Q_OBJECT

public:
    explicit Recordset(Opening opening = Opening::LookUp);
    ~Recordset() override;

    /// Runs the statement. One that returns no rows is carried out and leaves the recordset closed. Throws 3705 when
    /// open, 3709 on a closed connection, and the provider's errors.
    void open(const QString& statement, Connection& connection);
    /// Throws 3704 when closed, 3219 while a change is pending.
    void close();
    /// Closes if open, and drops a pending change: what every routine does before it uses a recordset again.
    void release();
    [[nodiscard]] bool isOpen() const;

    [[nodiscard]] bool bof() const;
    [[nodiscard]] bool eof() const;
    [[nodiscard]] int recordCount() const;       ///< -1 on a forward-only recordset
    [[nodiscard]] int absolutePosition() const;  ///< 1..N; -1 empty or unknown, -2 before the first, -3 behind the last
    [[nodiscard]] double bookmark() const;       ///< ordinal of the row in the fetched set, from 1; 3021 without a row
    void setBookmark(double bookmark);
    /// Bookmark of the row with that ID, also one that was deleted since; nothing when none has it. Not for a stream.
    [[nodiscard]] std::optional<double> bookmarkOf(qint64 id) const;
    [[nodiscard]] EditMode editMode() const;

    void moveFirst();
    void moveLast();
    void moveNext();
    void movePrevious();

    void addNew();
    /// Hands over what the bound controls hold, then writes the current row's pending change: one statement, durable on
    /// return.
    void update();
    void updateBatch();
    /// Drops the pending change, if there is one, and shows the row anew.
    void cancelUpdate();
    void deleteCurrent();
    void requery();

    [[nodiscard]] QStringList fieldNames() const;
    [[nodiscard]] bool hasCurrentRow() const override;
    [[nodiscard]] QVariant value(const QString& column) const override;
    void setValue(const QString& column, const QVariant& value) override;
    [[nodiscard]] platform::ColumnKind columnKind(const QString& column) const override;

    // RowSource; not for a stream.
    [[nodiscard]] QStringList columnNames() const override { return fieldNames(); }
    [[nodiscard]] int rowCount() const override { return isOpen() ? recordCount() : 0; }
    [[nodiscard]] std::vector<QVariant> rowAt(int row) const override;
    [[nodiscard]] int currentRow() const override;

Q_SIGNALS:
    /// After open(), addNew(), requery() and every move, also one that failed; not after deleteCurrent() or update().
    void moveComplete();
    /// Before the first change of a row, and before it is added, written, given up or deleted.
    void willChangeRecord();

private:
    void move(const std::function<void(RowPosition&)>& step);
    void travel(const std::function<void()>& journey);
    void refuseInsideHandler() const;
    void announceMove();
    void announceRow();
    void writePending();
    void showFilledIn(const std::vector<QVariant>& before, const std::map<int, QVariant>& given);

    struct Private;
    std::unique_ptr<Private> d_;
};

}  // namespace data
