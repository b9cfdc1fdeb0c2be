#include "data/select_shape.h"

#include <algorithm>

#include "data/sql_tokens.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

/// A table in the FROM clause and the name by which the statement speaks of it.
struct Source {
    QString table;
    QString spoken;
};

struct ListTerm {
    QString qualifier;
    QString column;
    QString shown;
};

bool isAnyOf(const SqlToken& token, std::initializer_list<QStringView> words) {
    return std::any_of(words.begin(), words.end(), [&token](QStringView word) { return token.isWord(word); });
}

bool same(const QString& left, const QString& right) {
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// Cuts one select into its clauses.
class SelectReader {
public:
    explicit SelectReader(const QString& statement) : text_(statement), tokens_(sqlTokens(statement)) {}

    std::optional<SelectShape> run() {
        if (!findClauses() || !readList() || !readSources()) return std::nullopt;
        const auto source = theSource();
        return source ? std::optional(shapeOf(*source)) : std::nullopt;
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

    bool readList() {
        size_t at = 1;
        while (at < from_) {
            const auto term = readTerm(at);
            if (!term) return false;
            list_.push_back(*term);
            if (at < from_ && !tokens_[at++].isSymbol(u',')) return false;
        }
        return !list_.empty();
    }

    std::optional<ListTerm> readTerm(size_t& at) {
        ListTerm term;
        if (at + 2 < from_ + 1 && tokens_[at].isIdentifier() && tokens_[at + 1].isSymbol(u'.')) {
            term.qualifier = tokens_[at].identifier();
            at += 2;
        }
        if (at >= from_ || !(tokens_[at].isSymbol(u'*') || tokens_[at].isIdentifier())) return std::nullopt;
        if (tokens_[at].isIdentifier()) term.column = term.shown = tokens_[at].identifier();
        ++at;
        if (at < from_ && tokens_[at].isWord(u"as")) ++at;
        if (at < from_ && tokens_[at].isIdentifier()) {
            term.shown = tokens_[at++].identifier();
        }
        return term;
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

    /// The one source that every term shows columns of.
    std::optional<Source> theSource() const {
        const QString qualifier = list_.front().qualifier;
        const bool isOne = std::all_of(list_.begin(), list_.end(), [&](const ListTerm& term) {
            return same(term.qualifier, qualifier) || (sources_.size() == 1 && term.qualifier.isEmpty());
        });
        if (!isOne || (qualifier.isEmpty() && sources_.size() != 1)) return std::nullopt;
        std::optional<Source> found;
        for (const auto& source : sources_) {
            if (!qualifier.isEmpty() && !same(source.spoken, qualifier)) continue;
            if (found) return std::nullopt;
            found = source;
        }
        return found;
    }

    SelectShape shapeOf(const Source& source) const {
        SelectShape shape;
        shape.table = source.table;
        for (const auto& term : list_)
            shape.terms.push_back({term.column, term.shown});
        const QString key = quotedName(source.spoken) + u".rowid"_s;
        const QString tail = text_.mid(tokens_[from_].begin, tokens_.back().end - tokens_[from_].begin);
        const QString shown = text_.mid(tokens_[1].begin, tokens_[from_ - 1].end - tokens_[1].begin);
        const bool isRenamed =
            std::any_of(list_.begin(), list_.end(), [](const ListTerm& term) { return term.shown != term.column; });
        if (!isRenamed && !ordersByNumber_) shape.keyStatements.push_back(u"SELECT "_s + key + u' ' + tail);
        shape.keyStatements.push_back(u"SELECT "_s + shown + u", "_s + key + u' ' + tail);
        shape.isOrdered = isOrdered_;
        return shape;
    }

    QString text_;
    std::vector<SqlToken> tokens_;
    size_t from_ = 0;
    size_t sourcesEnd_ = 0;
    bool ordersByNumber_ = false;
    bool isOrdered_ = false;
    std::vector<ListTerm> list_;
    std::vector<Source> sources_;
};

}  // namespace

std::optional<SelectShape> selectShape(const QString& statement) {
    return SelectReader(statement).run();
}

}  // namespace data
