#include "data/recordset.h"

#include <QScopeGuard>
#include <algorithm>
#include <cmath>
#include <functional>

#include "data/fetched_rows.h"
#include "data/file_text.h"
#include "data/keyed_rows.h"
#include "data/open_file.h"
#include "data/provider_error.h"
#include "data/row_position.h"
#include "data/row_stream.h"
#include "data/sql_dialect.h"

using namespace Qt::StringLiterals;

namespace data {

using platform::ColumnKind;

namespace {

ColumnKind kindOf(const QVariant& stored) {
    const bool isNumber = stored.typeId() == QMetaType::LongLong || stored.typeId() == QMetaType::Double;
    return isNumber ? ColumnKind::Number : ColumnKind::Text;
}

}  // namespace

/// How sets are opened, and the set while it is open.
struct Recordset::Private final : HeldRows {
    Private(Recordset& recordset, Opening how) : self(recordset), opening(how) {}

    Recordset& self;
    const Opening opening;

    OpenFile* file = nullptr;  // null while closed
    QString statement;
    std::unique_ptr<RowStream> stream;
    std::unique_ptr<RowSet> rows;
    KeyedRows* writable = nullptr;  // the rows, if they can be written
    RowPosition position;
    std::optional<StoredRow> current;
    EditMode mode = EditMode::None;
    StoredChanges pending;
    /// Where a cancelled new row leads back to.
    struct {
        RowPosition position;
        std::optional<StoredRow> current;
        EditMode mode = EditMode::None;
    } beforeAdd;
    bool isAnnouncing = false;

    void requireOpen() const;
    void requireWritable() const;
    void requireNoChange() const;
    void requireRow() const;
    [[nodiscard]] const std::vector<ShownColumn>& columns() const;
    [[nodiscard]] int columnNumber(const QString& name) const;
    [[nodiscard]] QVariant stored(int column) const;
    [[nodiscard]] bool streams() const;
    [[nodiscard]] bool hasPending() const { return mode == EditMode::InProgress || mode == EditMode::Add; }

