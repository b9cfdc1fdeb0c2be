#include "find/book_search.h"

#include <QScopeGuard>
#include <algorithm>
#include <map>

#include "data/file_text.h"
#include "data/tables.h"
#include "find/folding.h"

using namespace Qt::StringLiterals;

namespace find {

namespace {

using Clock = std::chrono::steady_clock;

/// The clock is looked at once for so many rows.
constexpr int rowsPerGlance = 64;
/// Stands between the texts of a row, where no word goes across.
constexpr char betweenTexts = '\n';

// What each statement reads ahead of the fields.
constexpr int rowAt = 0;
constexpr int ownerAt = 1;  ///< the owner, or the site that the row hangs on
constexpr int typeAt = 2;
constexpr int firstFieldAt = 3;
/// In the statement over the attachments.
constexpr int keyAt = 5;

bool isValue(const data::Column& column) {
    return column.kind == data::FieldKind::Number || column.kind == data::FieldKind::Whole ||
           column.kind == data::FieldKind::Date;
}

QString ownerColumn(const session::ShownRows& shown) {
    if (shown.areMembers()) return u"ID"_s;
    if (shown.siteTable) return u"ParentID"_s;
    return shown.haveOwners() ? u"PersonID"_s : u"0"_s;
}

QString textFrom(std::string_view bytes) {
    return data::textFromFile(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
}

/// Some of a text with the first match in it, in one line.
QString around(const QString& text, const std::vector<SoughtWord>& words) {
    constexpr qsizetype ahead = 30;
    constexpr qsizetype most = 200;
    const FoldedText plain = foldedWithOrigins(text);
    qsizetype match = plain.text.size();
    for (const SoughtWord& word : words) {
        const qsizetype found = plain.text.indexOf(QString::fromStdString(word.text));
        if (found >= 0) match = std::min(match, found);
    }
    const qsizetype at = match < plain.text.size() ? plain.origins[static_cast<std::size_t>(match)] : 0;
    qsizetype begin = std::max<qsizetype>(at - ahead, 0);
    // The cut falls between two words.
    while (begin > 0 && begin < at && !text[begin - 1].isSpace())
        ++begin;
    const QString part = text.sliced(begin).simplified();
    return (begin > 0 ? u"… "_s : QString()) + (part.size() > most ? part.first(most) + u"…"_s : part);
}

}  // namespace

struct BookSearch::FieldRead {
    int at;          ///< in the statement
    quint16 column;  ///< in the window
    const data::Column* field;
    int decimals = 0;
};

/// A window's fields among those that a statement reads.
struct BookSearch::Layout {
    int type = 0;
    quint16 shown = 0;
    std::vector<FieldRead> texts{};
    std::vector<FieldRead> values{};
};

/// A table with all windows that show some of its rows; read once for all of them.
struct BookSearch::Source {
    const data::Table* table = nullptr;  ///< nullptr: the attachments
    QStringList columns{};
    QString statement{};
    std::vector<Layout> layouts{};
};

struct BookSearch::Run {
    std::size_t source = 0;
    std::unique_ptr<data::RowScan> scan;
    /// The texts of the row, folded, and where each of them ends.
    FoldedTexts texts;
    std::vector<std::size_t> ends;
    /// Where each word stands first among them.
    std::vector<std::size_t> places;
    std::vector<quint16> fields;
    std::map<std::pair<quint16, qint64>, std::optional<qint16>> sites;
};

BookSearch::BookSearch(data::Connection& connection, std::span<const session::ShownRows> all)
    : connection_(connection), all_(all), sources_(makeSources()), locator_(connection, all) {}

BookSearch::~BookSearch() = default;

// What is read -----------------------------------------------------------------------------------------------------

BookSearch::Source& BookSearch::sourceOf(std::vector<Source>& sources, const session::ShownRows& shown) {
    const auto known = std::ranges::find(sources, shown.table, &Source::table);
    if (known == sources.end()) return sources.emplace_back(Source{.table = shown.table});
    if (!shown.siteTable) return *known;
    // What hangs on sites comes behind the last of them.
    std::rotate(known, known + 1, sources.end());
    return sources.back();
}

void BookSearch::addFields(Source& source, quint16 shown) const {
    const session::ShownRows& rows = all_[shown];
    Layout& layout = source.layouts.emplace_back(Layout{.type = rows.type, .shown = shown});
    for (std::size_t column = 0; column < rows.columns.size(); ++column) {
        const data::Column& field = rows.columns[column];
        if (!source.columns.contains(field.name)) source.columns.append(field.name);
        const int at = firstFieldAt + static_cast<int>(source.columns.indexOf(field.name));
        (isValue(field) ? layout.values : layout.texts)
            .push_back({at, static_cast<quint16>(column), &field, decimalsOf(field)});
    }
}

std::vector<BookSearch::Source> BookSearch::makeSources() const {
    std::vector<Source> sources;
    for (std::size_t i = 0; i < all_.size(); ++i) {
        const session::ShownRows& shown = all_[i];
        Source& source = sourceOf(sources, shown);
        addFields(source, static_cast<quint16>(i));
        const QString type = shown.typeColumn.isEmpty() ? u"0"_s : QString(shown.typeColumn);
        source.statement = u"SELECT ID, %1, %2, \"%3\" FROM \"%4\""_s.arg(
            ownerColumn(shown), type, source.columns.join(u"\", \""_s), shown.table->name);
    }
    Source attachments{.statement = u"SELECT rowid, 0, 0, OldFileName, fileDesc, BugNum FROM Attachments"_s};
    attachments.layouts.push_back({.texts = {{firstFieldAt, 0, nullptr}, {firstFieldAt + 1, 1, nullptr}}});
    sources.push_back(std::move(attachments));
    return sources;
}

void BookSearch::readMembers() {
    members_.clear();
    data::RowScan members(connection_, u"SELECT ID, LegalName FROM Person"_s);
    while (members.next())
        members_[members.whole(0)] = textFrom(members.text(1));
}

// The search -------------------------------------------------------------------------------------------------------

void BookSearch::begin(const QString& typed, qint16 member) {
    run_.reset();
    words_.emplace(typed);
    member_ = member;
    places_ = 0;
    first_.clear();
    others_.clear();
    if (words_->words().empty()) return;
    readMembers();
    run_ = std::make_unique<Run>();
}

bool BookSearch::step(std::chrono::microseconds slice) {
    if (!run_) return false;
    // What fails ends the search, which must not go on holding the file.
    auto fails = qScopeGuard([this] { run_.reset(); });
    const auto end = Clock::now() + slice;
    while (Clock::now() < end) {
        if (!run_->scan && !openSource()) break;
        for (int rows = 0; rows < rowsPerGlance && run_->scan; ++rows) {
            if (run_->scan->next()) {
                matchRow(sources_[run_->source]);
            } else {
                run_->scan.reset();
                ++run_->source;
            }
        }
    }
    const bool goesOn = run_->source < sources_.size();
    if (goesOn) fails.dismiss();
    return goesOn;
}

bool BookSearch::openSource() {
    if (run_->source == sources_.size()) return false;
    run_->scan = std::make_unique<data::RowScan>(connection_, sources_[run_->source].statement);
    return true;
}

void BookSearch::matchRow(const Source& source) {
    const auto type = static_cast<int>(run_->scan->whole(typeAt));
    // A single window shows all rows, whatever their type.
    const auto layout =
        std::ranges::find_if(source.layouts, [&](const Layout& each) { return each.type == 0 || each.type == type; });
    if (layout == source.layouts.end() || !allWordsFound(*layout)) return;
    markFields(*layout);
    if (source.table) {
        addRecord(*layout);
    } else {
        addAttachment();
    }
}

bool BookSearch::valueHas(const SoughtWord& word, const FieldRead& read) {
    const data::RowScan& row = *run_->scan;
    if (read.field->kind == data::FieldKind::Date) return words_->dateHas(word, row.text(read.at), *read.field);
    return row.isNumber(read.at) && words_->numberHas(word, row.number(read.at), *read.field, read.decimals);
}

bool BookSearch::allWordsFound(const Layout& layout) {
    run_->texts.clear();
    run_->ends.clear();
    for (const FieldRead& read : layout.texts) {
        run_->texts.append(run_->scan->text(read.at));
        run_->ends.push_back(run_->texts.view().size());
        run_->texts.append(betweenTexts);
    }
    run_->places.clear();
    return std::ranges::all_of(words_->words(), [&](const SoughtWord& word) {
        run_->places.push_back(word.placeIn(run_->texts.view()));
        if (run_->places.back() != std::string_view::npos) return true;
        return (word.inNumbers || word.inDates) &&
               std::ranges::any_of(layout.values, [&](const auto& read) { return valueHas(word, read); });
    });
}

void BookSearch::markFields(const Layout& layout) {
    run_->fields.clear();
    const std::vector<SoughtWord>& words = words_->words();
    std::size_t begin = 0;
    for (std::size_t i = 0; i < layout.texts.size(); ++i) {
        const auto text = run_->texts.view().substr(begin, run_->ends[i] - begin);
        // Ahead of its first place a word needs no second look.
        const auto stands = [&](std::size_t word) {
            const std::size_t first = run_->places[word];
            return first < run_->ends[i] && (first >= begin || words[word].isIn(text));
        };
        for (std::size_t word = 0; word < words.size(); ++word) {
            if (!stands(word)) continue;
            run_->fields.push_back(layout.texts[i].column);
            break;
        }
        begin = run_->ends[i] + 1;
    }
    for (const FieldRead& read : layout.values) {
        const auto has = [&](const SoughtWord& word) { return valueHas(word, read); };
        if (std::ranges::any_of(words, has)) run_->fields.push_back(read.column);
    }
    std::ranges::sort(run_->fields);
}

// The hits ---------------------------------------------------------------------------------------------------------

std::optional<qint16> BookSearch::memberOf(const Layout& layout) {
    const session::ShownRows& shown = all_[layout.shown];
    const qint64 owner = run_->scan->whole(ownerAt);
    if (shown.siteTable) {
        const auto [site, isNew] = run_->sites.try_emplace({layout.shown, owner});
        if (isNew) {
            const std::optional<session::Location> location = locator_.locate(*shown.siteTable, owner);
            if (location && members_.contains(location->member)) site->second = location->member;
        }
        return site->second;
    }
    // A window joins its rows with their owners; a list shows those without one, too.
    if (shown.haveOwners() && !shown.inGrid && !members_.contains(owner)) return {};
    return static_cast<qint16>(owner);
}

void BookSearch::addRecord(const Layout& layout) {
    const std::optional<qint16> member = memberOf(layout);
    if (!member) return;
    for (const quint16 column : run_->fields)
        keep({.row = run_->scan->whole(rowAt), .shown = layout.shown, .column = column, .member = *member});
}

void BookSearch::addAttachment() {
    const qint64 row = run_->scan->whole(rowAt);
    const std::optional<session::Place> place = session::placeOfAttachment(all_, textFrom(run_->scan->text(keyAt)));
    if (!place) return;
    const auto location = locator_.locate(data::table(place->table), place->record);
    if (!location) return;
    const auto shown = static_cast<quint16>(location->shown - all_.data());
    for (const quint16 column : run_->fields) {
        keep({.row = row,
              .shown = shown,
              .in = column == 0 ? Hit::In::FileName : Hit::In::FileDescription,
              .member = location->member});
    }
}

void BookSearch::keep(const Hit& hit) {
    ++places_;
    const bool isFirst = member_ == 0 || hit.member == 0 || hit.member == member_;
    std::vector<Hit>& hits = isFirst ? first_ : others_;
    if (hits.size() < mostKept) hits.push_back(hit);
}

// What is told of them ---------------------------------------------------------------------------------------------

Finding BookSearch::finding(const Hit& hit) {
    const session::ShownRows& shown = all_[hit.shown];
    const auto name = members_.find(hit.member);
    Finding finding{.category = shown.category, .member = name == members_.end() ? QString() : name->second};
    if (hit.in == Hit::In::Field) {
        finding.field = shown.columns[hit.column].label;
        if (finding.field.endsWith(u':')) finding.field.chop(1);
    } else {
        finding.field = hit.in == Hit::In::FileName ? u"Attachment"_s : u"Attachment description"_s;
    }
    finding.text = around(textOf(hit), words_->words());
    return finding;
}

QString BookSearch::textOf(const Hit& hit) {
    if (hit.in != Hit::In::Field)
        return attachmentText(hit.row, hit.in == Hit::In::FileName ? u"OldFileName"_s : u"fileDesc"_s);
    const session::ShownRows& shown = all_[hit.shown];
    const data::Column& column = shown.columns[hit.column];
    data::RowScan row(connection_, u"SELECT \"%1\" FROM \"%2\" WHERE ID = ?"_s.arg(column.name, shown.table->name));
    if (!row.find(hit.row)) return {};
    if (column.kind == data::FieldKind::Date) return shownDate(row.text(0), column);
    return isValue(column) && row.isNumber(0) ? shownNumber(row.number(0), column) : textFrom(row.text(0));
}

QString BookSearch::attachmentText(qint64 row, const QString& column) {
    data::RowScan attachment(connection_, u"SELECT %1 FROM Attachments WHERE rowid = ?"_s.arg(column));
    return attachment.find(row) ? textFrom(attachment.text(0)) : QString();
}

std::optional<session::Place> BookSearch::place(const Hit& hit) {
    if (hit.in != Hit::In::Field) return session::placeOfAttachment(all_, attachmentText(hit.row, u"BugNum"_s));
    const session::ShownRows& shown = all_[hit.shown];
    return session::Place{.table = shown.table->name, .record = hit.row, .column = shown.columns[hit.column].name};
}

}  // namespace find
