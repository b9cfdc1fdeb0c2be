#include "data/select_shape.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <algorithm>
#include <memory>

#include "data/file_text.h"
#include "data/sql_tokens.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

/// A table in the FROM clause and the name by which the statement speaks of it.
struct Source {
    QString table;
    QString spoken;
};

bool isAnyOf(const SqlToken& token, std::initializer_list<QStringView> words) {
    return std::any_of(words.begin(), words.end(), [&token](QStringView word) { return token.isWord(word); });
}

bool same(const QString& left, const QString& right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// What the engine says of the columns that a select shows: the table of all of them, and each with its two names.
/// Nothing for columns of several tables, for expressions, and for a statement that isn't understood.
std::optional<SelectShape> shownByOneTable(SQLite::Database& database, const QString& statement) {
    const QByteArray text = textToFile(statement);
    sqlite3_stmt* prepared = nullptr;
    sqlite3_prepare_v2(database.getHandle(), text.constData(), static_cast<int>(text.size()), &prepared, nullptr);
    const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> owner(prepared, sqlite3_finalize);
    SelectShape shape;
    for (int column = 0; column < sqlite3_column_count(prepared); ++column) {
        const QString table = QString::fromUtf8(sqlite3_column_table_name(prepared, column));
        if (table.isEmpty() || (column > 0 && table != shape.table)) return std::nullopt;
        shape.table = table;
        shape.terms.push_back({QString::fromUtf8(sqlite3_column_origin_name(prepared, column)),
                               QString::fromUtf8(sqlite3_column_name(prepared, column))});
    }
    return shape.terms.empty() ? std::nullopt : std::optional(shape);
}

/// Cuts one select into its clauses.
class SelectReader {
public:
    explicit SelectReader(const QString& statement) : text_(statement), tokens_(sqlTokens(statement)) {}

    std::optional<SelectShape> run(SQLite::Database& database) {
        if (!findClauses() || !readSources()) return std::nullopt;
        auto shape = shownByOneTable(database, text_);
        if (!shape) return std::nullopt;
        const auto isShown = [&](const Source& source) { return same(source.table, shape->table); };
        if (std::ranges::count_if(sources_, isShown) != 1) return std::nullopt;
        addKeyStatements(*shape, std::ranges::find_if(sources_, isShown)->spoken);
        return shape;
    }

private:
    bool findClauses() {
        if (tokens_.empty() || !tokens_[0].isWord(u"select")) return false;
        while (!tokens_.empty() && tokens_.back().isSymbol(u';'))
            tokens_.pop_back();
        int depth = 0;
        for (size_t i = 1; i < tokens_.size(); ++i) {
            if (tokens_[i].isSymbol(u'('))
                ++depth;
            else if (tokens_[i].isSymbol(u')'))
                --depth;
            else if (depth == 0 && !noteClause(i))
                return false;
        }
        if (sourcesEnd_ == 0) sourcesEnd_ = tokens_.size();
        return from_ > 1;
    }

    /// False for a clause after which a row is no longer a row of one table.
    bool noteClause(size_t i) {
        const auto& token = tokens_[i];
        if (isAnyOf(token, {u"distinct", u"group", u"having", u"union", u"except", u"intersect", u"window"}))
            return false;
        if (from_ == 0 && token.isWord(u"from"))
            from_ = i;
        else if (from_ != 0 && sourcesEnd_ == 0 && isAnyOf(token, {u"where", u"order", u"limit"}))
            sourcesEnd_ = i;
        isOrdered_ = isOrdered_ || isAnyOf(token, {u"order", u"limit"});
        if (token.isWord(u"order"))
            ordersByNumber_ = i + 2 < tokens_.size() && tokens_[i + 2].kind == SqlTokenKind::Number;
        return true;
    }

    bool readSources() {
        bool expectsTable = true;
        for (size_t i = from_ + 1; i < sourcesEnd_; ++i) {
            const auto& token = tokens_[i];
            if (token.isWord(u"select")) return false;
            if (token.isSymbol(u',') || token.isWord(u"join"))
                expectsTable = true;
            else if (expectsTable && token.isIdentifier()) {
                addSource(i);
                expectsTable = false;
            }
        }
        return !sources_.empty();
    }

    void addSource(size_t i) {
        Source source{tokens_[i].identifier(), tokens_[i].identifier()};
        const size_t next = i + 1 < sourcesEnd_ && tokens_[i + 1].isWord(u"as") ? i + 2 : i + 1;
        if (next < sourcesEnd_ && tokens_[next].isIdentifier() &&
            !isAnyOf(tokens_[next], {u"on", u"inner", u"left", u"right", u"full", u"outer", u"cross", u"natural",
                                     u"join", u"using", u"indexed", u"not"}))
            source.spoken = tokens_[next].identifier();
        sources_.push_back(source);
    }

    void addKeyStatements(SelectShape& shape, const QString& spoken) const {
        const QString key = quotedName(spoken) + u".rowid"_s;
        const QString tail = text_.mid(tokens_[from_].begin, tokens_.back().end - tokens_[from_].begin);
        const QString shown = text_.mid(tokens_[1].begin, tokens_[from_ - 1].end - tokens_[1].begin);
        const bool isRenamed =
            std::ranges::any_of(shape.terms, [](const SelectShape::Term& term) { return term.shown != term.column; });
        if (!isRenamed && !ordersByNumber_) shape.keyStatements.push_back(u"SELECT "_s + key + u' ' + tail);
        shape.keyStatements.push_back(u"SELECT "_s + shown + u", "_s + key + u' ' + tail);
        shape.isOrdered = isOrdered_;
    }

    QString text_;
    std::vector<SqlToken> tokens_;
    size_t from_ = 0;
    size_t sourcesEnd_ = 0;
    bool ordersByNumber_ = false;
    bool isOrdered_ = false;
    std::vector<Source> sources_;
};

}  // namespace

std::optional<SelectShape> selectShape(SQLite::Database& database, const QString& statement) {
    return SelectReader(statement).run(database);
}

}  // namespace data