    bool load(const QString& text);
    void letGo() override { self.release(); }
    void loadStream(std::unique_ptr<RowStream> fresh);
    void loadRows(std::unique_ptr<RowSet> fresh);
    void stand(const RowPosition& target);
    void advanceStream();
    void restartStream();
    void write();
    void readNewRow();
    void forget();
};

void Recordset::Private::requireOpen() const {
    if (file == nullptr) throw RuntimeError(Error::Closed);
}

void Recordset::Private::requireWritable() const {
    requireOpen();
    if (writable == nullptr) throw RuntimeError(Error::NotUpdatable);
}

void Recordset::Private::requireNoChange() const {
    requireOpen();
    if (hasPending()) throw RuntimeError(Error::NotInThisContext);
}

void Recordset::Private::requireRow() const {
    const bool onRow = stream ? stream->current().has_value() : position.onRow();
    if (!onRow) throw RuntimeError(Error::NoCurrentRecord);
    if (!stream && !current) throw RuntimeError(Error::RowDeleted);
}

const std::vector<ShownColumn>& Recordset::Private::columns() const {
    requireOpen();
    return stream ? stream->columns() : rows->columns();
}

/// Names match without regard to case; of two columns with one name the first is meant.
int Recordset::Private::columnNumber(const QString& name) const {
    const auto& all = columns();
    // Nearly always the name is written as the table has it.
    auto found = std::ranges::find(all, name, &ShownColumn::name);
    if (found == all.end()) {
        found = std::ranges::find_if(
            all, [&name](const ShownColumn& column) { return column.name.compare(name, Qt::CaseInsensitive) == 0; });
    }
    if (found == all.end()) throw RuntimeError(Error::NoSuchItem);
    return static_cast<int>(found - all.begin());
}

QVariant Recordset::Private::stored(int column) const {
    if (const auto change = pending.find(column); change != pending.end()) return change->second;
    const auto& row = stream ? stream->current() : current;
    return row->at(static_cast<size_t>(column));
}

bool Recordset::Private::streams() const {
    return opening == Opening::LookUp;
}

/// False for a statement that returns no rows; it has then been carried out.
bool Recordset::Private::load(const QString& text) {
    if (auto keyed = streams() ? nullptr : KeyedRows::select(*file, text)) {
        loadRows(std::move(keyed));
        return true;
    }
    auto prepared = file->run(text, [&text](SQLite::Database& database) {
        auto ready = std::make_unique<SQLite::Statement>(database, textToFile(text).toStdString());
        if (ready->getColumnCount() == 0) {
            ready->exec();
            ready.reset();
        }
        return ready;
    });
    if (prepared && streams())
        loadStream(std::make_unique<RowStream>(*file, std::move(prepared)));
    else if (prepared)
        loadRows(std::make_unique<FetchedRows>(*file, *prepared));
    return stream || rows;
}

void Recordset::Private::loadStream(std::unique_ptr<RowStream> fresh) {
    stream = std::move(fresh);
    position = stream->current() ? RowPosition(1) : RowPosition();
}

void Recordset::Private::loadRows(std::unique_ptr<RowSet> fresh) {
    const RowPosition start(fresh->count());
    auto first = start.onRow() ? fresh->read(0) : std::nullopt;
    rows = std::move(fresh);
    writable = dynamic_cast<KeyedRows*>(rows.get());
    position = start;
    current = std::move(first);
    mode = EditMode::None;
}

/// Reads the row first, so that a failure leaves the position where it was.
void Recordset::Private::stand(const RowPosition& target) {
    auto row = target.onRow() ? rows->read(target.row()) : std::nullopt;
    position = target;
    current = std::move(row);
    mode = EditMode::None;
}

void Recordset::Private::advanceStream() {
    if (!stream->current()) throw RuntimeError(Error::NoCurrentRecord);
    stream->next();
    position = stream->current() ? RowPosition(1) : RowPosition::behindLast();
}

void Recordset::Private::restartStream() {
    if (position.bof() && position.eof()) throw RuntimeError(Error::NoCurrentRecord);
    load(statement);
}

void Recordset::Private::write() {
    if (mode == EditMode::Add)
        writable->insert(pending);
    else
        writable->update(position.row(), pending, *current);
    for (const auto& [column, value] : pending)
        current->at(static_cast<size_t>(column)) = value;
    const bool isNew = mode == EditMode::Add;
    pending.clear();
    mode = EditMode::None;
    if (isNew) readNewRow();
}

/// The file fills in the counter and the defaults of a new row. It is in the file by now: a failure to read it again is
/// none to tell, or it would be added a second time.
void Recordset::Private::readNewRow() {
    try {
        current = writable->read(position.row());
    } catch (const RuntimeError&) {
        writable->fillInKey(position.row(), *current);
    }
}

void Recordset::Private::forget() {
    file = nullptr;
    stream.reset();
    rows.reset();
    writable = nullptr;
    position = {};
    current.reset();
    mode = EditMode::None;
    pending.clear();
}

Recordset::Recordset(Opening opening) : d_(std::make_unique<Private>(*this, opening)) {}

Recordset::~Recordset() {
    if (isOpen()) std::erase(d_->file->held, d_.get());
}

void Recordset::open(const QString& statement, Connection& connection) {
    if (isOpen()) throw RuntimeError(Error::Open);
    if (!connection.isOpen()) throw RuntimeError(Error::NoConnection);
    d_->file = &connection.file();
    auto undo = qScopeGuard([this] { d_->forget(); });
    d_->statement = toSqlite(statement);
    if (!d_->load(d_->statement)) return;
    undo.dismiss();
    d_->file->held.push_back(d_.get());
    announceRow();
}

void Recordset::close() {
    d_->requireNoChange();
    release();
}

void Recordset::release() {
    if (!isOpen()) return;
    std::erase(d_->file->held, d_.get());
    d_->forget();
    Q_EMIT rowShown();
}

bool Recordset::isOpen() const {
    return d_->file != nullptr;
}

bool Recordset::bof() const {
    d_->requireOpen();
    return d_->position.bof();
}

bool Recordset::eof() const {
    d_->requireOpen();
    return d_->position.eof();
}

int Recordset::recordCount() const {
    d_->requireOpen();
    return d_->stream ? -1 : d_->position.count();
}

int Recordset::absolutePosition() const {
    d_->requireOpen();
    return d_->stream ? -1 : d_->position.absolute();
}

double Recordset::bookmark() const {
    d_->requireOpen();
    if (d_->stream) throw RuntimeError(Error::NotUpdatable);
    d_->requireRow();
    return d_->position.row() + 1;
}

EditMode Recordset::editMode() const {
    d_->requireOpen();
    return d_->mode;
}

void Recordset::setBookmark(double bookmark) {
    move([bookmark](RowPosition& target) {
        const bool isOrdinal = bookmark >= 1 && bookmark < 2147483647.0 && bookmark == std::floor(bookmark);
        target.to(isOrdinal ? static_cast<int>(bookmark) - 1 : -1);
    });
}

std::optional<double> Recordset::bookmarkOf(qint64 id) const {
    d_->requireOpen();
    if (d_->stream) throw RuntimeError(Error::NotUpdatable);
    const std::optional<int> row = d_->rows->find(id);
    if (!row) return {};
    return *row + 1;
}

/// A stream begins anew.
void Recordset::moveFirst() {
    if (isOpen() && d_->stream) return travel([this] { d_->restartStream(); });
    move([](RowPosition& target) { target.first(); });
}

void Recordset::moveLast() {
    move([](RowPosition& target) { target.last(); });
}

void Recordset::movePrevious() {
    move([](RowPosition& target) { target.previous(); });
}

void Recordset::moveNext() {
    if (isOpen() && d_->stream) return travel([this] { d_->advanceStream(); });
    move([](RowPosition& target) { target.next(); });
}

/// A move within the fetched rows, which a stream doesn't have.
void Recordset::move(const std::function<void(RowPosition&)>& step) {
    travel([this, &step] {
        if (d_->stream) throw RuntimeError(Error::NoFetchBackward);
        RowPosition target = d_->position;
        step(target);
        d_->stand(target);
    });
}

/// A pending change is written before any move. A move that fails is announced too, from where it left the recordset.
void Recordset::travel(const std::function<void()>& journey) {
    d_->requireOpen();
    refuseInsideHandler();
    try {
        writePending();
        journey();
    } catch (const RuntimeError&) {
        announceMove();
        throw;
    }
    announceRow();
}

/// Who is told of a move may read, but not move: it would take the ground from under the move that is being told.
void Recordset::refuseInsideHandler() const {
    if (d_->isAnnouncing) throw RuntimeError(Error::NotInThisContext);
}

void Recordset::announceMove() {
    d_->isAnnouncing = true;
    const auto done = qScopeGuard([this] { d_->isAnnouncing = false; });
    Q_EMIT moveComplete();
}

/// The boxes show the row before anybody hears of the move, since many read the boxes and not the row.
void Recordset::announceRow() {
    Q_EMIT rowShown();
    announceMove();
}

void Recordset::addNew() {
    d_->requireWritable();
    refuseInsideHandler();
    writePending();
    const auto defaults = d_->writable->defaults();
    Q_EMIT willChangeRecord();
    d_->beforeAdd = {d_->position, d_->current, d_->mode};
    d_->position.append();
    d_->current = defaults;
    d_->mode = EditMode::Add;
    announceRow();
}

void Recordset::update() {
    d_->requireOpen();
    Q_EMIT collecting();
    writePending();
}

void Recordset::updateBatch() {
    update();
}

void Recordset::writePending() {
    if (!d_->hasPending()) return;
    Q_EMIT willChangeRecord();
    const auto before = d_->mode == EditMode::Add ? d_->current : std::nullopt;
    const auto given = d_->pending;
    d_->write();
    if (before && d_->current) showFilledIn(*before, given);
    Q_EMIT written();
}

/// Tells which columns of a new row the file filled in at the write.
void Recordset::showFilledIn(const std::vector<QVariant>& before, const std::map<int, QVariant>& given) {
    const auto names = fieldNames();
    for (int column = 0; column < static_cast<int>(before.size()); ++column) {
        const auto number = static_cast<size_t>(column);
        if (!given.contains(column) && d_->current->at(number) != before[number]) Q_EMIT valueSet(names[column]);
    }
}

void Recordset::cancelUpdate() {
    d_->requireOpen();
    // Boxes may show what was typed and never handed over.
    if (!d_->hasPending()) return Q_EMIT rowShown();
    Q_EMIT willChangeRecord();
    const bool isNew = d_->mode == EditMode::Add;
    d_->pending.clear();
    d_->mode = EditMode::None;
    if (isNew) {
        d_->position = d_->beforeAdd.position;
        d_->current = d_->beforeAdd.current;
        d_->mode = d_->beforeAdd.mode;
        return announceRow();
    }
    Q_EMIT rowShown();
}

void Recordset::deleteCurrent() {
    d_->requireWritable();
    d_->requireRow();
    if (d_->mode == EditMode::Add) throw RuntimeError(Error::NotInThisContext);
    Q_EMIT willChangeRecord();
    d_->writable->remove(d_->position.row());
    d_->pending.clear();
    d_->position.removeCurrent();
    d_->current.reset();
    d_->mode = EditMode::Deleted;
}

void Recordset::requery() {
    d_->requireNoChange();
    refuseInsideHandler();
    d_->load(d_->statement);
    announceRow();
}

QStringList Recordset::fieldNames() const {
    QStringList names;
    for (const auto& column : d_->columns())
        names.push_back(column.name);
    return names;
}

bool Recordset::hasCurrentRow() const {
    return isOpen() && (d_->stream ? d_->stream->current().has_value() : d_->position.onRow() && d_->current);
}

QVariant Recordset::value(const QString& column) const {
    const int number = d_->columnNumber(column);
    d_->requireRow();
    const auto& type = d_->columns()[static_cast<size_t>(number)].type;
    const QVariant stored = d_->stored(number);
    return type ? shownValue(stored, type->kind) : stored;
}

std::vector<QVariant> Recordset::rowAt(int row) const {
    d_->requireOpen();
    const auto stored = d_->rows->read(row);
    if (!stored) return {};
    std::vector<QVariant> values;
    values.reserve(stored->size());
    for (size_t column = 0; column < stored->size(); ++column) {
        const auto& type = d_->columns()[column].type;
        values.push_back(type ? shownValue((*stored)[column], type->kind) : (*stored)[column]);
    }
    return values;
}

int Recordset::currentRow() const {
    return hasCurrentRow() ? d_->position.row() : -1;
}

void Recordset::setValue(const QString& column, const QVariant& value) {
    d_->requireWritable();
    const int number = d_->columnNumber(column);
    d_->requireRow();
    const auto& shown = d_->columns()[static_cast<size_t>(number)];
    const QVariant stored = storedForm(value, *shown.type);
    if (!d_->hasPending()) Q_EMIT willChangeRecord();
    d_->pending[number] = stored;
    if (d_->mode == EditMode::None) d_->mode = EditMode::InProgress;
    Q_EMIT valueSet(shown.name);
}

ColumnKind Recordset::columnKind(const QString& column) const {
    // Controls that stay bound are told when the file is closed under them, and show nothing then.
    if (!isOpen()) return ColumnKind::Text;
    const int number = d_->columnNumber(column);
    const auto& type = d_->columns()[static_cast<size_t>(number)].type;
    if (type) return type->kind;
    return hasCurrentRow() ? kindOf(d_->stored(number)) : ColumnKind::Text;
}

}  // namespace data
